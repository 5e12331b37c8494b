// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWidget>

#include <memory>

class QPlainTextEdit;

namespace tarnwick {

class PreferencesStore;
class RepoViewModel;
class SettingsHost;

/// The content of the "Add links" window: the links of one repository as plain text, one per line
/// ("url @@ title"). Loads the stored text each time it is shown. Stores the text, without checking
/// it, only in `saveLinks()`.
class LinkSettingsView : public QWidget
{
    Q_OBJECT

public:
    /// Store and host outlive the view, which shares the ownership of the record.
    LinkSettingsView(std::shared_ptr<RepoViewModel> forModel, const QString& text,
                     PreferencesStore& store, SettingsHost& host, QWidget* parent = nullptr);

    void loadLinks();
    /// Also rebuilds the status menu and closes the key window.
    void saveLinks();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void createLayout();

    const std::shared_ptr<RepoViewModel> m_forModel;
    PreferencesStore& m_store;
    SettingsHost& m_host;
    QPlainTextEdit* m_editor;
};

} // namespace tarnwick
