// SPDX-License-Identifier: MIT
#include "views/repo_status_view.h"

#include "model/diagnostics.h"
#include "model/repo_view_model.h"
#include "model/status_details.h"
#include "views/colors.h"
#include "views/picture_view.h"
#include "views/row_metrics.h"
#include "views/spinner.h"
#include "views/status_summary.h"
#include "views/symbols.h"
#include "views/text_line.h"

#include <QHBoxLayout>
#include <QMouseEvent>

#include <algorithm>

namespace tarnwick {

namespace {

constexpr int lineSpacing = 4;
constexpr int symbolSpacing = 4;
constexpr int logoSize = 16;
constexpr int folderSize = 16;
constexpr int branchSize = 13;
constexpr int summarySize = 14;
constexpr int logoDetail = 4;

PictureView* makePicture(const QString& accessibleName, QWidget* parent)
{
    auto* const picture = new PictureView(parent);
    picture->setAccessibleName(accessibleName);
    return picture;
}

/// Stretched to a square.
Picture logoPicture(const QImage& logo)
{
    const QSize size = QSize(logoSize, logoSize) * logoDetail;
    const QImage square = logo.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return {.icon = QIcon(QPixmap::fromImage(square))};
}

QWidget* makeLine(QWidget* symbol, QWidget* text, QWidget* parent)
{
    auto* const line = new QWidget(parent);
    auto* const layout = new QHBoxLayout(line);
    layout->setContentsMargins({});
    layout->setSpacing(symbolSpacing);
    layout->addWidget(symbol, 0, Qt::AlignVCenter);
    layout->addWidget(text, 0, Qt::AlignVCenter);
    layout->addStretch(1);
    return line;
}

} // namespace

RepoStatusView::RepoStatusView(std::shared_ptr<RepoViewModel> vm, PreferencesStore& store,
                               QWidget* parent)
    : QWidget(parent)
    , m_vm(std::move(vm))
    , m_spokenName(m_vm->name())
    , m_onlyIcons(store, preferences::onlyIcons)
    , m_showCleanRepoStatus(store, preferences::showCleanRepoStatus)
    , m_picture(makePicture(tr("Repository"), this))
    , m_name(new TextLine(this))
    , m_branchSymbol(makePicture(tr("Branch"), this))
    , m_branch(new TextLine(this))
    , m_cleanSymbol(makePicture(tr("Clean"), this))
    , m_clean(new TextLine(this))
    , m_summary(new TextLine(this))
    , m_spinner(new Spinner(this))
    , m_branchLine(makeLine(m_branchSymbol, m_branch, this))
    , m_cleanLine(makeLine(m_cleanSymbol, m_clean, this))
{
    setFixedWidth(row::width);
    layOut();
    setFonts();
    render();
    observe();
}

QString RepoStatusView::text() const
{
    QStringList parts{m_spokenName};
    if (m_vm->isRepo()) {
        parts += tr("branch %1").arg(m_vm->branchString().value_or(QStringLiteral("?")));
        if (m_vm->statusString())
            parts += QString(*m_vm->statusString()).replace(QChar::Nbsp, u' ');
        else if (m_showCleanRepoStatus.value())
            parts += tr("Repo is clean");
    }
    return parts.join(QStringLiteral(", "));
}

QString RepoStatusView::description() const
{
    const StatusDetails details = statusDetails(m_vm->gitStatus().value_or(QString()));
    QStringList parts;
    if (details.conflicts > 0)
        parts += tr("%n in conflict", nullptr, static_cast<int>(details.conflicts));
    if (details.renames > 0)
        parts += tr("%n renamed", nullptr, static_cast<int>(details.renames));
    if (details.isDetached)
        parts += tr("detached head");
    if (details.lacksUpstream)
        parts += tr("no upstream");
    if (details.isUpstreamGone)
        parts += tr("upstream gone");
    return parts.join(QStringLiteral(", "));
}

QSize RepoStatusView::sizeHint() const
{
    return {row::width, layout()->heightForWidth(row::width)};
}

void RepoStatusView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        setFonts();
    if (event->type() == QEvent::PaletteChange)
        render();
    QWidget::changeEvent(event);
}

bool RepoStatusView::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        return static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
    case QEvent::MouseButtonRelease: {
        const auto* const release = static_cast<QMouseEvent*>(event);
        if (release->button() != Qt::LeftButton)
            return false;
        if (static_cast<QWidget*>(watched)->rect().contains(release->position().toPoint()))
            writeDiagnosticLine(QStringLiteral("Open sourcetree?"));
        return true;
    }
    default:
        return QWidget::eventFilter(watched, event);
    }
}

