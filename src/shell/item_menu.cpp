// SPDX-License-Identifier: MIT
#include "shell/item_menu.h"

#include "platform/tray_host.h"

#include <QCoreApplication>

namespace tarnwick {

namespace {

constexpr qsizetype maxRepositories = 20;

} // namespace

ItemMenu::ItemMenu(const TrayHost& host, QWidget* parent)
    : QMenu(parent)
    , m_host(host)
{
    connect(addAction(tr("Show repositories")), &QAction::triggered, this,
            &ItemMenu::menuRequested);
    m_entriesEnd = addSeparator();
    connect(addAction(tr("Refresh all")), &QAction::triggered, this,
            &ItemMenu::refreshAllRequested);
    connect(addAction(tr("Fetch all")), &QAction::triggered, this, &ItemMenu::fetchAllRequested);
    connect(addAction(tr("Settings")), &QAction::triggered, this, &ItemMenu::settingsRequested);
    addSeparator();
    connect(addAction(tr("Quit")), &QAction::triggered, qApp, &QCoreApplication::quit);
    // How a text is taken literally is known once there is a host.
    connect(&m_host, &TrayHost::appeared, this, [this] { showTexts(m_texts); });
}

void ItemMenu::setRepositories(const QStringList& texts)
{
    m_texts = texts.first(qMin(texts.size(), maxRepositories));
    if (texts.size() > maxRepositories)
        m_texts += tr("and %n more", nullptr, static_cast<int>(texts.size() - maxRepositories));
    showTexts(m_texts);
}

void ItemMenu::showTexts(const QStringList& texts)
{
    while (m_entries.size() > texts.size())
        delete m_entries.takeLast();
    for (qsizetype i = 0; i < texts.size(); ++i) {
        const QString text = m_host.literalMenuText(texts[i]);
        if (i < m_entries.size())
            m_entries[i]->setText(text);
        else
            addEntry(text);
    }
}

void ItemMenu::addEntry(const QString& text)
{
    auto* const entry = new QAction(text, this);
    connect(entry, &QAction::triggered, this, [this, index = m_entries.size()] {
        if (index < maxRepositories)
            Q_EMIT panelRequested(index);
        else
            Q_EMIT menuRequested();
    });
    insertAction(m_entriesEnd, entry);
    m_entries += entry;
}

} // namespace tarnwick
