// SPDX-License-Identifier: MIT
#include "bench.h"

#include "model/preference_keys.h"
#include "waiting.h"

#include <QDir>

namespace tarnwick::bench {

Bench::Bench(QString repositories)
    : m_repositories(std::move(repositories))
    , m_menu(std::make_shared<ApplicationMenu>(m_platform, m_bundle, m_runner, m_store, m_settings))
{}

QStringList Bench::dirs(qsizetype count) const
{
    const QDir list(path(QStringLiteral("list")));
    QStringList dirs;
    for (const QString& name : list.entryList(QDir::Dirs | QDir::NoDotAndDotDot).mid(0, count))
        dirs += list.filePath(name);
    return dirs;
}

std::unique_ptr<RepoManager> Bench::load(const QStringList& dirs)
{
    m_store.setObject(dirs.join(u'\n'), preferences::repos);
    return std::make_unique<RepoManager>(
        m_store, RepoServices{m_runner, m_queue, *m_platform.terminal, m_store},
        [this] { return m_menu; });
}

std::unique_ptr<RepoManager> Bench::loaded(const QStringList& dirs)
{
    auto manager = load(dirs);
    Published(manager->models()).wait();
    return manager;
}

} // namespace tarnwick::bench
