// SPDX-License-Identifier: MIT
#include "platform/freedesktop/application_folder.h"
#include "support/temporary_repository.h"
#include "support/test_registry.h"

#include <QPixmap>

#include <sys/stat.h>

using namespace tarnwick::test;

/// The system has the data folders a and b, the user has one called own.
class DesktopEntriesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_root = std::make_unique<QTemporaryDir>();
        qputenv("XDG_DATA_HOME", path(u"own"_s).toUtf8());
        qputenv("XDG_DATA_DIRS", (path(u"a"_s) + u':' + path(u"b"_s)).toUtf8());
        qputenv("XDG_CURRENT_DESKTOP", "Tarn:GNOME");
        qputenv("LANGUAGE", "de");
    }

    void lists_data()
    {
        const auto row = table<QByteArray, QString, QString>("keys", "otherFile", "expected");
        const QString other = u"b/applications/other.desktop"_s;
        row("named", "Name=\303\234\nName[de]=Text", other, u"Other.app \u00dc.app,unreadable"_s);
        row("hidden", "Name=X\nHidden=true", other, u"Other.app,unreadable"_s);
        row("not for menus", "Name=X\nNoDisplay=true", other, u"Other.app,unreadable"_s);
        row("here", "Name=X\nOnlyShowIn=KDE;GNOME;", other, u"Other.app X.app,unreadable"_s);
        row("elsewhere", "Name=X\nOnlyShowIn=KDE;", other, u"Other.app,unreadable"_s);
        row("not here", "Name=X\nNotShowIn=Tarn;", other, u"Other.app,unreadable"_s);
        row("gone", "Name=X\nTryExec=/nonexistent/x", other, u"Other.app,unreadable"_s);
        row("link", "Name=X\nType=Link", other, u"Other.app,unreadable"_s);
        row("same name", "Name=Other", other, u"Other.app,unreadable"_s);
        row("same file", "Name=X", u"b/applications/k/x.desktop"_s, u"X.app,unreadable"_s);
        row("masked", "Name=X\nHidden=true", u"b/applications/k-x.desktop"_s, u",unreadable"_s);
        row("user's file", "Name=X", u"own/applications/k-x.desktop"_s, u",Other.app"_s);
        row("both", "Name=Other", u"own/applications/y.desktop"_s, u"Other.app,Other.app"_s);
    }

    void lists()
    {
        QFETCH(QByteArray, keys);
        QFETCH(QString, otherFile);
        install(u"a/applications/k/x.desktop"_s, keys);
        install(otherFile, "Name=Other");
        QStringList found;
        for (const auto place : {DesktopEntryPlace::System, DesktopEntryPlace::User}) {
            const FreedesktopApplicationFolder folder(place);
            QStringList names = folder.entries().value_or(QStringList(u"unreadable"_s));
            names.sort();
            found += names.join(u' ');
            const bool isSystem = place == DesktopEntryPlace::System;
            QCOMPARE(folder.path(), path(isSystem ? u"a/applications/"_s : u"own/applications/"_s));
        }
        QTEST(found.join(u','), "expected");
    }

    void rereadsInTheNextEventLoopTurn()
    {
        const FreedesktopApplicationFolder system(DesktopEntryPlace::System);
        QVERIFY(!system.contains(u"X.app"_s));
        install(u"b/applications/x.desktop"_s, "Name=X");
        // Neither a pipe without a writer nor a link to nowhere holds anything up.
        QCOMPARE(::mkfifo(path(u"b/applications/p.desktop"_s).toUtf8().constData(), 0600), 0);
        QVERIFY(QFile::link(u"nowhere"_s, path(u"b/applications/link.desktop"_s)));
        // Neither does the whole disk, its links in circles included, or a file of 1 GB.
        QVERIFY(QFile::link(u"/"_s, path(u"b/applications/disk"_s)));
        install(u"b/applications/big.desktop"_s, "Name=Big");
        QVERIFY(QFile::resize(path(u"b/applications/big.desktop"_s), 1 << 30));
        QTRY_VERIFY(system.contains(u"X.app"_s));
        QVERIFY(!system.contains(u"Big.app"_s));
        install(u"b/applications/x.desktop"_s, "Name=Y");
        QTRY_VERIFY(system.contains(u"Y.app"_s));
        QCOMPARE(system.path(), path(u"b/applications/"_s));
    }

    void icons_data()
    {
        const auto row = table<QColor>("color");
        row("themed", Qt::red);
        row("themed.png", Qt::red);
        row("drawn", Qt::blue);
        row("loose", Qt::green);
        row("%1/a/pixmaps/loose.png", Qt::green);
        row("%1/b/icons/hicolor/apps/drawn.svg", Qt::blue);
        row("%1/nowhere.svg", {});
        row("unheard-of", {});
        row("", {});
    }

    void icons()
    {
        writeFile(path(u"b/icons/hicolor/index.theme"_s),
                  "[Icon Theme]\nName=Hicolor\nDirectories=apps\n[apps]\nSize=16\nType=Scalable\n");
        writeFile(path(u"b/icons/hicolor/apps/drawn.svg"_s),
                  "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'>"
                  "<rect width='9' height='9' fill='#00f'/></svg>");
        QPixmap picture(16, 16);
        picture.fill(Qt::red);
        QVERIFY(picture.save(path(u"b/icons/hicolor/apps/themed.png"_s)));
        picture.fill(Qt::green);
        QVERIFY(QDir().mkpath(path(u"a/pixmaps"_s)));
        QVERIFY(picture.save(path(u"a/pixmaps/loose.png"_s)));
        install(u"a/applications/x.desktop"_s,
                "Name=X\nIcon=" +
                    QByteArray(QTest::currentDataTag()).replace("%1", path({}).toUtf8()));

        searchIconsOfApplications();
        const QIcon shown =
            FreedesktopApplicationFolder(DesktopEntryPlace::System).icon(u"X.app"_s);
        QTEST(shown.isNull() ? QColor() : shown.pixmap(16).toImage().pixelColor(8, 8), "color");
    }

private:
    QString path(const QString& name) const { return m_root->filePath(name); }

    void install(const QString& file, const QByteArray& keys) const
    {
        writeFile(path(file), "[Desktop Entry]\nType=Application\nExec=true\n" + keys + '\n');
    }

    std::unique_ptr<QTemporaryDir> m_root;
};

TARNWICK_TEST(DesktopEntriesTest)

#include "desktop_entries_test.moc"
