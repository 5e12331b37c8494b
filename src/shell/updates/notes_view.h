// SPDX-License-Identifier: MIT
#pragma once

#include <QTextBrowser>

namespace tarnwick {

struct AppcastItem;

/// Shows the notes of a version, or the beginning of endless ones. They come from the network, so
/// nothing they name is loaded, be it a picture, a style or a file; links lead to the web browser
/// and only to web pages.
class NotesView : public QTextBrowser
{
    Q_OBJECT

public:
    explicit NotesView(QWidget* parent = nullptr);

    void showNotes(const AppcastItem& item);

    QVariant loadResource(int type, const QUrl& url) override;
};

} // namespace tarnwick
