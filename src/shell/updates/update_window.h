// SPDX-License-Identifier: MIT
#pragma once

#include "shell/updates/update_session.h"

#include <QDialog>

class QLabel;
class QProgressBar;
class QPushButton;

namespace tarnwick {

class NotesView;

/// One check for updates as the user sees it, from the question to the server to the saved file.
/// The check begins with the window and ends with it: closing it breaks off whatever is going on.
class UpdateWindow : public QDialog
{
    Q_OBJECT

public:
    explicit UpdateWindow(UpdateSettings settings, QWidget* parent = nullptr);

private:
    void layOut();
    void moveToCenter();
    void render();
    void renderOffer();
    void renderProgress();

    UpdateSession m_session;
    QLabel* const m_heading;
    QLabel* const m_detail;
    QProgressBar* const m_progress;
    NotesView* const m_notes;
    QLabel* const m_notesLink;
    QPushButton* const m_download;
    QPushButton* const m_dismiss;
};

} // namespace tarnwick
