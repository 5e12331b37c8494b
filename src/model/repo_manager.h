// SPDX-License-Identifier: MIT
#pragma once

#include "model/repo_view_model.h"

#include <QObject>

#include <functional>
#include <memory>

namespace tarnwick {

class PreferencesStore;

/// The ordered list of watched repositories. The text in the preferences (the directories joined by
/// line feeds, without any escaping) is the only source of truth: an edit changes `models`, and
/// `save()` then writes the text and makes every record anew from it. Nothing is checked, nothing
/// is dropped, and a directory may stand in the list twice. Main thread only.
class RepoManager : public QObject
{
    Q_OBJECT

public:
    using DelegateSource = std::function<std::shared_ptr<RepoViewModelDelegate>()>;

    /// Loads the list at once. `delegateSource` gives each record its delegate; the process stops
    /// if it has none to give.
    RepoManager(PreferencesStore& store, RepoServices services, DelegateSource delegateSource,
                QObject* parent = nullptr);

    [[nodiscard]] const RepoViewModels& models() const { return m_models; }
    void setModels(RepoViewModels models);

    /// Puts the directory at the top, as it was typed, and saves.
    void add(const QString& dir, std::shared_ptr<RepoViewModelDelegate> delegate);
    /// Takes out every record of the same directory and saves.
    void remove(const RepoViewModel& record);

    /// Returns when the list is on the disk and every record is rebuilt, which blocks for their
    /// branch queries.
    void save();
    [[nodiscard]] RepoViewModels loadRepos() const;

Q_SIGNALS:
    void modelsChanged();

private:
    PreferencesStore& m_store;
    const RepoServices m_services;
    const DelegateSource m_delegateSource;
    RepoViewModels m_models;
};

} // namespace tarnwick
