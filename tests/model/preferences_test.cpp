// SPDX-License-Identifier: MIT
#include "model/preference_keys.h"
#include "model/repo_manager.h"
#include "support/temporary_repository.h"
#include "support/test_registry.h"
#include "support/workbench.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>

#include <sys/resource.h>

using namespace tarnwick::test;

class PreferencesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath(u"sub/preferences.json"_s);
    }

    void typesPersist()
    {
        {
            PreferencesStore store(m_path);
            store.setBool(false, u"launchOnStartup"_s);
            store.setValue(true, u"onyIcons"_s);
            store.setObject(u"true"_s, u"x\u00e9/-urls"_s);
            store.setObject(u"/a\n/b"_s, u"repos"_s);
        }
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(QJsonDocument::fromJson(file.readAll()).object(),
                 (QJsonObject{{u"launchOnStartup"_s, false},
                              {u"onyIcons"_s, true},
                              {u"x\u00e9/-urls"_s, u"true"_s},
                              {u"repos"_s, u"/a\n/b"_s}}));
        QCOMPARE(PreferencesStore(m_path).stringForKey(u"x\u00e9/-urls"_s), u"true"_s);
    }

    void absentAndMistypedReadAsDefaults()
    {
        writeFile(m_path, R"({"repos": true, "onyIcons": "true", "other": [1]})");
        PreferencesStore store(m_path);
        QVERIFY(!store.stringForKey(u"repos"_s));
        QVERIFY(!store.boolForKey(u"onyIcons"_s));
        QVERIFY(!store.boolForKey(u"absent"_s));
        store.setBool(true, u"new"_s);
        store.synchronize();
        QCOMPARE(PreferencesStore(m_path).dictionaryRepresentation().keys(),
                 (QStringList{u"new"_s, u"onyIcons"_s, u"other"_s, u"repos"_s}));
    }

    void firstRunDefaultsAreWrittenOnce()
    {
        PreferencesStore store(m_path);
        writeFirstRunDefaults(store);
        const QVariantMap expected{{u"hasWrittenDefaultsOnce"_s, true},
                                   {u"showinapps___Atom.app"_s, true},
                                   {u"showinapps___Sourcetree.app"_s, true},
                                   {u"showinapps___Sublime Text.app"_s, true}};
        QCOMPARE(store.dictionaryRepresentation(), expected);
        store.setBool(false, u"showinapps___Atom.app"_s);
        writeFirstRunDefaults(store);
        QVERIFY(!store.boolForKey(u"showinapps___Atom.app"_s));
    }

    void malformedFileIsSetAside()
    {
        const QList<QByteArray> contents{"{\"repos\": \"/a", "[]", ""};
        for (const QByteArray& content : contents) {
            writeFile(m_path, content);
            PreferencesStore store(m_path);
            QVERIFY(store.dictionaryRepresentation().isEmpty());
            store.setBool(true, u"onyIcons"_s);
        }
        QStringList kept;
        for (const QFileInfo& entry : QFileInfo(m_path).dir().entryInfoList({u"*.unreadable-*"_s}))
            kept += QString::number(entry.size());
        kept.sort();
        QCOMPARE(kept, (QStringList{u"0"_s, u"13"_s, u"2"_s}));
        QVERIFY(PreferencesStore(m_path).boolForKey(u"onyIcons"_s));
    }

    void leavesAloneWhatItCannotRead_data()
    {
        const auto row = table<QString, QString>("name", "command");
        const QString name = u"p"_s;
        row("link to nowhere", name, u"ln -s nowhere p"_s);
        row("pipe", name, u"mkfifo p"_s);
        row("device", name, u"ln -s /dev/null p"_s);
        row("folder", name, u"mkdir p"_s);
        row("too large", name, u"truncate -s 17M p"_s);
        row("unreadable", name, u"ln -s /proc/self/mem p"_s);
        row("not openable", name, u"echo {} > p"_s);
        row("not renamable", QString(240, u'p'), u"touch "_s + QString(240, u'p'));
    }

    void leavesAloneWhatItCannotRead()
    {
        QFETCH(QString, name);
        QFETCH(QString, command);
        QCOMPARE(shell(command + u"; ls -Ali > ../before"_s), 0);
        {
            rlimit files{};
            QCOMPARE(::getrlimit(RLIMIT_NOFILE, &files), 0);
            // Permissions do not stop a test that runs as root.
            const rlimit none{0, files.rlim_max};
            if (QTest::currentDataTag() == "not openable"_ba)
                QCOMPARE(::setrlimit(RLIMIT_NOFILE, &none), 0);
            PreferencesStore store(m_folder->filePath(u"sub/"_s + name));
            QCOMPARE(::setrlimit(RLIMIT_NOFILE, &files), 0);
            store.setBool(true, u"onyIcons"_s);
            store.synchronize();
            QVERIFY(store.boolForKey(u"onyIcons"_s));
        }
        QCOMPARE(shell(u"ls -Ali | diff - ../before"_s), 0);
    }

    void twoWritersKeepEachOthersKeys()
    {
        writeFile(m_path, R"({"repos": "/old", "x-urls": "u"})");
        PreferencesStore first(m_path);
        PreferencesStore second(m_path);
        const QSignalSpy written(&second, &PreferencesStore::valueWritten);
        first.setObject(u"/new"_s, u"repos"_s);
        first.synchronize();
        second.setBool(true, u"onyIcons"_s);
        second.synchronize();
        QCOMPARE(second.stringForKey(u"repos"_s), u"/new"_s);
        QCOMPARE(written.last().first(), u"repos"_s);
        QCOMPARE(
            PreferencesStore(m_path).dictionaryRepresentation(),
            (QVariantMap{{u"onyIcons"_s, true}, {u"repos"_s, u"/new"_s}, {u"x-urls"_s, u"u"_s}}));
    }

    void failedWriteIsTriedAgain()
    {
        PreferencesStore store(m_path);
        QCOMPARE(shell(u"mkfifo preferences.json; touch .preferences.json.unfinished-x"_s), 0);
        store.setBool(true, u"onyIcons"_s);
        store.synchronize();
        QCOMPARE(shell(u"test -p preferences.json && rm preferences.json"_s), 0);
        QTRY_COMPARE(QDir(QFileInfo(m_path).path()).entryList(QDir::Files | QDir::Hidden),
                     QStringList(u"preferences.json"_s));
        QVERIFY(PreferencesStore(m_path).boolForKey(u"onyIcons"_s));
    }

    void listIsLoadedAsStored_data()
    {
        const auto row = table<QString, QStringList>("stored", "loaded");
        row("empty", {}, {});
        row("slashes", u"/a/\n/b//\n/c"_s, {u"/a"_s, u"/b/"_s, u"/c"_s});
        row("empty entry persists", u"/a\n"_s, {u"/a"_s, {}});
        row("duplicates", u"/a\n/a"_s, {u"/a"_s, u"/a"_s});
    }

    void listIsLoadedAsStored()
    {
        QFETCH(QString, stored);
        PreferencesStore store(m_path);
        store.setObject(stored, u"repos"_s);
        RepoManager list = manager(store);
        QTEST(dirs(list), "loaded");
        QCOMPARE(store.stringForKey(u"repos"_s), stored);
        list.save();
        QFETCH(QStringList, loaded);
        QCOMPARE(store.stringForKey(u"repos"_s), loaded.join(u'\n'));
    }

    void listEditsAreStored()
    {
        PreferencesStore store(m_path);
        RepoManager list = manager(store);
        QVERIFY(list.models().empty());
        QVERIFY(!store.stringForKey(u"repos"_s));

        const auto delegate = std::make_shared<NoDelegate>();
        for (const auto* dir : {u"/one", u"/two/", u" three", u"/one"})
            list.add(QString::fromUtf16(dir), delegate);
        // On the disk at once, whatever ends the program.
        QCOMPARE(PreferencesStore(m_path).stringForKey(u"repos"_s), u"/one\n three\n/two\n/one"_s);
        QCOMPARE(dirs(list), (QStringList{u"/one"_s, u" three"_s, u"/two"_s, u"/one"_s}));
        QVERIFY(list.models().front()->delegate() != delegate);

        const auto kept = list.models().back();
        const QSignalSpy rebuilt(&list, &RepoManager::modelsChanged);
        list.remove(*kept);
        QVERIFY(!rebuilt.isEmpty());
        RepoViewModels reordered = list.models();
        std::reverse(reordered.begin(), reordered.end());
        list.setModels(reordered);
        list.save();
        QCOMPARE(PreferencesStore(m_path).stringForKey(u"repos"_s), u"/two\n three"_s);
        QCOMPARE(kept->name(), u"one"_s);
    }

private:
    /// The exit status of a command run in the folder of the preferences.
    [[nodiscard]] int shell(const QString& command) const
    {
        const QString folder = QFileInfo(m_path).path();
        return QDir().mkpath(folder)
                   ? QProcess::execute(u"/bin/sh"_s, {u"-c"_s, u"cd \"$0\"; "_s + command, folder})
                   : -1;
    }
    [[nodiscard]] RepoManager manager(PreferencesStore& store)
    {
        return {store, m_bench.services(), [] { return std::make_shared<NoDelegate>(); }};
    }
    [[nodiscard]] static QStringList dirs(const RepoManager& manager)
    {
        QStringList dirs;
        for (const auto& model : manager.models())
            dirs += model->dir();
        return dirs;
    }

    Workbench m_bench;
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

TARNWICK_TEST(PreferencesTest)

#include "preferences_test.moc"
