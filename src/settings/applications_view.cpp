// SPDX-License-Identifier: MIT
#include "settings/applications_view.h"

#include "model/preference_keys.h"
#include "model/preferences_store.h"
#include "settings/app_list.h"
#include "settings/grey_frame.h"
#include "settings/site_row.h"
#include "views/app_icon.h"

#include <QScrollArea>
#include <QVBoxLayout>

namespace tarnwick {

namespace {

constexpr int outerInset = 20;
constexpr int listInset = 6;
constexpr int rowGap = 2;

} // namespace

ApplicationsView::ApplicationsView(const AppList& vm, PreferencesStore& store,
                                   const ApplicationFolder& system, const ApplicationFolder& user,
                                   QWidget* parent)
    : QWidget(parent)
{
    auto* const scroller = new QScrollArea(this);
    scroller->setFrameShape(QFrame::NoFrame);
    scroller->setWidgetResizable(true);
    scroller->setFocusPolicy(Qt::NoFocus);

    auto* const list = new QWidget(scroller);
    auto* const rows = new QVBoxLayout(list);
    rows->setContentsMargins(listInset, listInset, listInset, listInset);
    rows->setSpacing(rowGap);
    const auto icon = [&system, &user](const QString& site) { return appIcon(site, system, user); };
    for (const QString& site : vm.list())
        rows->addWidget(new SiteRow(store.boolForKey(preferences::showInAppsPrefix + site), site,
                                    store, icon, list));
    rows->addStretch(1);
    scroller->setWidget(list);
    list->setAutoFillBackground(false);
    scroller->viewport()->setAutoFillBackground(false);

    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(outerInset, outerInset, outerInset, outerInset);
    column->addWidget(new GreyFrame(scroller, 0, this));
}

} // namespace tarnwick
