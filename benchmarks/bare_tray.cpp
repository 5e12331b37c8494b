// SPDX-License-Identifier: MIT
#include "bare_git.h"

#include <QApplication>
#include <QIcon>
#include <QMenu>
#include <QPixmap>
#include <QSystemTrayIcon>

/// bare_tray [DIR...]: as little as a Qt program with an item in the status bar can be. Shows the
/// item, asks git about the repositories, and opens and closes a menu of 100 entries at each click.
int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QPixmap picture(22, 22);
    picture.fill(Qt::black);
    QSystemTrayIcon item{QIcon(picture)};
    QMenu menu;
    for (int i = 0; i < 100; ++i)
        menu.addAction(QStringLiteral("Entry %1").arg(i));
    QObject::connect(&item, &QSystemTrayIcon::activated, &menu, [&menu] {
        if (menu.isVisible())
            menu.close();
        else
            menu.popup(QPoint(600, 24));
    });
    item.show();
    tarnwick::bench::BareGit(QApplication::arguments().mid(1)).load([] { QApplication::exec(); });
}
