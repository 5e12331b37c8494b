// SPDX-License-Identifier: MIT
#include "settings/reorder/reorderable_column.h"
#include "settings/settings_fixture.h"
#include "settings/window/repository_row.h"
#include "support/test_registry.h"

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QTabWidget>
#include <QToolButton>

using namespace tarnwick::test;

/// The list of repositories, edited in one of two windows.
class RepositoriesViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_view.reset();
        m_other.reset();
        m_fixture = std::make_unique<SettingsFixture>();
        m_fixture->bench.store.setObject(u"/n/a\n/n/b\n/n/c\n/n/b"_s, u"repos"_s);
        m_fixture->mgr.setModels(m_fixture->mgr.loadRepos());
        m_other = m_fixture->view();
        m_view = m_fixture->view();
        m_view->findChild<QTabWidget*>()->setCurrentIndex(1);
        m_column = m_view->findChild<ReorderableColumn*>();
        m_view->show();
        m_view->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_view.get()));
    }

    void addsTypedText()
    {
        auto* const path = m_view->findChild<QLineEdit*>();
        auto* const add = row(0)->window()->findChildren<QPushButton*>().first();
        QCOMPARE(add->text(), u"add repo"_s);
        for (const auto* text : {u" ~/x ", u"", u""}) {
            path->setText(QString::fromUtf16(text));
            QTest::keyClick(path, Qt::Key_Return);
            add->click();
            QTRY_VERIFY(add->isEnabled());
            QCOMPARE(path->text(), QString::fromUtf16(text));
        }
        QCOMPARE(m_fixture->stored().join(u','), u",, ~/x ,/n/a,/n/b,/n/c,/n/b"_s);
        QCOMPARE(m_column->rows().size(), 7);
        QCOMPARE(shown(*m_other), shown(*m_view));
    }

    void onlyOneFolderMayBeDropped()
    {
        const QUrl folder = QUrl::fromLocalFile(QDir::tempPath());
        const QUrl file = QUrl::fromLocalFile(QCoreApplication::applicationFilePath());
        for (const auto& [urls, isTaken] : {std::pair(QList<QUrl>{folder}, true),
                                            {{file}, false},
                                            {{folder, folder}, false},
                                            {{}, false}}) {
            QMimeData dragged;
            dragged.setText(u"17"_s); // as that of a row
            if (!urls.isEmpty())
                dragged.setUrls(urls);
            QDragEnterEvent enter({}, Qt::CopyAction, &dragged, Qt::LeftButton, {});
            QApplication::sendEvent(m_view->findChild<QLineEdit*>(), &enter);
            QCOMPARE(enter.isAccepted(), isTaken);
        }
    }

    void removesAllRecordsOfDirectory()
    {
        QCOMPARE(row(1)->findChild<QToolButton*>()->accessibleName(), u"Remove b"_s);
        answer(1, u"Keep it"_s);
        answer(1, {});
        QCOMPARE(m_fixture->stored().size(), 4);
        answer(3, u"Remove it"_s);
        QCOMPARE(m_fixture->stored(), (QStringList{u"/n/a"_s, u"/n/c"_s}));
        QCOMPARE(shown(*m_view), u"a c"_s);
        QCOMPARE(shown(*m_other), u"a c"_s);
    }

    void movesByKeyboard()
    {
        const QPointer<ReorderableRow> c = row(2);
        c->setFocus();
        for (int i = 0; i < 3; ++i)
            QTest::keyPress(QApplication::focusWidget(), Qt::Key_Up, Qt::AltModifier);
        QCOMPARE(shown(*m_other), u"c a b b"_s);
        QCOMPARE(m_fixture->stored().first(), u"/n/a"_s);
        QTest::keyRelease(QApplication::focusWidget(), Qt::Key_Up, Qt::AltModifier);
        QCOMPARE(m_fixture->stored().first(), u"/n/c"_s);
        QCOMPARE(QApplication::focusWidget(), c);
        QTest::keyPress(QApplication::focusWidget(), Qt::Key_End, Qt::AltModifier);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Home);
        QCOMPARE(QApplication::focusWidget(), row(0));
        QCOMPARE(m_fixture->stored().at(2), u"/n/c"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageDown);
        QCOMPARE(QApplication::focusWidget(), row(3));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageUp);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        QCOMPARE(QApplication::focusWidget(), row(1));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), row(1)->findChild<QToolButton*>());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), m_view->findChild<QLineEdit*>());
    }

    void clickWhileBusyDoesNothing()
    {
        const auto* const remove = row(1)->findChild<QToolButton*>();
        const QPointF place = remove->mapTo(m_view.get(), remove->rect().center());
        const auto postClick = [this, place] {
            for (const auto& [type, buttons] : {std::pair(QEvent::MouseButtonPress, Qt::LeftButton),
                                                {QEvent::MouseButtonRelease, Qt::NoButton}})
                QApplication::postEvent(m_view->windowHandle(),
                                        new QMouseEvent(type, place, m_view->mapToGlobal(place),
                                                        Qt::LeftButton, buttons, {}));
        };
        auto* const add = m_view->findChildren<QPushButton*>().first();
        connect(&m_fixture->mgr, &RepoManager::modelsChanged, m_column, postClick);
        add->click();
        QTRY_VERIFY(add->isEnabled());
        QVERIFY(!m_view->findChild<QMessageBox*>());
        QTRY_COMPARE(row(1)->geometry().top(), row(0)->geometry().bottom() + 1);
        postClick();
        QTRY_VERIFY(m_view->findChild<QMessageBox*>());
    }

private:
    [[nodiscard]] ReorderableRow* row(int index) const
    {
        return m_column->rows().at(static_cast<std::size_t>(index));
    }
    [[nodiscard]] static QString shown(const SettingsView& view)
    {
        QStringList names;
        for (const auto* row : view.findChild<ReorderableColumn*>()->rows())
            names += row->accessibleName().section(u"/"_s, -1);
        return names.join(u' ');
    }

    void answer(int index, const QString& button) const
    {
        row(index)->findChild<QToolButton*>()->click();
        auto* const alert = m_view->findChild<QMessageBox*>();
        QCOMPARE(alert->text(), u"Please confirm the removal"_s);
        QVERIFY(alert->isModal());
        if (button.isEmpty())
            QTest::keyClick(alert, Qt::Key_Escape);
        for (auto* choice : alert->buttons()) {
            if (choice->text() == button)
                choice->click();
        }
        QTRY_VERIFY(!m_view->findChild<QMessageBox*>());
    }

    std::unique_ptr<SettingsFixture> m_fixture;
    std::unique_ptr<SettingsView> m_view;
    std::unique_ptr<SettingsView> m_other;
    ReorderableColumn* m_column = nullptr;
};

TARNWICK_TEST(RepositoriesViewTest)

#include "repositories_view_test.moc"
