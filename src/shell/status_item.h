// SPDX-License-Identifier: MIT
#pragma once

#include "shell/item_menu.h"

#include <QColor>
#include <QObject>
#include <QSystemTrayIcon>
#include <QTimer>

#include <memory>

namespace tarnwick {

class RepoOverview;
class TrayHost;

/// The program's one item in the status bar: a glyph in a colour that stands out there.
///
/// It is placed once the host, which has to outlive it, has room for it, and stays for good,
/// through restarts of the panel. Until then it waits, and says so on standard output when that
/// takes long.
class StatusItem : public QObject
{
    Q_OBJECT

public:
    /// `overview` is what its tooltip and its menu tell about; it outlives the item, too.
    StatusItem(TrayHost& host, const RepoOverview& overview, QObject* parent = nullptr);

    /// Where the item is on the screen or, on panels that do not tell, an empty rectangle at the
    /// pointer. To be asked only once the item is placed.
    [[nodiscard]] QRect anchor() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The user asked for the repositories at `anchor()`. A double click asks twice.
    void triggered(const QRect& anchor);
    /// The user chose a repository of the list in the item's menu.
    void panelRequested(qsizetype repository);
    void refreshAllRequested();
    void fetchAllRequested();
    void settingsRequested();

private:
    void connectMenu();
    void showIcon();
    void showTexts();
    void onActivated(QSystemTrayIcon::ActivationReason reason);
    void updateColor();

    TrayHost& m_host;
    const RepoOverview& m_overview;
    ItemMenu m_contextMenu;
    std::unique_ptr<QSystemTrayIcon> m_icon;
    QTimer m_panelTimer;
    /// Of the last click.
    QRect m_anchor;
    bool m_hasSeenPanel = false;
    QColor m_color;
    QColor m_edge;
};

} // namespace tarnwick
