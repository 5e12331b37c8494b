// SPDX-License-Identifier: MIT
#include "e2e/outside_world.h"

#include "support/temporary_repository.h"

#include <csignal>

namespace tarnwick::test {

namespace {

const QString fileManager = u"org.freedesktop.FileManager1"_s;

void writeProgram(const QString& path, const QByteArray& lines)
{
    writeFile(path, "#!/bin/sh\n" + lines);
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

QStringList linesOf(const QString& path, char separator)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll()).split(QLatin1Char(separator), Qt::SkipEmptyParts);
}

} // namespace

OutsideWorld::OutsideWorld()
{
    const QByteArray root = m_root.path().toUtf8();
    // Each note is ended by a byte that no argument can hold.
    writeProgram(path(u"bin/note"_s),
                 "{ printf '<%s>' \"$@\"; printf '\\0'; } >> " + root + "/started\n");
    writeProgram(path(u"bin/xdg-terminal-exec"_s), root + "/bin/note terminal \"$@\"\necho $$ >> " +
                                                       root + "/terminals\nexec xterm -e \"$@\"\n");
    const auto entry = [&](const QByteArray& name, const QByteArray& arguments) {
        writeFile(path(u"data/applications/%1.desktop"_s.arg(QString::fromUtf8(name))),
                  "[Desktop Entry]\nType=Application\nName=" + name + "\nExec=" + root +
                      "/bin/note " + arguments + "\n");
    };
    entry("Recorder", "app --open %F --name %c end");
    entry("Browser", "browser %u");
    writeFile(path(u"data/applications/mimeapps.list"_s),
              "[Default Applications]\nx-scheme-handler/http=Browser.desktop\n"
              "x-scheme-handler/https=Browser.desktop\ninode/directory=Recorder.desktop\n"
              // What a test's package is, by its content or by its name.
              "text/plain=Recorder.desktop\n"
              "application/vnd.debian.binary-package=Recorder.desktop\n");
    QVERIFY(QDir(m_root.path()).mkpath(u"home"_s));

    QVERIFY(m_bus.registerObject(u"/org/freedesktop/FileManager1"_s, this,
                                 QDBusConnection::ExportAllSlots));
    QVERIFY(m_bus.registerService(fileManager));
}

OutsideWorld::~OutsideWorld()
{
    m_bus.unregisterService(fileManager);
    m_bus.unregisterObject(u"/org/freedesktop/FileManager1"_s);
    for (const int pid : terminals())
        ::kill(pid, SIGTERM);
}

QMap<QString, QString> OutsideWorld::variables() const
{
    // A desktop that is known has openers of its own, which go by other settings.
    return {{u"XDG_CURRENT_DESKTOP"_s, u"X-Test"_s},
            {u"HOME"_s, path(u"home"_s)},
            {u"XDG_DATA_HOME"_s, path(u"data"_s)},
            {u"PATH"_s, path(u"bin:"_s) + qEnvironmentVariable("PATH")}};
}

QStringList OutsideWorld::started() const
{
    return linesOf(path(u"started"_s), '\0');
}

qsizetype OutsideWorld::openTerminals() const
{
    const QList<int> all = terminals();
    return std::count_if(all.begin(), all.end(), [](int pid) { return ::kill(pid, 0) == 0; });
}

void OutsideWorld::ShowItems(const QStringList& uris, const QString& /*startupId*/)
{
    for (const QString& uri : uris)
        m_revealed += QUrl::fromEncoded(uri.toUtf8(), QUrl::StrictMode).toLocalFile();
}

QList<int> OutsideWorld::terminals() const
{
    QList<int> pids;
    for (const QString& line : linesOf(path(u"terminals"_s), '\n'))
        pids += line.toInt();
    return pids;
}

} // namespace tarnwick::test
