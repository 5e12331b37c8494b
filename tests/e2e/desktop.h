// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

namespace tarnwick::test {

/// One thing on the screen as assistive technology sees it.
struct Accessible
{
    QRect area;
    QString role;
    QString name;
};

/// The program as installed, started on the current display with preferences of its own. It ends
/// with this object.
class RunningProgram
{
public:
    explicit RunningProgram(const QJsonObject& preferences = {});
    ~RunningProgram();

    /// What it has printed so far.
    [[nodiscard]] QStringList printedLines();
    [[nodiscard]] qsizetype printedCount(const QString& start);

private:
    QTemporaryDir m_configHome;
    QProcess m_process;
    QString m_printed;
};

/// Where the program's item stands in the status bar; null until it stands there.
[[nodiscard]] QPoint statusItemPosition();

[[nodiscard]] QList<Accessible> accessibleTree();
/// The rows of the open menu from top to bottom, by their names; empty while it is closed.
[[nodiscard]] QStringList menuRows();
[[nodiscard]] Accessible accessibleNamed(const QString& start);

/// Clicks the status item, once it is there, until its menu is open.
[[nodiscard]] bool openMenu();

/// Runs xdotool, which moves the real pointer and presses real keys.
void xdotool(const QStringList& arguments);
void click(QPoint position, int button = 1);
void key(const QString& name);

[[nodiscard]] QImage screenshot();

/// Runs a program of the project's scripts folder; returns what it printed.
QString runScript(const QString& name, const QStringList& arguments = {});

} // namespace tarnwick::test
