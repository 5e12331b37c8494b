// SPDX-License-Identifier: MIT
#include "views/repo_status_view.h"

#include "model/diagnostics.h"
#include "model/repo_view_model.h"
#include "views/colors.h"
#include "views/spinner.h"
#include "views/status_summary.h"
#include "views/symbols.h"
#include "views/text_line.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>

namespace tarnwick {

namespace {

constexpr int rowWidth = 340;
constexpr int sideInset = 20;
constexpr int endInset = 10;
constexpr int lineSpacing = 4;
constexpr int symbolSpacing = 6;
constexpr int pictureSize = 16;
constexpr int nameLineHeight = 20;
constexpr int branchFontSize = 13;
constexpr int summaryFontSize = 14;

/// Sizes are in pixels of a display at scale 1.
QFont fontWithSymbols(const QFont& interfaceFont, int size)
{
    QFont font = withSymbols(interfaceFont);
    font.setPixelSize(size);
    return font;
}

void setSymbol(QLabel& label, const QString& symbol, const QColor& color)
{
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, color);
    label.setPalette(palette);
    label.setText(symbol);
}

/// A symbol in a cell of the picture's width, so that the texts of all lines start at one edge.
QLabel* newSymbolCell(const QString& accessibleName, QWidget* parent)
{
    auto* const label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    label->setFixedWidth(pictureSize);
    label->setAccessibleName(accessibleName);
    return label;
}

QWidget* newLine(QWidget* symbol, QWidget* text, QWidget* parent)
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
    , m_onlyIcons(store, preferences::onlyIcons)
    , m_showCleanRepoStatus(store, preferences::showCleanRepoStatus)
    , m_picture(newSymbolCell(tr("Repository"), this))
    , m_name(new TextLine(this))
    , m_branchSymbol(newSymbolCell(tr("Branch"), this))
    , m_branch(new TextLine(this))
    , m_cleanSymbol(newSymbolCell(tr("Clean"), this))
    , m_clean(new TextLine(this))
    , m_summary(new TextLine(this))
    , m_spinner(new Spinner(this))
    , m_branchLine(newLine(m_branchSymbol, m_branch, this))
    , m_cleanLine(newLine(m_cleanSymbol, m_clean, this))
{
    setFixedWidth(rowWidth);
    layOut();
    setFonts();
    render();
    observe();
}

QString RepoStatusView::text() const
{
    QStringList said{m_vm->name()};
    if (m_vm->isRepo()) {
        said += tr("branch %1").arg(m_vm->branchString().value_or(QStringLiteral("?")));
        if (m_vm->statusString())
            said += QString(*m_vm->statusString()).replace(QChar::Nbsp, u' ');
        else if (m_showCleanRepoStatus.value())
            said += tr("Repo is clean");
    }
    return said.join(QStringLiteral(", "));
}

QSize RepoStatusView::sizeHint() const
{
    return {rowWidth, layout()->heightForWidth(rowWidth)};
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
    // As high with a logo as with the symbol, which is a letter of its font.
    auto* const nameLine = newLine(m_picture, m_name, this);
    nameLine->setMinimumHeight(nameLineHeight);
    column->addWidget(nameLine);
    column->addWidget(m_branchLine);
    column->addWidget(m_summary);
    column->addWidget(m_cleanLine);

    // The spinner turns inside the trailing inset: were it to take room from the text, a long
    // summary would break differently, and the row jump, at every refresh.
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(sideInset, endInset, 0, endInset);
    row->setSpacing(0);
    row->addLayout(column, 1);
    row->addWidget(m_spinner, 0, Qt::AlignVCenter);
    static_assert(sideInset == 20, "the spinner is as wide as the inset");
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
    follow(&RepoViewModel::isLoadingChanged, &RepoStatusView::renderSpinner);
    for (const auto* setting : {&m_onlyIcons, &m_showCleanRepoStatus}) {
        connect(setting, &BoundSetting::valueChanged, this, [this] {
            renderStatus();
            Q_EMIT textChanged();
        });
    }
}

void RepoStatusView::setFonts()
{
    m_name->setFont(withSymbols(font()));
    m_picture->setFont(fontWithSymbols(font(), pictureSize));
    m_branchSymbol->setFont(fontWithSymbols(font(), branchFontSize));
    m_branch->setFont(fontWithSymbols(font(), branchFontSize));
    m_cleanSymbol->setFont(fontWithSymbols(font(), branchFontSize));
    m_clean->setFont(fontWithSymbols(font(), branchFontSize));
    m_summary->setFont(fontWithSymbols(font(), summaryFontSize));
}

void RepoStatusView::render()
{
    const QColor color = labelColor(palette());
    m_name->setSegments({{m_vm->name(), color}});
    if (m_vm->logo()) {
        m_picture->setFixedSize(pictureSize, pictureSize);
        m_picture->setScaledContents(true);
        m_picture->setPixmap(QPixmap::fromImage(*m_vm->logo()));
    } else {
        setSymbol(*m_picture, symbolNamed(u"folder.fill"), color);
    }
    renderBranch();
    renderStatus();
    renderSpinner();
}

void RepoStatusView::renderBranch()
{
    const QColor color = m_vm->isMainBranch() ? secondaryLabelColor(palette())
                                              : colors::yellow(appearanceOf(palette()));
    setSymbol(*m_branchSymbol, symbolNamed(u"arrow.triangle.branch"), color);
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
        setSymbol(*m_cleanSymbol, symbolNamed(u"checkmark.seal.fill"), color);
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
