// SPDX-License-Identifier: MIT
#include "model/bundle_info.h"
#include "shell/top_row/refresh_view.h"
#include "shell/updates/updater.h"
#include "support/test_registry.h"
#include "support/workbench.h"

#include <QPushButton>
#include <QSignalSpy>

using namespace tarnwick::test;

class TopRowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void buttonsDoWhatTheirNamesSay()
    {
        RefreshView row(stoppedUpdater(), bundle(u"7"_s));
        row.show();
        QCOMPARE(row.text(), u"Tarnwick 7"_s);
        const auto buttons = row.findChildren<QPushButton*>();
        const QStringList names{u"Check for updates"_s, u"Refresh all repositories"_s,
                                u"Settings"_s, u"Quit Tarnwick"_s};
        for (int i = 0; i < 4; ++i) {
            QCOMPARE(buttons[i]->accessibleName(), names[i]);
            QVERIFY(i == 0 || buttons[i]->x() > buttons[i - 1]->geometry().right());
        }
        const QSignalSpy refresh(&row, &RefreshView::refreshRequested);
        buttons[1]->click();
        const QSignalSpy settings(&row, &RefreshView::settingsRequested);
        buttons[2]->click();
        QVERIFY(refresh.size() == 1 && settings.size() == 1);
        QVERIFY(!buttons[0]->isEnabled());
        m_updater->start();
        QVERIFY(buttons[0]->isEnabled());
    }

    void widthNeverChanges()
    {
        RefreshView row(stoppedUpdater(), bundle(QString(60, u'1')));
        row.show();
        QFont font;
        font.setPointSize(22);
        row.setFont(font);
        QCoreApplication::sendPostedEvents();
        row.resize(row.sizeHint());
        QCOMPARE(row.width(), 340);
        for (const auto* const child : row.findChildren<QWidget*>())
            QVERIFY(row.rect().adjusted(20, 10, -20, -10).contains(child->geometry()));
    }

private:
    static BundleInfo bundle(const QString& build)
    {
        return BundleInfo({{u"CFBundleVersion"_s, build}});
    }
    [[nodiscard]] std::unique_ptr<StandardUpdaterController> stoppedUpdater()
    {
        const BundleInfo info({{u"CFBundleVersion"_s, u"7"_s},
                               {u"SUFeedURL"_s, u"https://localhost/"_s},
                               {u"SUPublicEDKey"_s, u"key"_s}});
        auto controller = std::make_unique<StandardUpdaterController>(
            updateSettings(info, m_bench.runner), false);
        m_updater = &controller->updater();
        return controller;
    }

    Workbench m_bench;
    Updater* m_updater = nullptr;
};

TARNWICK_TEST(TopRowTest)

#include "top_row_test.moc"
