// SPDX-License-Identifier: MIT
#include "settings/site_row.h"

#include "model/diagnostics.h"
#include "model/preference_keys.h"
#include "model/preferences_store.h"
#include "settings/elided_check_box.h"

#include <QHBoxLayout>
#include <QPainter>

namespace tarnwick {

namespace {

constexpr int frameSide = 30;
constexpr int iconSize = 24;
constexpr int spacing = 8;

class LazyIcon : public QWidget
{
public:
    LazyIcon(std::function<QIcon()> source, QWidget* parent)
        : QWidget(parent)
        , m_source(std::move(source))
    {
        setFixedSize(frameSide, frameSide);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        if (!m_icon)
            m_icon = m_source();
        QPainter painter(this);
        m_icon->paint(&painter, 0, (height() - iconSize) / 2, iconSize, iconSize);
    }

private:
    const std::function<QIcon()> m_source;
    std::optional<QIcon> m_icon;
};

} // namespace

SiteRow::SiteRow(bool state, const QString& site, PreferencesStore& store, const IconSource& icon,
                 QWidget* parent)
    : QWidget(parent)
    , m_site(site)
    , m_store(store)
{
    auto* const box = new ElidedCheckBox(site, this);
    box->setChecked(state);
    connect(box, &QCheckBox::toggled, this, &SiteRow::saveSwitch);

    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(spacing);
    row->addWidget(new LazyIcon([icon, site] { return icon(site); }, this));
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
