// SPDX-License-Identifier: MIT
#include "platform/changed_values.h"
#include "platform/macos/bundle_layout.h"
#include "platform/macos/launch_agent.h"
#include "platform/macos/terminal_launcher.h"
#include "support/temporary_repository.h"
#include "support/test_registry.h"

#include <QJsonDocument>
#include <QXmlStreamReader>

using namespace tarnwick::test;

namespace {

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Keys and texts of a property list that is one dictionary; other values by the element's name.
QJsonObject propertyList(const QString& path)
{
    QXmlStreamReader xml(contentOf(path));
    QJsonObject values;
    xml.readNextStartElement();
    xml.readNextStartElement();
    while (xml.readNextStartElement()) {
        const QString key = xml.readElementText();
        xml.readNextStartElement();
        const QString type = xml.name().toString();
        const QString text = xml.readElementText();
        values.insert(key, type == u"string" ? text : type);
    }
    return xml.hasError() ? QJsonObject() : values;
}

} // namespace

class MacosTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void interpreterGetsTheScriptAlone()
    {
        const QString record = m_root.filePath(u"record"_s);
        const QString osascript = m_root.filePath(u"osascript"_s);
        writeFile(osascript,
                  "#!/bin/sh\nprintf '[%s]' \"$@\" > \"$0.new\"\nread line\n"
                  "printf '{%s}' \"$line\" >> \"$0.new\"\nmv \"$0.new\" \"${0%/*}/record\"\n");
        QVERIFY(QFile::setPermissions(osascript, QFile::ReadOwner | QFile::ExeOwner));
        const QString script =
            u"tell application \"Terminal\"\n    do script \"cd '/tmp/\u00e9 $x'\"\nend tell"_s;
        MacTerminalLauncher(osascript).open(
            {.dir = u"/tmp"_s, .command = {}, .appleScript = script});
        QTRY_COMPARE(contentOf(record), "[-e][" + script.toUtf8() + "]{}");
    }

    void launchAgentIsTheWholePropertyList()
    {
        const QString program = m_root.filePath(u"A & B <\"1\">/run"_s);
        writeFile(program, "");
        QVERIFY(QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner));
        const LoginItemFile agent =
            launchAgent(m_root.path(), u"x.y.Launcher"_s, program, u"x.y"_s);
        QVERIFY(agent.write());
        QCOMPARE(QString::fromUtf8(contentOf(m_root.filePath(u"x.y.Launcher.plist"_s))),
                 uR"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0">
<dict>
	<key>Label</key>
	<string>x.y.Launcher</string>
	<key>ProgramArguments</key>
	<array>
		<string>%1/A &amp; B &lt;&quot;1&quot;&gt;/run</string>
	</array>
	<key>AssociatedBundleIdentifiers</key>
	<string>x.y</string>
	<key>LimitLoadToSessionType</key>
	<string>Aqua</string>
	<key>RunAtLoad</key>
	<true/>
</dict>
</plist>
)"_s.arg(m_root.path()));
    }

    void bundlesFindEachOther()
    {
        const QString application = u"/Volumes/a b/Tarnwick.app"_s;
        const QString launcher = bundleLayout::launcherProgram(application + u"/Contents/MacOS"_s);
        QCOMPARE(launcher, application + u"/Contents/Library/LoginItems/TarnwickLauncher.app"
                                         "/Contents/MacOS/TarnwickLauncher"_s);
        QCOMPARE(bundleLayout::startArguments(QFileInfo(launcher).path()),
                 (QStringList{u"-g"_s, application}));
    }

    void informationIsThatOfOtherSystems()
    {
        const QJsonObject values = propertyList(u"" TARNWICK_PROPERTY_LISTS "/Info.plist"_s);
        const QJsonObject info =
            QJsonDocument::fromJson(contentOf(u"" TARNWICK_INFO ""_s)).object();
        QCOMPARE(info.size(), 5);
        QVERIFY(changedValues(values, info).isEmpty());
        QCOMPARE(values.value(u"LSUIElement"_s), u"true"_s);
        const QJsonObject launcher = propertyList(u"" TARNWICK_PROPERTY_LISTS "/Launcher.plist"_s);
        QCOMPARE(launcher.value(u"CFBundleIdentifier"_s), u"org.tarnwick.TarnwickLauncher"_s);
    }

    void onlyChangedValuesAreWritten()
    {
        const QJsonObject before{
            {u"same"_s, true}, {u"other"_s, 1}, {u"type"_s, u"true"_s}, {u"gone"_s, 2}};
        const QJsonObject after{
            {u"same"_s, true}, {u"other"_s, 2}, {u"type"_s, true}, {u"new"_s, {}}};
        QCOMPARE(changedValues(before, after),
                 (QJsonObject{{u"other"_s, 2}, {u"type"_s, true}, {u"new"_s, {}}}));
    }

private:
    const QTemporaryDir m_root;
};

TARNWICK_TEST(MacosTest)

#include "macos_test.moc"
