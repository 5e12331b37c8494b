// SPDX-License-Identifier: MIT
#include "platform/freedesktop/application_folder.h"
#include "support/temporary_repository.h"
#include "support/test_registry.h"

#include <QCoreApplication>
#include <QPixmap>
#include <QTest>

#include <sys/stat.h>

using namespace tarnwick;
using namespace tarnwick::test;

class DesktopEntriesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void lists_data();
    void lists();
    void unreadable();
    void seesChangesInTheNextTurn();
    void icons_data();
    void icons();

private:
    using Files = QMap<QString, QByteArray>;

    void install(const Files& files) const
    {
        for (auto file = files.begin(); file != files.end(); ++file)
            writeFile(m_root->filePath(file.key()),
                      "[Desktop Entry]\nType=Application\nExec=true %U\n" + file.value());
    }

    static QStringList sortedEntries(DesktopEntryPlace place)
    {
        QStringList names =
            FreedesktopApplicationFolder(place).entries().value_or(QStringList{u"unreadable"_qs});
        names.sort();
        return names;
    }

    std::unique_ptr<QTemporaryDir> m_root;
};

void DesktopEntriesTest::init()
{
    m_root = std::make_unique<QTemporaryDir>();
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_root->filePath(u"own"_qs)));
    qputenv("XDG_DATA_DIRS",
            QFile::encodeName(m_root->filePath(u"a"_qs) + u':' + m_root->filePath(u"b"_qs)));
    qputenv("XDG_CURRENT_DESKTOP", "Tarn:GNOME"); // the first call makes it last
    qputenv("LANGUAGE", "de");
    for (const auto* place : {u"own", u"a"})
        QDir().mkpath(m_root->filePath(QString::fromUtf16(place)) + u"/applications"_qs);
}

void DesktopEntriesTest::lists_data()
{
    QTest::addColumn<Files>("files");
    QTest::addColumn<QStringList>("system");
    QTest::addColumn<QStringList>("own");
    const auto row = [](const char* name, const Files& files, const QStringList& system,
                        const QStringList& own = {}) {
        QTest::newRow(name) << files << system << own;
    };
    const QString x = u"a/applications/x.desktop"_qs;
    const QString later = u"b/applications/x.desktop"_qs;
    const QString own = u"own/applications/x.desktop"_qs;

    row("nothing installed", {}, {});
    row("name in its own language", {{x, "Name=Text Editor\nName[de]=Texteditor\n"}},
        {u"Text Editor.app"_qs});
    row("letters and a slash", {{x, "Name=TCP/IP \303\274ber\n"}}, {u"TCP/IP \u00fcber.app"_qs});
    row("hidden", {{x, "Name=X\nHidden=true\n"}}, {});
    row("not to display", {{x, "Name=X\nNoDisplay=true\n"}}, {});
    row("for this desktop only", {{x, "Name=X\nOnlyShowIn=KDE;GNOME;\n"}}, {u"X.app"_qs});
    row("for another desktop only", {{x, "Name=X\nOnlyShowIn=KDE;\n"}}, {});
    row("not for this desktop", {{x, "Name=X\nNotShowIn=Tarn;\n"}}, {});
    row("program not installed", {{x, "Name=X\nTryExec=/nonexistent/x\n"}}, {});
    row("no application", {{x, "Name=X\nType=Link\nURL=http://localhost\n"}}, {});
    row("no name", {{x, "Icon=x\n"}}, {});
    row("another suffix", {{u"a/applications/x.desktop.save"_qs, "Name=X\n"}}, {});
    row("earlier folder first", {{x, "Name=One\n"}, {later, "Name=Two\n"}}, {u"One.app"_qs});
    row("hidden in the earlier folder", {{x, "Name=One\nHidden=true\n"}, {later, "Name=Two\n"}},
        {});
    row("replaced by the user", {{x, "Name=Theirs\n"}, {own, "Name=Mine\n"}}, {}, {u"Mine.app"_qs});
    row("hidden by the user", {{x, "Name=X\n"}, {own, "Name=X\nHidden=true\n"}}, {});
    row("beside the user's", {{x, "Name=X\n"}, {u"own/applications/y.desktop"_qs, "Name=X\n"}},
        {u"X.app"_qs}, {u"X.app"_qs});
    row("sub-folder counts in the id",
        {{u"a/applications/k/d/x.desktop"_qs, "Name=X\n"},
         {u"own/applications/k-d-x.desktop"_qs, "Name=Mine\n"}},
        {}, {u"Mine.app"_qs});
    row("same name twice", {{x, "Name=X\n"}, {u"a/applications/y.desktop"_qs, "Name=X\n"}},
        {u"X.app"_qs});
}

