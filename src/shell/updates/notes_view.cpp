// SPDX-License-Identifier: MIT
#include "shell/updates/notes_view.h"

#include "shell/updates/appcast.h"
#include "shell/updates/web_page.h"

#include <QImage>

namespace tarnwick {

namespace {

/// Elements within elements take Qt the square of their number.
constexpr qsizetype mostLetters = 20'000;

} // namespace

NotesView::NotesView(QWidget* parent)
    : QTextBrowser(parent)
{
    setOpenLinks(false);
    setAccessibleName(tr("Release notes"));
    connect(this, &QTextBrowser::anchorClicked, this, &openWebPage);
}

void NotesView::showNotes(const AppcastItem& item)
{
    const QString notes = item.notes.left(mostLetters);
    if (item.notesArePlainText)
        setPlainText(notes);
    else
        setText(notes);
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
