// SPDX-License-Identifier: MIT
#include "settings/window/settings_view.h"

#include "model/bundle_info.h"
#include "settings/save_button.h"
#include "settings/settings_host.h"
#include "settings/window/applications_view.h"
#include "settings/window/general_options_view.h"
#include "settings/window/repositories_view.h"
#include "views/symbols.h"

#include <QLabel>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <optional>

namespace tarnwick {

namespace {

constexpr int viewSize = 600;
constexpr int margin = 20;
constexpr int spacingBelowHeader = 20;
constexpr int spacingAboveButtons = 12;

constexpr int headerHeight = 60;
constexpr int symbolSize = 24;
constexpr int versionSize = 12;
constexpr int spacingBelowSymbol = 10;
constexpr int spacingBelowName = 4;

QLabel* newCenteredLabel(const QString& text, QFont font, std::optional<int> pixelSize,
                         QWidget* parent)
{
    if (pixelSize)
        font.setPixelSize(*pixelSize);
    auto* const label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    label->setFont(font);
    return label;
}

QWidget* newHeader(const QString& version, QWidget* parent)
{
    auto* const header = new QWidget(parent);
    const QFont font = header->font();
    auto* const symbol =
        newCenteredLabel(symbolNamed(u"hammer.fill"), withSymbols(font), symbolSize, header);
    // The font's line height includes descenders, which the symbol does not have.
    symbol->setFixedHeight(symbolSize);
    symbol->setAccessibleName(SettingsView::tr("Settings"));

    auto* const column = new QVBoxLayout(header);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addStretch(1);
    column->addWidget(symbol);
    column->addSpacing(spacingBelowSymbol);
    column->addWidget(newCenteredLabel(QStringLiteral("Tarnwick"), font, {}, header));
    column->addSpacing(spacingBelowName);
    column->addWidget(
        newCenteredLabel(SettingsView::tr("version %1").arg(version), font, versionSize, header));
    column->addStretch(1);
    return header;
}

} // namespace

SettingsView::SettingsView(RepoManager& mgr, PreferencesStore& store, SettingsHost& host,
                           const BundleInfo& bundle, const ApplicationFolder& system,
                           const ApplicationFolder& user, QWidget* parent)
    : QWidget(parent)
    , m_host(host)
    , m_vm(system, user)
{
    setFixedSize(viewSize, viewSize);
    auto* const header =
        newHeader(printableText(bundle.requiredText(QStringLiteral("CFBundleVersion"))), this);
    // Content taller than the header extends into the space above and below it.
    const int headerOverflow =
        std::clamp((header->sizeHint().height() - headerHeight + 1) / 2, 0, margin);
    header->setFixedHeight(headerHeight + 2 * headerOverflow);

    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin - headerOverflow, margin, margin);
    column->setSpacing(0);
    column->addWidget(header);
    column->addSpacing(spacingBelowHeader - headerOverflow);

    const QIcon icon = symbolIcon(symbolNamed(u"tray.and.arrow.down.fill"));
    auto* const tabs = new QTabWidget(this);
    tabs->addTab(new GeneralOptionsView(store, host, tabs), icon, tr("Settings"));
    tabs->addTab(new RepositoriesView(mgr, host, tabs), icon, tr("Repositories"));
    tabs->addTab(new ApplicationsView(m_vm, store, system, user, tabs), icon, tr("Applications"));
    column->addWidget(tabs, 1);
    column->addSpacing(spacingAboveButtons);

    auto* const save = new SaveButton(this);
    connect(save, &QPushButton::clicked, this, &SettingsView::saveAndClose);
    column->addWidget(save, 0, Qt::AlignTrailing);
}

void SettingsView::saveAndClose()
{
    m_host.rebuildMenu();
    closeKeyWindow();
}

} // namespace tarnwick
