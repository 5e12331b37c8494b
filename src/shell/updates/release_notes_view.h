// SPDX-License-Identifier: MIT
#pragma once

#include <QTextBrowser>

namespace tarnwick {

struct AppcastItem;

/// Shows the release notes of a version. They come from the network, and Qt's layout of HTML can
/// take unlimited time (each nested table doubles it) and loads files. So only short notes of
/// harmless elements without attributes are shown as HTML, all others as plain text and cut off if
/// they are long. Links open in the web browser if they are web pages.
class ReleaseNotesView : public QTextBrowser
{
    Q_OBJECT

public:
    explicit ReleaseNotesView(QWidget* parent = nullptr);

    void showNotes(const AppcastItem& item);
};

} // namespace tarnwick
