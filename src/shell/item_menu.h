// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QMenu>
#include <QStringList>

namespace tarnwick {

class TrayHost;

/// The menu of the status item's right click. Some desktops show nothing else on any click, so it
/// also tells how the repositories are: one entry for each of the first 20.
///
/// It may be shown by another process, to which every change of an entry is sent; an entry that
/// stays as it is costs nothing.
class ItemMenu : public QMenu
{
    Q_OBJECT

public:
    /// `host` is what shows it, and outlives it.
    explicit ItemMenu(const TrayHost& host, QWidget* parent = nullptr);

    /// A text for each repository.
    void setRepositories(const QStringList& texts);

Q_SIGNALS:
    void menuRequested();
    /// The menu, with the panel of the repository at this index.
    void panelRequested(qsizetype repository);
    void refreshAllRequested();
    void fetchAllRequested();
    void settingsRequested();

private:
    void showTexts(const QStringList& texts);
    void addEntry(const QString& text);

    const TrayHost& m_host;
    QStringList m_texts;
    QList<QAction*> m_entries;
    QAction* m_entriesEnd;
};

} // namespace tarnwick