void RepoStatusView::layOut()
{
    auto* const column = new QVBoxLayout;
    column->setSpacing(lineSpacing);
    column->addWidget(makeLine(m_picture, m_name, this));
    column->addWidget(m_branchLine);
    column->addWidget(m_summary);
    column->addWidget(m_cleanLine);

    auto* const line = new QHBoxLayout(this);
    line->setContentsMargins(row::insets);
    line->setSpacing(symbolSpacing);
    line->addLayout(column, 1);
    line->addWidget(m_spinner, 0, Qt::AlignVCenter);
    // Its room is kept: a summary must not break differently, and the row jump, at every refresh.
    QSizePolicy policy = m_spinner->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_spinner->setSizePolicy(policy);

    m_branchSymbol->installEventFilter(this);
    m_branch->installEventFilter(this);
}

void RepoStatusView::observe()
{
    const auto follow = [this](auto signal, auto renderPart) {
        connect(m_vm.get(), signal, this, [this, renderPart] {
            (this->*renderPart)();
            Q_EMIT textChanged();
        });
    };
    follow(&RepoViewModel::isRepoChanged, &RepoStatusView::render);
    follow(&RepoViewModel::branchStringChanged, &RepoStatusView::renderBranch);
    follow(&RepoViewModel::statusStringChanged, &RepoStatusView::renderStatus);
    connect(m_vm.get(), &RepoViewModel::isLoadingChanged, this, &RepoStatusView::renderSpinner);
    for (const auto* setting : {&m_onlyIcons, &m_showCleanRepoStatus}) {
        connect(setting, &BoundSetting::valueChanged, this, [this] {
            renderStatus();
            Q_EMIT textChanged();
        });
    }
}

void RepoStatusView::setFonts()
{
    // The texts of all lines start at one edge.
    const int cellWidth = std::max(logoSize, row::sizedSide(font(), folderSize));
    m_picture->setFixedSize(cellWidth, m_vm->logo() ? logoSize : cellWidth);
    for (PictureView* const symbol : {m_branchSymbol, m_cleanSymbol})
        symbol->setFixedSize(cellWidth, row::sizedSide(font(), branchSize));
    m_name->setFont(font());
    m_branch->setFont(row::sizedFont(font(), branchSize));
    m_clean->setFont(row::sizedFont(font(), branchSize));
    m_summary->setFont(row::sizedFont(withSymbols(font()), summarySize));
    m_summary->setGlyphColumn(cellWidth + symbolSpacing);
}

void RepoStatusView::render()
{
    const QColor color = labelColor(palette());
    m_name->setSegments({{m_vm->name(), color}});
    m_picture->setPicture(m_vm->logo() ? logoPicture(*m_vm->logo())
                                       : Picture{.symbol = QStringLiteral("folder.fill")},
                          color);
    renderBranch();
    renderStatus();
    renderSpinner();
}

void RepoStatusView::renderBranch()
{
    const QColor color = m_vm->isMainBranch() ? secondaryLabelColor(palette())
                                              : colors::yellow(appearanceOf(palette()));
    m_branchSymbol->setPicture({.symbol = QStringLiteral("arrow.triangle.branch")}, color);
    m_branch->setSegments({{m_vm->branchString().value_or(QStringLiteral("?")), color}});
    m_branchLine->setVisible(m_vm->isRepo());
}

void RepoStatusView::renderStatus()
{
    const Appearance appearance = appearanceOf(palette());
    const auto& summary = m_vm->statusString();
    if (summary) {
        const auto style = m_onlyIcons.value() ? SummaryStyle::OnlyIcons : SummaryStyle::Words;
        m_summary->setSegments(statusText(*summary, style, appearance));
    } else {
        const QColor color = colors::green(appearance);
        m_cleanSymbol->setPicture({.symbol = QStringLiteral("checkmark.seal.fill")}, color);
        m_clean->setSegments({{tr("Repo is clean"), color}});
    }
    m_summary->setVisible(m_vm->isRepo() && summary);
    m_cleanLine->setVisible(m_vm->isRepo() && !summary && m_showCleanRepoStatus.value());
}

void RepoStatusView::renderSpinner()
{
    m_spinner->setVisible(m_vm->isLoading());
}

} // namespace tarnwick
