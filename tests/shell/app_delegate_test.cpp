// SPDX-License-Identifier: MIT
#include "model/bundle_info.h"
#include "model/repo_manager.h"
#include "platform/active_window.h"
#include "platform/plain_application_folder.h"
#include "platform/platform.h"
#include "platform/tray_host.h"
#include "shell/app_delegate.h"
#include "shell/application_menu.h"
#include "shell/menu/status_menu.h"
#include "shell/status_item.h"
#include "support/recording_login_services.h"
#include "support/temporary_repository.h"
#include "support/test_registry.h"
#include "support/workbench.h"

#include <QAbstractButton>
#include <QApplication>
#include <QSignalSpy>

using namespace tarnwick::test;

namespace {

struct NoTrayHost : TrayHost
{
    [[nodiscard]] bool available() const override { return false; }
    [[nodiscard]] QList<QRect> panelRects() const override { return {}; }
    [[nodiscard]] std::optional<QColor> panelColor(const QRect&) const override { return {}; }
};

int menusVisible()
{
    return static_cast<int>(
        std::ranges::count_if(QApplication::topLevelWidgets(), [](auto* widget) {
            return qobject_cast<StatusMenu*>(widget) && widget->isVisible();
        }));
}

} // namespace

class AppDelegateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rebuildReplacesTheMenuAsAWhole()
    {
        Platform platform;
        platform.trayHost = std::make_unique<NoTrayHost>();
        platform.activeWindow = std::make_unique<ActiveWindow>();
        platform.systemApplications = std::make_unique<PlainApplicationFolder>(u"/nonexistent/"_s);
        platform.userApplications = std::make_unique<PlainApplicationFolder>(u"/nonexistent/"_s);
        const BundleInfo bundle{{{u"CFBundleVersion"_s, u"42"_s}}};
        platform.loginServices = std::make_unique<RecordingLoginServices>();
        Workbench bench;
        const TemporaryRepository repository;
        bench.store.setObject(repository.dir(), u"repos"_s);
        AppDelegate delegate(platform, bundle, bench.store, bench.services());
        QVERIFY(!AppDelegate::shared());
        delegate.applicationDidFinishLaunching();
        QCOMPARE(AppDelegate::shared(), &delegate);

        Q_EMIT delegate.statusBarItem().triggered(QRect(600, 0, 24, 24));
        QTRY_COMPARE(menusVisible(), 1);
        const QSignalSpy branches(delegate.appMenu().models()[0].get(),
                                  &RepoViewModel::branchStringChanged);
        QTRY_COMPARE(branches.size(), 1);
        for (auto* const widget : QApplication::allWidgets()) {
            if (widget->accessibleName().startsWith(u"Refresh all repositories"))
                qobject_cast<QAbstractButton*>(widget)->click();
        }
        QTRY_COMPARE(branches.size(), 2);
        delegate.repoManager().add(u"/nonexistent/b"_s, nullptr);
        QCOMPARE(delegate.appMenu().models().size(), 1);
        delegate.rebuildMenu();
        QCOMPARE(delegate.appMenu().models(), delegate.repoManager().models());
        QCOMPARE(delegate.appMenu().models().size(), 2);
        QTRY_COMPARE(menusVisible(), 0);
    }
};

TARNWICK_TEST(AppDelegateTest)

#include "app_delegate_test.moc"
