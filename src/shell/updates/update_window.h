// SPDX-License-Identifier: MIT
#pragma once

#include "shell/updates/update_session.h"

#include <QDialog>

class QLabel;
class QProgressBar;
class QPushButton;

namespace tarnwick {

class ReleaseNotesView;

/// The user interface of one check for updates, from the request to the saved file. The constructor
/// starts the check; closing the window cancels it.
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
    ReleaseNotesView* const m_notes;
    QLabel* const m_notesLink;
    QPushButton* const m_download;
    QPushButton* const m_close;
};

} // namespace tarnwick
