// SPDX-License-Identifier: MIT
#include "shell/updates/release_notes_view.h"

#include "shell/updates/appcast.h"
#include "shell/updates/url_policy.h"

#include <QImage>

namespace tarnwick {

namespace {

/// Nested elements take quadratic time.
constexpr qsizetype maxCharacters = 20'000;

} // namespace

ReleaseNotesView::ReleaseNotesView(QWidget* parent)
    : QTextBrowser(parent)
{
    setOpenLinks(false);
    setAccessibleName(tr("Release notes"));
    connect(this, &QTextBrowser::anchorClicked, this, &openWebPage);
}

void ReleaseNotesView::showNotes(const AppcastItem& item)
{
    const QString notes = item.notes.left(maxCharacters);
    if (item.notesArePlainText)
        setPlainText(notes);
    else
        setText(notes);
}

QVariant ReleaseNotesView::loadResource(int type, const QUrl& /*url*/)
{
    // With an invalid image the document would try to load a file.
    if (type == QTextDocument::ImageResource) {
        QImage transparent(1, 1, QImage::Format_ARGB32);
        transparent.fill(Qt::transparent);
        return transparent;
    }
    return QByteArray();
}

} // namespace tarnwick
