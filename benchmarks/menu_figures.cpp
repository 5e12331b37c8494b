// SPDX-License-Identifier: MIT
#include "bench.h"
#include "figure.h"
#include "opened_menu.h"
#include "shell/menu/hosted_row.h"
#include "shell/menu/status_menu.h"
#include "waiting.h"

#include <QApplication>
#include <QBoxLayout>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QScrollArea>
#include <QSet>
#include <QStandardPaths>
#include <QStyle>

#include <chrono>

namespace tarnwick::bench {

namespace {

using namespace std::chrono_literals;

constexpr int rowCount = 100;
constexpr int applicationCount = 300;

std::unique_ptr<QMenu> plainMenu()
{
    auto menu = std::make_unique<QMenu>();
    for (int i = 0; i < rowCount; ++i)
        menu->addAction(QStringLiteral("Entry %1").arg(i));
    return menu;
}

struct Openings
{
    double first;
    double later;
};

Openings openTwice(const std::function<void()>& show, const std::function<void()>& close)
{
    const double first = timeUntilPainted(show);
    close();
    QApplication::processEvents();
    const double later = timeUntilPainted(show);
    close();
    QApplication::processEvents();
    return {first, later};
}

void measureOpening(Bench& bench, const RepoManager& list)
{
    Figure open(QStringLiteral("open"),
                QStringLiteral("first opening of 100 rows until painted : QMenu of 100 entries"),
                2.0);
    Figure reopen(QStringLiteral("reopen"), QStringLiteral("the same, later openings"), 0.9);
    while (!open.hasEnough() || !reopen.hasEnough()) {
        const auto menu = bench.menu().buildMenu(list);
        const Openings ours = openTwice([&] { menu->popUpBeside(QRect(600, 0, 24, 24), {}); },
                                        [&] { menu->dismiss(); });
        const auto plain = plainMenu();
        const Openings theirs =
            openTwice([&] { plain->popup(QPoint(600, 24)); }, [&] { plain->close(); });
        open.addRatio(ours.first, theirs.first);
        reopen.addRatio(ours.later, theirs.later);
    }
    open.report();
    reopen.report();
}

void installApplications()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                           QStringLiteral("/applications/");
    QDir().mkpath(folder);
    for (int i = 0; i < applicationCount; ++i) {
        QFile file(folder + QStringLiteral("application-%1.desktop").arg(i));
        if (file.open(QIODevice::WriteOnly))
            file.write(QStringLiteral("[Desktop Entry]\nType=Application\nName=Application %1\n"
                                      "Exec=true\nIcon=application-%1\n")
                           .arg(i)
                           .toUtf8());
    }
}

QHBoxLayout* plainLine(QWidget* parent, const QString& text)
{
    auto* const line = new QHBoxLayout;
    auto* const symbol = new QLabel(parent);
    symbol->setPixmap(parent->style()->standardPixmap(QStyle::SP_DirIcon));
    line->addWidget(symbol);
    line->addWidget(new QLabel(text, parent));
    line->addStretch(1);
    return line;
}

/// A row of the same texts and pictures in Qt's own widgets, with a submenu.
QWidget* plainRow(const RepoViewModel& record)
{
    auto* const row = new QWidget;
    auto* const column = new QVBoxLayout(row);
    for (const QString& text : {record.name(), record.branchString().value_or(QString()),
                                record.statusString().value_or(QStringLiteral("Repo is clean"))})
        column->addLayout(plainLine(row, text));
    auto* const submenu = new QMenu(row);
    submenu->addAction(QStringLiteral("Actions"));
    return row;
}

std::unique_ptr<QWidget> plainRows(const RepoViewModels& records)
{
    auto area = std::make_unique<QScrollArea>();
    auto* const content = new QWidget;
    auto* const column = new QVBoxLayout(content);
    for (const auto& record : records)
        column->addWidget(plainRow(*record));
    area->setWidget(content);
    return area;
}

void measureBuilding(Bench& bench, const RepoManager& list)
{
    installApplications();
    Figure figure(QStringLiteral("build"),
                  QStringLiteral("building 100 rows, 300 applications : 100 rows of plain widgets"),
                  1.5);
    Figure time(QStringLiteral("build"), QStringLiteral("the same in milliseconds"), {},
                Figure::Unit::milliseconds);
    while (!figure.hasEnough()) {
        QApplication::processEvents(); // the applications are read anew
        std::unique_ptr<StatusMenu> menu;
        const double ours = duration([&] { menu = bench.menu().buildMenu(list); });
        std::unique_ptr<QWidget> rows;
        const double theirs = duration([&] { rows = plainRows(list.models()); });
        figure.addRatio(ours, theirs);
        time.add(ours);
    }
    figure.report();
    time.report();
}

/// How many rows of an open menu are painted because of what a query publishes.
double rowsPainted(const std::function<void()>& query)
{
    QSet<const HostedRow*> rows;
    const PaintWatch watch([&rows](QWidget& widget) {
        for (const QWidget* at = &widget; at; at = at->parentWidget()) {
            if (const auto* const row = qobject_cast<const HostedRow*>(at))
                rows.insert(row);
        }
    });
    query();
    waitFor(100ms);
    return static_cast<double>(rows.size());
}

void measureRepainting(Bench& bench, const RepoManager& list)
{
    const auto menu = bench.menu().buildMenu(list);
    openMenu(*menu);
    RepoViewModel& untracked = *list.models()[4];
    QFile file(untracked.dir() + QStringLiteral("/one-more.txt"));
    Figure changed(QStringLiteral("repaint"),
                   QStringLiteral("rows painted when the status of one of 100 changes"), 1,
                   Figure::Unit::count);
    Figure same(QStringLiteral("repaint"),
                QStringLiteral("rows painted when a record publishes what it had"), 0,
                Figure::Unit::count);
    while (!changed.hasEnough()) {
        if (!file.remove())
            static_cast<void>(file.open(QIODevice::WriteOnly));
        changed.add(rowsPainted([&] { untracked.refreshStatusInBackground(); }));
        same.add(rowsPainted([&] { untracked.refreshBranch(); }));
    }
    file.remove();
    menu->dismiss();
    changed.report();
    same.report();
}

} // namespace

void measureMenus(Bench& bench)
{
    const auto list = bench.loaded(bench.dirs(rowCount));
    measureOpening(bench, *list);
    measureBuilding(bench, *list);
    measureRepainting(bench, *list);
}

} // namespace tarnwick::bench
