// SPDX-License-Identifier: MIT
#include "settings/window/general_options_view.h"

#include "settings/settings_host.h"

#include <QCheckBox>
#include <QResizeEvent>
#include <QTextLayout>
#include <QVBoxLayout>

namespace tarnwick {

namespace {

constexpr int margin = 20;
constexpr int spacing = 10;

/// The text with line breaks where it would be wider than `width`.
QString wrapped(const QString& text, const QFont& font, int width)
{
    QStringList lines;
    QTextLayout layout(text, font);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        lines += text.mid(line.textStart(), line.textLength()).trimmed();
    }
    layout.endLayout();
    return lines.join(u'\n');
}

} // namespace

GeneralOptionsView::GeneralOptionsView(PreferencesStore& store, SettingsHost& host, QWidget* parent)
    : QWidget(parent)
    , m_launchOnStartup(store, preferences::launchOnStartup)
    , m_refreshOnMenuOpen(store, preferences::refreshOnMenuOpen)
    , m_showCleanRepoStatus(store, preferences::showCleanRepoStatus)
    , m_onlyIcons(store, preferences::onlyIcons)
{
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(spacing);
    column->setAlignment(Qt::AlignTop | Qt::AlignLeading);
    auto* const launchOnStartup = newCheckBox(tr("Launch on startup"), m_launchOnStartup);
    connect(launchOnStartup, &QCheckBox::toggled, this,
            [&host](bool isChecked) { host.setLaunchAtLogin(isChecked); });
    column->addWidget(launchOnStartup);
    column->addWidget(newCheckBox(tr("Use only icons in repo statuses"), m_onlyIcons));
    column->addWidget(
        newCheckBox(tr("Refresh repos automatically when menu is opened"), m_refreshOnMenuOpen));
    column->addWidget(newCheckBox(tr("Show clean repo status"), m_showCleanRepoStatus));
}

QCheckBox* GeneralOptionsView::newCheckBox(const QString& text, BoundSetting& setting)
{
    auto* const box = new QCheckBox(text, this);
    box->setAccessibleName(text);
    box->setChecked(setting.value());
    connect(&setting, &BoundSetting::valueChanged, box, &QCheckBox::setChecked);
    connect(box, &QCheckBox::toggled, &setting, [&setting](bool isChecked) {
        // The store itself may have changed the box.
        if (isChecked != setting.value())
            setting.setValue(isChecked);
    });
    return box;
}

void GeneralOptionsView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    for (QCheckBox* const box : findChildren<QCheckBox*>()) {
        const int textWidth = box->fontMetrics().size(0, box->text()).width();
        const int indicatorWidth = box->sizeHint().width() - textWidth;
        box->setText(wrapped(box->accessibleName(), box->font(),
                             event->size().width() - 2 * margin - indicatorWidth));
    }
}

} // namespace tarnwick
