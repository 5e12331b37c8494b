// SPDX-License-Identifier: MIT
#include "settings/window/applications_view.h"

#include "model/diagnostics.h"
#include "model/preference_keys.h"
#include "model/preferences_store.h"
#include "settings/grey_frame.h"
#include "settings/list_navigation.h"
#include "settings/window/app_list.h"
#include "settings/window/elided_text.h"
#include "views/app_icon.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollArea>

#include <functional>
#include <optional>

namespace tarnwick {

namespace {

constexpr int tabMargin = 20;
constexpr int listMargin = 6;
constexpr int rowSpacing = 2;
constexpr int iconFrameSize = 30;
constexpr int iconSize = 24;
constexpr int iconSpacing = 8;

/// Scrolls rows with one button each, between which the navigation keys move the focus.
class ButtonList : public QScrollArea
{
public:
    using QScrollArea::QScrollArea;

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        const auto buttons = widget()->findChildren<QAbstractButton*>();
        const auto focused = buttons.indexOf(focusWidget());
        const auto target = focused < 0
                                ? std::nullopt
                                : rowAfterKey(event->key(), static_cast<int>(focused),
                                              static_cast<int>(buttons.size()),
                                              viewport()->height() / (iconFrameSize + rowSpacing));
        if (!target) {
            QScrollArea::keyPressEvent(event);
            return;
        }
        buttons[*target]->setFocus(Qt::TabFocusReason);
        ensureWidgetVisible(buttons[*target]);
    }
};

/// Loads its icon when it is first painted, because most rows of a long list never are.
class LazyIcon : public QWidget
{
public:
    LazyIcon(std::function<QIcon()> load, QWidget* parent)
        : QWidget(parent)
        , m_load(std::move(load))
    {
        setFixedSize(iconFrameSize, iconFrameSize);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        if (!m_icon)
            m_icon = m_load();
        QPainter painter(this);
        m_icon->paint(&painter, 0, (height() - iconSize) / 2, iconSize, iconSize);
    }

private:
    const std::function<QIcon()> m_load;
    std::optional<QIcon> m_icon;
};

} // namespace

ApplicationsView::ApplicationsView(const AppList& vm, PreferencesStore& store,
                                   const ApplicationFolder& system, const ApplicationFolder& user,
                                   QWidget* parent)
    : QWidget(parent)
{
    auto* const scrollArea = new ButtonList(this);
    scrollArea->setFrameShape(QFrame::NoFrame);
    scrollArea->setWidgetResizable(true);
    scrollArea->setFocusPolicy(Qt::NoFocus);

    auto* const list = new QWidget(scrollArea);
    auto* const rows = new QVBoxLayout(list);
    rows->setContentsMargins(listMargin, listMargin, listMargin, listMargin);
    rows->setSpacing(rowSpacing);
    for (const QString& site : vm.list())
        rows->addWidget(new SiteRow(store.boolForKey(preferences::showInAppsPrefix + site), site,
                                    store, system, user, list));
    rows->addStretch(1);
    scrollArea->setWidget(list);
    list->setAutoFillBackground(false);
    scrollArea->viewport()->setAutoFillBackground(false);

    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(tabMargin, tabMargin, tabMargin, tabMargin);
    column->addWidget(new GreyFrame(scrollArea, 0, this));
}

SiteRow::SiteRow(bool state, const QString& site, PreferencesStore& store,
                 const ApplicationFolder& system, const ApplicationFolder& user, QWidget* parent)
    : QWidget(parent)
    , m_site(site)
    , m_store(store)
{
    auto* const box = new ElidedCheckBox(site, this);
    box->setChecked(state);
    connect(box, &QCheckBox::toggled, this, &SiteRow::saveSwitch);

    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(iconSpacing);
    row->addWidget(
        new LazyIcon([site, &system, &user] { return appIcon(site, system, user); }, this));
    row->addWidget(box, 1);
}

void SiteRow::saveSwitch(bool state)
{
    const QString key = preferences::showInAppsPrefix + m_site;
    m_store.setBool(state, key);
    writeDiagnosticLine(m_store.boolForKey(key) ? QStringLiteral("x true")
                                                : QStringLiteral("x false"));
}

} // namespace tarnwick
