// SPDX-License-Identifier: MIT
#include "model/repo_overview.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace tarnwick {

using namespace std::chrono_literals;

namespace {

template <class Predicate>
int countOf(const RepoViewModels& models, Predicate matches)
{
    return static_cast<int>(
        std::ranges::count_if(models, [&](const auto& record) { return matches(*record); }));
}

bool isUnclean(const RepoViewModel& record)
{
    return record.isRepo() && record.statusString();
}

} // namespace

RepoOverview::RepoOverview(QObject* parent)
    : QObject(parent)
{
    m_announcement.setSingleShot(true);
    m_announcement.setInterval(100ms);
    connect(&m_announcement, &QTimer::timeout, this, &RepoOverview::changed);
}

void RepoOverview::setModels(RepoViewModels models)
{
    for (const auto& record : m_models)
        record->disconnect(this);
    m_models = std::move(models);
    const auto announce = [this] {
        if (!m_announcement.isActive())
            m_announcement.start();
    };
    for (const auto& record : m_models) {
        connect(record.get(), &RepoViewModel::isRepoChanged, this, announce);
        connect(record.get(), &RepoViewModel::branchStringChanged, this, announce);
        connect(record.get(), &RepoViewModel::statusStringChanged, this, announce);
        connect(record.get(), &RepoViewModel::isAwaitedChanged, this, announce);
    }
    Q_EMIT changed();
}

QString RepoOverview::text() const
{
    const auto watched = static_cast<int>(m_models.size());
    if (watched == 0)
        return tr("no repositories watched");
    const int unclean = countOf(m_models, isUnclean);
    QString text =
        watched == 1 ? tr("1 repository watched") : tr("%n repositories watched", nullptr, watched);
    text += unclean == 0 ? tr(", all clean") : tr(", %n not clean", nullptr, unclean);
    const QString progress = progressText();
    return progress.isEmpty() ? text : tr("%1; %2").arg(text, progress);
}

QString RepoOverview::progressText() const
{
    const int awaited =
        countOf(m_models, [](const auto& record) { return record.isRepo() && record.isAwaited(); });
    return awaited == 0 ? QString() : tr("%n still being asked", nullptr, awaited);
}

QString briefText(const RepoViewModel& record)
{
    QStringList parts{record.name()};
    if (record.isRepo() && record.branchString())
        parts += *record.branchString();
    if (isUnclean(record))
        parts += QString(*record.statusString()).replace(QChar::Nbsp, u' ');
    return parts.join(QStringLiteral(", "));
}

} // namespace tarnwick
