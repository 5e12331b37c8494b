// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QMenu>
#include <QObject>
#include <QSystemTrayIcon>
#include <QTimer>

#include <memory>

namespace tarnwick {

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
    explicit StatusItem(TrayHost& host, QObject* parent = nullptr);

    /// Where the item is on the screen or, on panels that do not tell, an empty rectangle at the
    /// pointer. To be asked only once the item is placed.
    [[nodiscard]] QRect anchor() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The user asked for the repositories at `anchor()`. A double click asks twice.
    void triggered(const QRect& anchor);
    void refreshAllRequested();
    void settingsRequested();

private:
    void fillContextMenu();
    void showIcon();
    void onActivated(QSystemTrayIcon::ActivationReason reason);
    void updateColor();

    TrayHost& m_host;
    QMenu m_contextMenu;
    std::unique_ptr<QSystemTrayIcon> m_icon;
    QTimer m_panelTimer;
    /// Of the last click.
    QRect m_anchor;
    bool m_hasSeenPanel = false;
    QColor m_color;
};

} // namespace tarnwick
