// SPDX-License-Identifier: MIT
#pragma once

#include <QTextBrowser>

namespace tarnwick {

struct AppcastItem;

/// Shows the release notes of a version, cut off if they are very long. They come from the network:
/// images, style sheets and files are never loaded, and links open in the web browser if they are
/// web pages.
class ReleaseNotesView : public QTextBrowser
{
    Q_OBJECT

public:
    explicit ReleaseNotesView(QWidget* parent = nullptr);

    void showNotes(const AppcastItem& item);

    QVariant loadResource(int type, const QUrl& url) override;
};

} // namespace tarnwick
