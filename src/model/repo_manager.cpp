// SPDX-License-Identifier: MIT
#include "model/repo_manager.h"

#include "model/diagnostics.h"
#include "model/preference_keys.h"
#include "model/preferences_store.h"

namespace tarnwick {

RepoManager::RepoManager(PreferencesStore& store, RepoServices services,
                         DelegateSource delegateSource, QObject* parent)
    : QObject(parent)
    , m_store(store)
    , m_services(services)
    , m_delegateSource(std::move(delegateSource))
    , m_models(loadRepos())
{}

void RepoManager::setModels(RepoViewModels models)
{
    m_models = std::move(models);
    Q_EMIT modelsChanged();
}

void RepoManager::add(const QString& dir, std::shared_ptr<RepoViewModelDelegate> delegate)
{
    RepoViewModels models = m_models;
    models.insert(models.begin(), RepoViewModel::create(dir, std::move(delegate), m_services));
    setModels(std::move(models));
    save();
}

void RepoManager::remove(const RepoViewModel& record)
{
    RepoViewModels models = m_models;
    std::erase_if(models, [&record](const auto& model) { return *model == record; });
    setModels(std::move(models));
    save();
}

void RepoManager::save()
{
    QStringList dirs;
    for (const auto& model : m_models)
        dirs += model->dir();
    const QString text = dirs.join(u'\n');

    m_store.setObject(text, preferences::repos);
    m_store.synchronize();
    writeDiagnosticLine(text);
    setModels(loadRepos());
}

RepoViewModels RepoManager::loadRepos() const
{
    const QString text = m_store.stringForKey(preferences::repos).value_or(QString());
    RepoViewModels models;
    if (text.isEmpty())
        return models;
    const QStringList dirs = text.split(u'\n');
    for (QString dir : dirs) {
        if (dir.endsWith(u'/'))
            dir.chop(1);
        auto delegate = m_delegateSource();
        if (!delegate)
            stopProcess();
        models.push_back(RepoViewModel::create(dir, std::move(delegate), m_services));
    }
    return models;
}

} // namespace tarnwick
