// SPDX-License-Identifier: MIT
#include "shell/top_row/refresh_view.h"

#include "model/bundle_info.h"
#include "shell/top_row/check_for_updates_view.h"
#include "shell/top_row/glyph_button.h"
#include "shell/updates/updater.h"
#include "views/colors.h"
#include "views/row_metrics.h"
#include "views/symbols.h"
#include "views/text_line.h"

#include <QCoreApplication>
#include <QEvent>
#include <QHBoxLayout>

namespace tarnwick {

namespace {

constexpr int spacing = 8;
constexpr int nameSize = 10;

} // namespace

RefreshView::RefreshView(std::unique_ptr<StandardUpdaterController> updaterController,
                         const BundleInfo& bundle, QWidget* parent)
    : QWidget(parent)
    , m_updaterController(std::move(updaterController))
    , m_buildNumber(bundle.requiredText(QStringLiteral("CFBundleVersion")))
    , m_name(new TextLine(this))
{
    setFixedWidth(row::width);
    layOut();
    setFonts();
    render();
}

RefreshView::~RefreshView() = default;

QString RefreshView::text() const
{
    return tr("Tarnwick %1").arg(m_buildNumber);
}

void RefreshView::setProgress(const QString& progress)
{
    m_refresh->setAction(progress.isEmpty() ? tr("Refresh all repositories")
                                            : tr("Refresh all repositories: %1").arg(progress));
}

QSize RefreshView::sizeHint() const
{
    return {row::width, layout()->heightForWidth(row::width)};
}

void RefreshView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        setFonts();
    if (event->type() == QEvent::PaletteChange)
        render();
    QWidget::changeEvent(event);
}

void RefreshView::layOut()
{
    auto* const update = new CheckForUpdatesView(m_updaterController->updater(), this);
    m_refresh = new GlyphButton(glyph::refresh, {}, this);
    setProgress({});
    connect(m_refresh, &QAbstractButton::clicked, this, &RefreshView::refreshRequested);
    auto* const settings = new GlyphButton(glyph::settings, tr("Settings"), this);
    connect(settings, &QAbstractButton::clicked, this, &RefreshView::settingsRequested);
    auto* const quit = new GlyphButton(glyph::quit, tr("Quit Tarnwick"), this);
    connect(quit, &QAbstractButton::clicked, qApp, &QCoreApplication::quit);

    auto* const line = new QHBoxLayout(this);
    line->setContentsMargins(row::insets);
    line->setSpacing(spacing);
    line->addWidget(m_name, 0, Qt::AlignVCenter);
    line->addStretch(1);
    for (GlyphButton* const button : {static_cast<GlyphButton*>(update), m_refresh, settings, quit})
        line->addWidget(button, 0, Qt::AlignVCenter);
}

void RefreshView::setFonts()
{
    m_name->setFont(row::sizedFont(font(), nameSize));
    for (auto* const button : findChildren<GlyphButton*>())
        button->setInterfaceFont(font());
}

void RefreshView::render()
{
    m_name->setSegments({{text(), secondaryLabelColor(palette())}});
}

} // namespace tarnwick
