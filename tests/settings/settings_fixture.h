// SPDX-License-Identifier: MIT
#pragma once

#include "model/bundle_info.h"
#include "model/repo_manager.h"
#include "platform/plain_application_folder.h"
#include "settings/settings_host.h"
#include "settings/window/settings_view.h"
#include "support/table.h"
#include "support/workbench.h"

namespace tarnwick::test {

struct RecordingHost : SettingsHost
{
    void rebuildMenu() override { ++rebuilds; }
    void setLaunchAtLogin(bool enabled) override { logins += enabled; }
    std::shared_ptr<RepoViewModelDelegate> newRecordDelegate() override
    {
        return std::make_shared<NoDelegate>();
    }

    int rebuilds = 0;
    QList<bool> logins;
};

/// Real preferences, a real list and real folders for any number of settings windows.
struct SettingsFixture
{
    [[nodiscard]] std::unique_ptr<SettingsView> view()
    {
        return std::make_unique<SettingsView>(mgr, bench.store, host, bundle, system, user);
    }
    [[nodiscard]] QStringList stored() const
    {
        return bench.store.stringForKey(u"repos"_s).value_or(QString()).split(u'\n');
    }

    Workbench bench;
    RecordingHost host;
    RepoManager mgr{bench.store, bench.services(), [] { return std::make_shared<NoDelegate>(); }};
    BundleInfo bundle{
        {{u"CFBundleVersion"_s, u"4\u202e2"_s}, {u"CFBundleShortVersionString"_s, u"1.2"_s}}};
    PlainApplicationFolder system{bench.folder.filePath(u"system/"_s)};
    PlainApplicationFolder user{bench.folder.filePath(u"user/"_s)};
};

} // namespace tarnwick::test
