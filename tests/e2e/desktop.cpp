// SPDX-License-Identifier: MIT
#include "e2e/desktop.h"

#include "support/temporary_repository.h"

#include <QFile>
#include <QJsonDocument>
#include <QTest>

namespace tarnwick::test {

namespace {

constexpr int timeoutMs = 20000;

QByteArray outputOf(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(timeoutMs))
        qWarning() << program << process.errorString();
    return process.exitCode() == 0 ? process.readAllStandardOutput() : QByteArray();
}

} // namespace

RunningProgram::RunningProgram(const QJsonObject& preferences,
                               const QMap<QString, QString>& variables, const QString& program)
{
    writeFile(m_configHome.filePath(u"tarnwick/preferences.json"_s),
              QJsonDocument(preferences).toJson());
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_CONFIG_HOME"_s, m_configHome.path());
    for (const auto& [name, value] : variables.asKeyValueRange())
        environment.insert(name, value);
    m_process.setProcessEnvironment(environment);
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(QStringLiteral(TARNWICK_SCRIPTS "/in_session.sh"), {program});
    QVERIFY(m_process.waitForStarted());
}

RunningProgram::~RunningProgram()
{
    if (m_process.state() != QProcess::Running)
        QTest::qFail("The program ended by itself", __FILE__, __LINE__);
    m_process.terminate();
    m_process.waitForFinished(timeoutMs);
}

QStringList RunningProgram::printedLines()
{
    m_process.waitForReadyRead(1);
    m_printed += QString::fromUtf8(m_process.readAllStandardOutput());
    return m_printed.split(u'\n');
}

qsizetype RunningProgram::printedCount(const QString& start)
{
    return printedLines()
        .filter(QRegularExpression(u'^' + QRegularExpression::escape(start)))
        .size();
}

QJsonObject RunningProgram::preferences() const
{
    QFile file(m_configHome.filePath(u"tarnwick/preferences.json"_s));
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object()
                                          : QJsonObject();
}

QPoint statusItemPosition()
{
    const QStringList parts = runScript(u"status_item_position.sh"_s).simplified().split(u' ');
    return parts.size() == 2 ? QPoint(parts[0].toInt(), parts[1].toInt()) : QPoint();
}

QList<Accessible> accessibleTree()
{
    const QString printed = runScript(u"accessible_tree.py"_s, {u"Tarnwick"_s});
    QList<Accessible> tree;
    for (const QString& line : printed.split(u'\n', Qt::SkipEmptyParts)) {
        const QStringList parts = line.split(u'\t');
        tree.append({{parts[0].toInt(), parts[1].toInt(), parts[2].toInt(), parts[3].toInt()},
                     parts[4],
                     parts.value(5),
                     parts.value(6)});
    }
    return tree;
}

QStringList menuRows()
{
    QStringList rows;
    for (const Accessible& item : accessibleTree()) {
        if (item.role == u"menu item")
            rows += item.name;
    }
    return rows;
}

Accessible accessibleNamed(const QString& start)
{
    for (const Accessible& item : accessibleTree()) {
        if (item.name.startsWith(start))
            return item;
    }
    return {};
}

Accessible appeared(const QString& start)
{
    Accessible before;
    Accessible now;
    const auto rests = [&] {
        before = std::exchange(now, accessibleNamed(start));
        return !now.name.isEmpty() && now.area == before.area;
    };
    return QTest::qWaitFor(rests, timeoutMs) ? now : Accessible();
}

bool openMenu()
{
    const auto itemIsThere = [] { return !statusItemPosition().isNull(); };
    const auto menuIsOpen = [] { return !accessibleNamed(u"Refresh all"_s).name.isEmpty(); };
    // A click on an item that has only just been placed may be lost.
    return QTest::qWaitFor(itemIsThere, timeoutMs) &&
           QTest::qWaitFor(
               [&] {
                   if (!menuIsOpen())
                       click(statusItemPosition());
                   return QTest::qWaitFor(menuIsOpen, 1500);
               },
               timeoutMs);
}

bool openPanel(const QString& row)
{
    if (!openMenu())
        return false;
    movePointer({appeared(row).area.center()});
    return !appeared(u"Show in Finder"_s).name.isEmpty();
}

bool clickNamed(const QString& start)
{
    const Accessible item = appeared(start);
    click(item.area.center());
    return !item.name.isEmpty();
}

bool windowIsActive(const QString& title)
{
    return QTest::qWaitFor(
        [&] {
            return outputOf(u"xdotool"_s, {u"getactivewindow"_s, u"getwindowname"_s}).trimmed() ==
                   title.toUtf8();
        },
        timeoutMs);
}

void xdotool(const QStringList& arguments)
{
    outputOf(u"xdotool"_s, arguments);
}

void movePointer(const QList<QPoint>& path)
{
    QStringList arguments;
    for (const QPoint point : path)
        arguments += {u"mousemove"_s, QString::number(point.x()), QString::number(point.y())};
    xdotool(arguments);
}

void click(QPoint position, int button)
{
    xdotool({u"mousemove"_s, QString::number(position.x()), QString::number(position.y()),
             u"click"_s, QString::number(button)});
}

void key(const QString& name)
{
    xdotool({u"key"_s, name});
}

QImage screenshot()
{
    return QImage::fromData(outputOf(u"import"_s, {u"-window"_s, u"root"_s, u"png:-"_s}), "PNG");
}

QString runScript(const QString& name, const QStringList& arguments)
{
    return QString::fromUtf8(outputOf(QStringLiteral(TARNWICK_SCRIPTS "/") + name, arguments));
}

} // namespace tarnwick::test
