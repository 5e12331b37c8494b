// SPDX-License-Identifier: MIT
#include "platform/plain_application_folder.h"
#include "support/stops_process.h"
#include "support/temporary_repository.h"
#include "support/test_registry.h"
#include "support/workbench.h"
#include "views/colors.h"
#include "views/panel/actions_view.h"
#include "views/panel/divider.h"
#include "views/panel/file_line_entry.h"
#include "views/panel/plain_button.h"
#include "views/text_line.h"

#include <QDesktopServices>
#include <QLayout>
#include <QTest>

using namespace tarnwick::test;

class ActionsPanelTest : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void takeUrl(const QUrl& url) { m_opened += url; }

private Q_SLOTS:
    void showsWhatTheRepositoryHas_data()
    {
        const auto row = table<QStringList, QString, QString>("commands", "links", "expected");
        const QString openers = u"Show in Finder|Start terminal here|-|"_s;
        const QString files = u"|-|f1|f2|f3|f4|f5|f6|f7|f8"_s;
        const QString touch = u"for i in $(seq %1); do touch f$i; done"_s;
        row("clean, no remote", {}, {}, openers + u"Stash|-|add link"_s);
        row("remote and links", {u"git remote add origin git@github.com:o/r.git"_s},
            u"http://a @@ One\n\nfile:///b @@ Two\n"_s,
            openers + u"Open repo on remote|Push|Pull|Stash|-|One|Two|add link"_s);
        row("no repository, projects", {u"rm -rf .git; mkdir A.xcworkspace B.xcodeproj"_s}, {},
            u"B.xcodeproj|A.xcworkspace|-|"_s + openers + u"add link"_s);
        row("8 files", {touch.arg(8)}, {}, openers + u"Stash|-|add link"_s + files);
        row("20 files", {touch.arg(u"-w 20"_s)}, {},
            openers + u"Stash|-|add link|-|f01|f02|f03|f04|f05|f06|f07|f08|... 12 more"_s);
    }

    void showsWhatTheRepositoryHas()
    {
        QFETCH(QStringList, commands);
        QFETCH(QString, links);
        const TemporaryRepository repository;
        repository.run(commands);
        m_bench.store.setObject(links, u"repo-urls"_s);
        const auto record = m_bench.record(repository.dir());
        QTRY_VERIFY(!record->isRepo() || (record->gitStatus() && record->branchString()));
        ActionsView panel(record, {}, m_bench.runner);
        panel.render();
        QTEST(shown(panel), "expected");
        QCOMPARE(panel.width(), 300);
    }

    void followsTheRecordWhileVisible()
    {
        const TemporaryRepository repository;
        const auto record = m_bench.record(repository.dir());
        QTRY_VERIFY(record->gitStatus() && !record->isLoading());
        ActionsView panel(record, {}, m_bench.runner);
        panel.render();
        panel.show();
        QAbstractButton* const stash = entry(panel, u"Stash"_s);
        stash->setFocus();

        repository.write(u"new"_s, {});
        record->refreshStatusInBackground();
        QTRY_VERIFY(entry(panel, u"new"_s));
        // An entry that stayed is the same, focus and all.
        QCOMPARE(entry(panel, u"Stash"_s), stash);
        QVERIFY(stash->hasFocus());

        QTest::mouseClick(stash, Qt::LeftButton);
        QTest::mouseDClick(stash, Qt::LeftButton);
        QTest::mouseRelease(stash, Qt::LeftButton);
        QCOMPARE(m_bench.terminal.requests.size(), 1);
        repository.git({u"stash -q -u"_s});
        QTest::mouseClick(stash, Qt::LeftButton);
        QTRY_VERIFY(!entry(panel, u"new"_s));
    }

    void opensAddresses()
    {
        for (const auto* scheme : {"http", "file"})
            QDesktopServices::setUrlHandler(QString::fromLatin1(scheme), this, "takeUrl");
        const QTemporaryDir root;
        QVERIFY(QDir(root.path()).mkpath(u"repo/My App.xcodeproj"_s));
        m_bench.store.setObject(u"http://localhost/a b @@ Page\nhttp://[bad @@ Bad"_s,
                                u"repo-urls"_s);
        ActionsView panel(m_bench.record(root.filePath(u"repo"_s)), {}, m_bench.runner);
        panel.render();
        entry(panel, u"My App.xcodeproj"_s)->click();
        entry(panel, u"Page"_s)->click();
        QCOMPARE(m_opened,
                 (QList<QUrl>{QUrl::fromLocalFile(root.filePath(u"repo/My App.xcodeproj"_s)),
                              QUrl(u"http://localhost/a b"_s)}));
        QVERIFY(stopsProcess([&] { entry(panel, u"Bad"_s)->click(); }));
        for (const auto* scheme : {"http", "file"})
            QDesktopServices::unsetUrlHandler(QString::fromLatin1(scheme));
    }

    void changedFilesAreRead_data()
    {
        const auto row = table<QString, QColor>("read", "color");
        row("A  src/main.c", u"main.c|src/main.c|doc.fill"_s, QColor::fromRgbF(0, 0.6F, 0));
        row("D  a/b", u"b|a/b|trash.fill"_s, colors::red(Appearance::Light));
        row(" M README", u"README|README|pencil"_s, QColor(0xff, 0xb3, 0));
        row("M  c", u"c|c|tray.full.fill"_s, colors::teal(Appearance::Light));
        row("?? docs/", u"docs|docs/|questionmark.diamond.fill"_s,
            colors::yellow(Appearance::Light));
        row(" D d", u"d|d|trash"_s, colors::indigo(Appearance::Light));
        row("?? \"d\\303\\251 1/\"", u"d\u00e9 1|d\u00e9 1/|questionmark.diamond.fill"_s,
            colors::yellow(Appearance::Light));
        row("M  \"x/a \\\"b\\\"\"", u"a \"b\"|x/a \"b\"|tray.full.fill"_s,
            colors::teal(Appearance::Light));
        row("MM top", u"MM top|top|"_s, {});
        row("R  old -> new/name", u"name|old -> new/name|"_s, {});
    }

    void changedFilesAreRead()
    {
        const QString line = QString::fromLatin1(QTest::currentDataTag());
        const FileLineEntry entry = fileLineEntry(line, Appearance::Light);
        QTEST(QStringList({entry.title, entry.path, entry.symbol}).join(u'|'), "read");
        QTEST(entry.color.value_or(QColor()), "color");
    }

    void entriesAreLaidOutToThePoint_data()
    {
        const auto row = table<bool, int, int, int>("small", "iconLeft", "iconSide", "titleLeft");
        row("normal", false, 26, 20, 26 + 20 + 8);
        row("small", true, 30, 12, 30 + 12 + 8 + 6);
    }

    void entriesAreLaidOutToThePoint()
    {
        QFETCH(bool, small);
        const QString text = u"a title that is far too long for one line of this entry"_s;
        CButtonView oneLine({.small = small, .title = u"x"_s});
        CButtonView blank({.small = small, .title = u"x"_s, .sub = QString()});
        QVERIFY(blank.heightForWidth(300) > oneLine.heightForWidth(300));
        QCOMPARE(oneLine.minimumSize(), QSize(200, 26));

        CButtonView entry({.small = small, .title = text, .sub = text});
        entry.resize(300, entry.heightForWidth(300));
        entry.show();
        const QRect icon = entry.findChild<PictureView*>()->geometry();
        QTEST(icon.left(), "iconLeft");
        QTEST(icon.width(), "iconSide");
        const auto texts = entry.findChildren<TextLine*>();
        QTEST(texts[0]->x(), "titleLeft");
        QCOMPARE(texts[1]->x(), 54);
        for (const TextLine* const line : texts)
            QVERIFY(line->height() >= line->heightForWidth(line->width()) &&
                    line->geometry().right() <= 300 - 26);
    }

    void offersInstalledApplications()
    {
        const QTemporaryDir root;
        for (const auto* application :
             {"system/B.app", "system/Both.app", "user/Both.app", "user/Sublime Text.app"})
            QVERIFY(QDir(root.path()).mkpath(QString::fromLatin1(application)));
        for (const auto* name : {"Sublime Text.app", "Both.app", "Gone.app", "app.app"})
            m_bench.store.setBool(true, u"showinapps___"_s + QString::fromLatin1(name));
        m_bench.store.setBool(false, u"showinapps___B.app"_s);
        const PlainApplicationFolder system(root.filePath(u"system/"_s));
        const PlainApplicationFolder user(root.filePath(u"user/"_s));

        QStringList offered;
        const auto entries = loadAppEntries(m_bench.store, system, user);
        for (const AppEntry& entry : entries)
            offered += entry.title + u'|' + entry.name;
        QCOMPARE(offered, (QStringList{u"Both|Both.app"_s, u"Sublime Text|Sublime Text.app"_s}));
        ActionsView panel(m_bench.record(u"/nonexistent/plain"_s), entries, m_bench.runner);
        panel.render();
        QVERIFY(shown(panel).contains(u"here|Open in Both|Open in Sublime Text|-|"));
    }

private:
    /// The titles from top to bottom, "-" for a divider.
    static QString shown(const ActionsView& panel)
    {
        QStringList titles;
        for (int i = 0; i < panel.layout()->count(); ++i) {
            QWidget* const widget = panel.layout()->itemAt(i)->widget();
            titles += qobject_cast<Divider*>(widget) ? u"-"_s : widget->accessibleName();
        }
        return titles.join(u'|');
    }
    static QAbstractButton* entry(const ActionsView& panel, const QString& title)
    {
        for (auto* const button : panel.findChildren<PlainButton*>()) {
            if (button->accessibleName() == title)
                return button;
        }
        return nullptr;
    }

    Workbench m_bench;
    QList<QUrl> m_opened;
};

TARNWICK_TEST(ActionsPanelTest)

#include "actions_panel_test.moc"
