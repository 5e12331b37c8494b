// SPDX-License-Identifier: MIT
#include "model/preference_keys.h"
#include "model/repo_manager.h"
#include "support/temporary_repository.h"
#include "support/test_registry.h"
#include "support/workbench.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>

using namespace tarnwick::test;

class PreferencesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath(u"sub/preferences.json"_qs);
    }

    void typesSurviveARestart()
    {
        {
            PreferencesStore store(m_path);
            store.setBool(false, u"launchOnStartup"_qs);
            store.setValue(true, u"onyIcons"_qs);
            store.setObject(u"true"_qs, u"x\u00e9/-urls"_qs);
            store.setObject(u"/a\n/b"_qs, u"repos"_qs);
        }
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(QJsonDocument::fromJson(file.readAll()).object(),
                 (QJsonObject{{u"launchOnStartup"_qs, false},
                              {u"onyIcons"_qs, true},
                              {u"x\u00e9/-urls"_qs, u"true"_qs},
                              {u"repos"_qs, u"/a\n/b"_qs}}));
        QCOMPARE(PreferencesStore(m_path).stringForKey(u"x\u00e9/-urls"_qs), u"true"_qs);
    }

    void absentAndMistypedReadAsDefaults()
    {
        writeFile(m_path, R"({"repos": true, "onyIcons": "true", "other": [1]})");
        PreferencesStore store(m_path);
        QVERIFY(!store.stringForKey(u"repos"_qs));
        QVERIFY(!store.boolForKey(u"onyIcons"_qs));
        QVERIFY(!store.boolForKey(u"absent"_qs));
        store.setBool(true, u"new"_qs);
        store.synchronize();
        QCOMPARE(PreferencesStore(m_path).dictionaryRepresentation().keys(),
                 (QStringList{u"new"_qs, u"onyIcons"_qs, u"other"_qs, u"repos"_qs}));
    }

    void firstRunDefaultsAreWrittenOnce()
    {
        PreferencesStore store(m_path);
        writeFirstRunDefaults(store);
        const QVariantMap expected{{u"hasWrittenDefaultsOnce"_qs, true},
                                   {u"showinapps___Atom.app"_qs, true},
                                   {u"showinapps___Sourcetree.app"_qs, true},
                                   {u"showinapps___Sublime Text.app"_qs, true}};
        QCOMPARE(store.dictionaryRepresentation(), expected);
        store.setBool(false, u"showinapps___Atom.app"_qs);
        writeFirstRunDefaults(store);
        QVERIFY(!store.boolForKey(u"showinapps___Atom.app"_qs));
    }

    void unreadableFileIsSetAside()
    {
        const QList<QByteArray> contents{"{\"repos\": \"/a", "[]", ""};
        for (const QByteArray& content : contents) {
            writeFile(m_path, content);
            PreferencesStore store(m_path);
            QVERIFY(store.dictionaryRepresentation().isEmpty());
            store.setBool(true, u"onyIcons"_qs);
        }
        QStringList kept;
        for (const QFileInfo& entry : QFileInfo(m_path).dir().entryInfoList({u"*.unreadable-*"_qs}))
            kept += QString::number(entry.size());
        kept.sort();
        QCOMPARE(kept, (QStringList{u"0"_qs, u"13"_qs, u"2"_qs}));
        QVERIFY(PreferencesStore(m_path).boolForKey(u"onyIcons"_qs));
    }

    void listIsLoadedAsStored_data()
    {
        const auto row = table<QString, QStringList>("stored", "loaded");
        row("empty", {}, {});
        row("slashes", u"/a/\n/b//\n/c"_qs, {u"/a"_qs, u"/b/"_qs, u"/c"_qs});
        row("empty entry persists", u"/a\n"_qs, {u"/a"_qs, {}});
        row("duplicates", u"/a\n/a"_qs, {u"/a"_qs, u"/a"_qs});
    }

    void listIsLoadedAsStored()
    {
        QFETCH(QString, stored);
        PreferencesStore store(m_path);
        store.setObject(stored, u"repos"_qs);
        RepoManager list = manager(store);
        QTEST(dirs(list), "loaded");
        QCOMPARE(store.stringForKey(u"repos"_qs), stored);
        list.save();
        QFETCH(QStringList, loaded);
        QCOMPARE(store.stringForKey(u"repos"_qs), loaded.join(u'\n'));
    }

    void listEditsAreStored()
    {
        PreferencesStore store(m_path);
        RepoManager list = manager(store);
        QVERIFY(list.models().empty());
        QVERIFY(!store.stringForKey(u"repos"_qs));

        const auto delegate = std::make_shared<NoDelegate>();
        for (const auto* dir : {u"/one", u"/two/", u" three", u"/one"})
            list.add(QString::fromUtf16(dir), delegate);
        // On the disk at once, whatever ends the program.
        QCOMPARE(PreferencesStore(m_path).stringForKey(u"repos"_qs),
                 u"/one\n three\n/two\n/one"_qs);
        QCOMPARE(dirs(list), (QStringList{u"/one"_qs, u" three"_qs, u"/two"_qs, u"/one"_qs}));
        QVERIFY(list.models().front()->delegate() != delegate);

        const auto kept = list.models().back();
        const QSignalSpy rebuilt(&list, &RepoManager::modelsChanged);
        list.remove(*kept);
        QVERIFY(!rebuilt.isEmpty());
        RepoViewModels reordered = list.models();
        std::reverse(reordered.begin(), reordered.end());
        list.setModels(reordered);
        list.save();
        QCOMPARE(PreferencesStore(m_path).stringForKey(u"repos"_qs), u"/two\n three"_qs);
        QCOMPARE(kept->name(), u"one"_qs);
    }

private:
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
