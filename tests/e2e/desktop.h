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
    QString description;
};

/// The program as installed, started on the current display with preferences of its own and in an
/// environment changed by the given variables. It ends with this object.
class RunningProgram
{
public:
    explicit RunningProgram(const QJsonObject& preferences = {},
                            const QMap<QString, QString>& variables = {},
                            const QString& program = QStringLiteral(TARNWICK_PROGRAM));
    ~RunningProgram();

    /// What it has printed so far.
    [[nodiscard]] QStringList printedLines();
    [[nodiscard]] qsizetype printedCount(const QString& start);
    /// What its preferences file holds now.
    [[nodiscard]] QJsonObject preferences() const;

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

/// Waits until something of the name has come up and rests; null if nothing does.
[[nodiscard]] Accessible appeared(const QString& start);

/// Clicks the status item, once it is there, until its menu is open.
[[nodiscard]] bool openMenu();
/// Opens the menu, and in it the panel of the row that has this name.
[[nodiscard]] bool openPanel(const QString& row);
/// Clicks what has this name, once it is there.
[[nodiscard]] bool clickNamed(const QString& start);
/// Waits until a window of the title is on the screen and has the keyboard.
[[nodiscard]] bool windowIsActive(const QString& title);

/// Runs xdotool, which moves the real pointer and presses real keys.
void xdotool(const QStringList& arguments);
void movePointer(const QList<QPoint>& path);
void click(QPoint position, int button = 1);
void key(const QString& name);

[[nodiscard]] QImage screenshot();

/// Runs a program of the project's scripts folder; returns what it printed.
QString runScript(const QString& name, const QStringList& arguments = {});

} // namespace tarnwick::test
