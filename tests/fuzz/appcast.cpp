// SPDX-License-Identifier: MIT
#include "shell/updates/appcast.h"

#include "fuzz.h"
#include "shell/updates/release_notes_view.h"

#include <QApplication>

using namespace tarnwick;

void fuzz(const QByteArray& input)
{
    static int count = 1;
    static char name[] = "fuzz";
    static char* arguments[] = {name, nullptr};
    static const QApplication application(count, arguments);
    static ReleaseNotesView view;
    AppcastItem newest;
    newest.notes = QString::fromUtf8(input);
    if (const auto items = parseAppcast(input, QStringLiteral("linux")))
        newest = newestItem(*items, QString()).value_or(newest);
    view.showNotes(newest);
    view.document()->setTextWidth(400);
    require(!view.toHtml().contains(QLatin1String("<img")));
}