void DesktopEntriesTest::lists()
{
    QFETCH(Files, files);
    install(files);
    QTEST(sortedEntries(DesktopEntryPlace::System), "system");
    QTEST(sortedEntries(DesktopEntryPlace::User), "own");
}

void DesktopEntriesTest::unreadable()
{
    const FreedesktopApplicationFolder system(DesktopEntryPlace::System);
    QCOMPARE(system.path(), m_root->filePath(u"a/applications/"_qs));
    QVERIFY(QDir(m_root->filePath(u"a"_qs)).removeRecursively());
    QVERIFY(!system.entries());
    QVERIFY(FreedesktopApplicationFolder(DesktopEntryPlace::User).entries());
    QVERIFY(QDir(m_root->filePath(u"own"_qs)).removeRecursively());
    const FreedesktopApplicationFolder own(DesktopEntryPlace::User);
    QVERIFY(!own.entries());
    QVERIFY(!own.contains(u"X.app"_qs));
    QCOMPARE(own.path(), m_root->filePath(u"own/applications/"_qs));
}

void DesktopEntriesTest::seesChangesInTheNextTurn()
{
    const FreedesktopApplicationFolder system(DesktopEntryPlace::System);
    QVERIFY(!system.contains(u"X.app"_qs));
    install({{u"a/applications/x.desktop"_qs, "Name=X\n"}});
    // A pipe without a writer and a link to nowhere must hold up nothing.
    const QString pipe = m_root->filePath(u"a/applications/pipe.desktop"_qs);
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QVERIFY(QFile::link(u"nowhere"_qs, m_root->filePath(u"a/applications/link.desktop"_qs)));
    QTRY_VERIFY(system.contains(u"X.app"_qs));
}

void DesktopEntriesTest::icons_data()
{
    QTest::addColumn<QString>("icon");
    QTest::addColumn<QColor>("color");
    const auto row = [](const char* name, const QString& icon, const QColor& color) {
        QTest::newRow(name) << icon << color;
    };
    row("theme", u"themed"_qs, Qt::red);
    row("theme, with a suffix", u"themed.png"_qs, Qt::red);
    row("theme, drawn", u"drawn"_qs, Qt::blue);
    row("outside of themes", u"loose"_qs, Qt::green);
    row("path", u"%1/a/pixmaps/loose.png"_qs, Qt::green);
    row("path, drawn", u"%1/b/icons/hicolor/scalable/apps/drawn.svg"_qs, Qt::blue);
    row("path to nowhere", u"%1/nowhere.svg"_qs, {});
    row("not in the theme", u"unheard-of"_qs, {});
    row("none", {}, {});
}

void DesktopEntriesTest::icons()
{
    QFETCH(QString, icon);
    const auto draw = [this](const QString& path, const QColor& color) {
        const QFileInfo file(m_root->filePath(path));
        QDir().mkpath(file.path());
        QPixmap picture(48, 48);
        picture.fill(color);
        QVERIFY(picture.save(file.filePath()));
    };
    const QString hicolor = u"b/icons/hicolor/"_qs;
    writeFile(m_root->filePath(hicolor + u"index.theme"_qs),
              "[Icon Theme]\nName=Hicolor\nDirectories=48x48/apps,scalable/apps\n"
              "[48x48/apps]\nSize=48\n[scalable/apps]\nSize=48\nMinSize=1\nMaxSize=512\n"
              "Type=Scalable\n");
    draw(hicolor + u"48x48/apps/themed.png"_qs, Qt::red);
    draw(u"a/pixmaps/loose.png"_qs, Qt::green);
    writeFile(m_root->filePath(hicolor + u"scalable/apps/drawn.svg"_qs),
              "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'>"
              "<rect width='9' height='9' fill='#00f'/></svg>");
    install({{u"a/applications/x.desktop"_qs,
              "Name=X\nIcon=" + (icon.contains(u'%') ? icon.arg(m_root->path()) : icon).toUtf8()}});

    const QIcon shown = FreedesktopApplicationFolder(DesktopEntryPlace::System).icon(u"X.app"_qs);
    QTEST(shown.isNull() ? QColor() : shown.pixmap(16, 16).toImage().pixelColor(8, 8), "color");
}

TARNWICK_TEST(DesktopEntriesTest)

#include "desktop_entries_test.moc"
