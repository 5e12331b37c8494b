// SPDX-License-Identifier: MIT
#include "shell/updates/release_notes_view.h"

#include "shell/updates/appcast.h"
#include "shell/updates/url_policy.h"

#include <QRegularExpression>
#include <QTextDocumentFragment>

namespace tarnwick {

namespace {

using namespace Qt::StringLiterals;

/// Even harmless elements take quadratic time if they are nested: half a second for this length.
constexpr qsizetype maxLength = 20'000;

bool isHarmlessHtml(const QString& html)
{
    static const QRegularExpression otherTag(
        u"<(?!/?(?:b|blockquote|br|code|em|h[1-6]|hr|i|li|ol|p|pre|strong|ul)\\s*/?>"
        u"|a\\s+href=\"[^\"<>]*\"\\s*>|/a\\s*>)"_s,
        QRegularExpression::CaseInsensitiveOption);
    return html.size() <= maxLength && !html.contains(otherTag);
}

/// Elements are removed, not parsed: Qt takes minutes to parse a table with large column spans.
QString plainTextOf(QString html)
{
    static const QRegularExpression lineEnd(u"<(?:br|/(?:p|li|h[1-6]|div|tr|td|th))\\b[^>]*>"_s,
                                            QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression tag(u"<style\\b.*?(?=</style)|<[^>]*>?"_s,
                                        QRegularExpression::CaseInsensitiveOption |
                                            QRegularExpression::DotMatchesEverythingOption);
    html.replace(lineEnd, u"\n"_s).remove(tag);
    return QTextDocumentFragment::fromHtml(u"<pre>"_s + html + u"</pre>"_s).toPlainText();
}

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
    if (item.notesArePlainText || !Qt::mightBeRichText(item.notes))
        setPlainText(item.notes.left(maxLength));
    else if (isHarmlessHtml(item.notes))
        setHtml(item.notes);
    else
        setPlainText(plainTextOf(item.notes.left(maxLength)));
}

} // namespace tarnwick
