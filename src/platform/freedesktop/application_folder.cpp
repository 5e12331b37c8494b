// SPDX-License-Identifier: MIT
#include "platform/freedesktop/application_folder.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <array>

namespace tarnwick {

namespace {

constexpr auto dataLocation = QStandardPaths::GenericDataLocation;

QStringList withDataFolders(QStringList paths, const QString& folder)
{
    paths += QStandardPaths::locateAll(dataLocation, folder, QStandardPaths::LocateDirectory);
    paths.removeDuplicates();
    return paths;
}

/// Entries are not supposed to name a theme's icon with its suffix, but some do.
QString themeName(const QString& icon)
{
    constexpr std::array suffixes{u".png", u".svg", u".xpm"};
    const bool suffixed = std::any_of(suffixes.begin(), suffixes.end(), [&](const auto* suffix) {
        return icon.endsWith(QStringView(suffix));
    });
    return suffixed ? icon.chopped(4) : icon;
}

} // namespace

void searchIconsOfApplications()
{
    const QString base = QStringLiteral("hicolor");
    QIcon::setFallbackThemeName(base);
    if (QIcon::themeName().isEmpty())
        QIcon::setThemeName(base);
    QIcon::setThemeSearchPaths(withDataFolders(QIcon::themeSearchPaths(), QStringLiteral("icons")));
    QIcon::setFallbackSearchPaths(
        withDataFolders(QIcon::fallbackSearchPaths(), QStringLiteral("pixmaps")));
}

QString FreedesktopApplicationFolder::path() const
{
    const QStringList folders = desktopEntryFolders(m_place);
    const auto readable = std::find_if(folders.begin(), folders.end(), [](const QString& folder) {
        return QDir(folder).isReadable();
    });
    return (readable == folders.end() ? folders.value(0) : *readable) + u'/';
}

std::optional<QStringList> FreedesktopApplicationFolder::entries() const
{
    const Listing& current = listing();
    return current.succeeded ? std::optional(current.iconByName.keys()) : std::nullopt;
}

bool FreedesktopApplicationFolder::contains(const QString& name) const
{
    return listing().iconByName.contains(name);
}

QIcon FreedesktopApplicationFolder::icon(const QString& name) const
{
    const QString icon = listing().iconByName.value(name);
    if (icon.isEmpty())
        return {};
    if (QDir::isAbsolutePath(icon))
        return QFileInfo::exists(icon) ? QIcon(icon) : QIcon();
    return QIcon::fromTheme(themeName(icon));
}

const FreedesktopApplicationFolder::Listing& FreedesktopApplicationFolder::listing() const
{
    if (m_listing)
        return *m_listing;
    const auto entries = m_reader.shownEntries();
    m_listing = Listing{entries.has_value(), {}};
    for (const DesktopEntry& entry : entries.value_or(QList<DesktopEntry>()))
        m_listing->iconByName.insert(entry.name + QStringLiteral(".app"), entry.icon);
    QMetaObject::invokeMethod(
        &m_resetContext, [this] { m_listing.reset(); }, Qt::QueuedConnection);
    return *m_listing;
}

} // namespace tarnwick
