// SPDX-License-Identifier: MIT
#include "views/panel/actions_view.h"

#include "model/command_runner.h"
#include "model/diagnostics.h"
#include "model/repo_view_model.h"
#include "views/panel/divider.h"
#include "views/panel/plain_button.h"

#include <QDesktopServices>
#include <QEvent>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>

namespace tarnwick {

namespace {

constexpr int panelWidth = 300;
constexpr int verticalInset = 7;

QUrl parsedUrl(const QString& text)
{
    QUrl url(text);
    if (!url.isValid())
        stopProcess();
    return url;
}

void openWithDiagnostic(const QUrl& url)
{
    writeDiagnosticLine(url.toString(QUrl::FullyEncoded));
    QDesktopServices::openUrl(url);
}

} // namespace

ActionsView::ActionsView(std::shared_ptr<RepoViewModel> vm, QList<AppEntry> appEntries,
                         const CommandRunner& runner, QWidget* parent)
    : QWidget(parent)
    , m_vm(std::move(vm))
    , m_appEntries(std::move(appEntries))
    , m_runner(runner)
    , m_column(new QVBoxLayout(this))
{
    setFixedWidth(panelWidth);
    m_column->setContentsMargins(0, verticalInset, 0, verticalInset);
    m_column->setSpacing(0);
    observe();
}

void ActionsView::render()
{
    std::vector<PanelItem> items = panelItems(*m_vm, m_appEntries, palette());
    const auto [oldFirst, newFirst] = std::ranges::mismatch(m_items, items);
    const auto [oldLast, newLast] =
        std::mismatch(m_items.rbegin(), std::make_reverse_iterator(oldFirst), items.rbegin(),
                      std::make_reverse_iterator(newFirst));

    const auto start = static_cast<int>(oldFirst - m_items.begin());
    for (auto count = oldLast.base() - oldFirst; count > 0; --count) {
        const std::unique_ptr<QLayoutItem> removed(m_column->takeAt(start));
        removed->widget()->hide();
        removed->widget()->deleteLater();
    }
    for (auto item = newFirst; item != newLast.base(); ++item)
        m_column->insertWidget(start + static_cast<int>(item - newFirst), newWidget(*item));
    m_items = std::move(items);
}

QSize ActionsView::sizeHint() const
{
    return {panelWidth, m_column->heightForWidth(panelWidth)};
}

void ActionsView::changeEvent(QEvent* event)
{
    // The colours of texts and symbols are settled when an entry is made.
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) {
        while (const std::unique_ptr<QLayoutItem> gone{m_column->takeAt(0)})
            gone->widget()->deleteLater();
        m_items.clear();
        scheduleRender();
    }
    QWidget::changeEvent(event);
}

void ActionsView::observe()
{
    const RepoViewModel* const vm = m_vm.get();
    connect(vm, &RepoViewModel::isRepoChanged, this, &ActionsView::scheduleRender);
    connect(vm, &RepoViewModel::isLoadingChanged, this, &ActionsView::scheduleRender);
    connect(vm, &RepoViewModel::statusStringChanged, this, &ActionsView::scheduleRender);
    connect(vm, &RepoViewModel::branchStringChanged, this, &ActionsView::scheduleRender);
    connect(vm, &RepoViewModel::remoteUrlChanged, this, &ActionsView::scheduleRender);
}

void ActionsView::scheduleRender()
{
    if (!isVisible() || m_isRenderScheduled)
        return;
    m_isRenderScheduled = true;
    // One query changes several fields.
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_isRenderScheduled = false;
            if (isVisible())
                render();
        },
        Qt::QueuedConnection);
}

QWidget* ActionsView::newWidget(const PanelItem& item)
{
    if (item.kind == PanelItem::Kind::Divider)
        return new Divider(this);
    auto* const button = new PlainButton(item.button, this);
    connect(button, &QAbstractButton::clicked, this, [this, item] { perform(item); });
    return button;
}

void ActionsView::perform(const PanelItem& item)
{
    switch (item.kind) {
    case PanelItem::Kind::Divider:
        break;
    case PanelItem::Kind::Project:
        openWithDiagnostic(QUrl::fromLocalFile(item.target));
        break;
    case PanelItem::Kind::Finder:
    case PanelItem::Kind::ChangedFile:
    case PanelItem::Kind::Overflow:
        revealInFinder(item.target, m_runner);
        break;
    case PanelItem::Kind::Terminal:
        m_vm->startTerminal();
        break;
    case PanelItem::Kind::Application:
        m_vm->openInApp(item.target);
        break;
    case PanelItem::Kind::Remote:
        QDesktopServices::openUrl(parsedUrl(item.target));
        break;
    case PanelItem::Kind::Push:
        m_vm->push();
        break;
    case PanelItem::Kind::Pull:
        m_vm->pull();
        break;
    case PanelItem::Kind::Stash:
        m_vm->stash();
        m_vm->refreshStatusInBackground();
        break;
    case PanelItem::Kind::Link:
        openWithDiagnostic(parsedUrl(item.target));
        break;
    case PanelItem::Kind::AddLink:
        writeDiagnosticLine(QStringLiteral("asd"));
        m_vm->delegate()->openLinkEditor(m_vm);
        break;
    }
}

} // namespace tarnwick
