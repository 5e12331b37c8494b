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

/// The content of the "Add links" window: the links of one repository as plain text, one in a line
/// ("url @@ title"). Loads the stored text each time it is shown, and stores what stands in the
/// editor, unread, when the user saves; closed in any other way it stores nothing.
class LinkSettingsView : public QWidget
{
    Q_OBJECT

public:
    /// The store and the host outlive the view; the record is kept by it.
    LinkSettingsView(std::shared_ptr<RepoViewModel> forModel, const QString& text,
                     PreferencesStore& store, SettingsHost& host, QWidget* parent = nullptr);

    void loadLinks();
    /// Then rebuilds the status menu and closes the key window.
    void saveLinks();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void layOut();

    const std::shared_ptr<RepoViewModel> m_forModel;
    PreferencesStore& m_store;
    SettingsHost& m_host;
    QPlainTextEdit* m_editor;
};

} // namespace tarnwick
