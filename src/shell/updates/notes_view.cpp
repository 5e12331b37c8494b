// SPDX-License-Identifier: MIT
#include "shell/updates/notes_view.h"

#include "shell/updates/appcast.h"
#include "shell/updates/web_page.h"

#include <QImage>

namespace tarnwick {

NotesView::NotesView(QWidget* parent)
    : QTextBrowser(parent)
{
    setOpenLinks(false);
    setAccessibleName(tr("Release notes"));
    connect(this, &QTextBrowser::anchorClicked, this, &openWebPage);
}

void NotesView::showNotes(const AppcastItem& item)
{
    if (item.notesArePlainText)
        setPlainText(item.notes);
    else
        setText(item.notes);
}

QVariant NotesView::loadResource(int type, const QUrl& /*url*/)
{
    // Anything less than a real answer makes the document look for a file.
    if (type == QTextDocument::ImageResource) {
        QImage nothing(1, 1, QImage::Format_ARGB32);
        nothing.fill(Qt::transparent);
        return nothing;
    }
    return QByteArray();
}

} // namespace tarnwick
