// SPDX-License-Identifier: MIT
#include "views/panel/panel_items.h"

#include "model/repo_view_model.h"
#include "views/colors.h"
#include "views/panel/file_line_entry.h"

#include <QCoreApplication>

namespace tarnwick {

namespace {

using Kind = PanelItem::Kind;

constexpr qsizetype maxChangedFiles = 8;

class PanelItems
{
    Q_DECLARE_TR_FUNCTIONS(PanelItems)

public:
    PanelItems(const RepoViewModel& vm, const QPalette& palette)
        : m_vm(vm)
        , m_palette(palette)
    {}

    void addProjects()
    {
        const QList<ProjectFile> projects = m_vm.projectFiles();
        for (const ProjectFile& project : projects)
            add(Kind::Project, project.image, project.title, project.path);
        if (!projects.isEmpty())
            addDivider();
    }

    void addOpeners(const QList<AppEntry>& appEntries)
    {
        add(Kind::Finder, QStringLiteral("Finder"), tr("Show in Finder"), m_vm.dir());
        m_items.back().button.sub = m_vm.dir();
        add(Kind::Terminal, QStringLiteral("Terminal"), tr("Start terminal here"));
        for (const AppEntry& entry : appEntries)
            m_items.push_back(
                {Kind::Application,
                 {.img = {.icon = entry.image}, .title = tr("Open in %1").arg(entry.title)},
                 entry.name});
        addDivider();
    }

    void addGit()
    {
        if (!m_vm.isRepo())
            return;
        if (m_vm.remoteUrl()) {
            addSmall(Kind::Remote, QStringLiteral("link"), tr("Open repo on remote"),
                     *m_vm.remoteUrl());
            addSmall(Kind::Push, QStringLiteral("arrow.up"), tr("Push"));
            addSmall(Kind::Pull, QStringLiteral("arrow.down"), tr("Pull"));
        }
        addSmall(Kind::Stash, QStringLiteral("archivebox.fill"), tr("Stash"));
        addDivider();
    }

    void addLinks()
    {
        for (const RepoLink& link : m_vm.links()) {
            const bool isFolder = link.link.startsWith(u"file://");
            addSmall(Kind::Link, isFolder ? QStringLiteral("folder") : QStringLiteral("link"),
                     link.title, link.link);
        }
        addSmall(Kind::AddLink, QStringLiteral("plus"), tr("add link"));
    }

    void addChangedFiles()
    {
        const qsizetype count = m_vm.changedFileCount();
        if (count == 0)
            return;
        addDivider();
        for (const QString& line : m_vm.changedFiles(maxChangedFiles)) {
            const FileLineEntry entry = fileLineEntry(line, appearanceOf(m_palette));
            addSmall(Kind::ChangedFile, entry.symbol, entry.title, m_vm.dir() + u'/' + entry.path);
            m_items.back().button.color = entry.color;
        }
        if (count > maxChangedFiles) {
            const auto more = static_cast<int>(count - maxChangedFiles);
            add(Kind::Overflow, {}, tr("... %n more", nullptr, more), m_vm.dir());
            m_items.back().button.color = secondaryLabelColor(m_palette);
        }
    }

    std::vector<PanelItem> take() { return std::move(m_items); }

private:
    void addDivider() { m_items.emplace_back(); }
    void add(Kind kind, const QString& symbol, const QString& title, const QString& target = {})
    {
        m_items.push_back({kind, {.img = {.symbol = symbol}, .title = title}, target});
    }
    void addSmall(Kind kind, const QString& symbol, const QString& title,
                  const QString& target = {})
    {
        add(kind, symbol, title, target);
        m_items.back().button.small = true;
    }

    const RepoViewModel& m_vm;
    const QPalette& m_palette;
    std::vector<PanelItem> m_items;
};

} // namespace

std::vector<PanelItem> panelItems(const RepoViewModel& vm, const QList<AppEntry>& appEntries,
                                  const QPalette& palette)
{
    PanelItems items(vm, palette);
    items.addProjects();
    items.addOpeners(appEntries);
    items.addGit();
    items.addLinks();
    items.addChangedFiles();
    return items.take();
}

} // namespace tarnwick
