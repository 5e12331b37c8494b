// SPDX-License-Identifier: MIT
#include "settings/links/link_settings_view.h"
#include "settings/settings_fixture.h"
#include "support/test_registry.h"
#include "views/text_line.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>

using namespace tarnwick::test;

class LinkSettingsViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void savesTextUnchanged()
    {
        const QString text = u" no separator\n\u00a0\n\n"_s;
        for (const bool isSaved : {false, true}) {
            const auto view = show(u"/one/web"_s);
            auto* const editor = view->findChild<QPlainTextEdit*>();
            QCOMPARE(editor->toPlainText(), QString());
            editor->setPlainText(text);
            QVERIFY(QTest::qWaitForWindowActive(view.get()));
            isSaved ? view->findChild<QPushButton*>()->click() : view->hide();
            QVERIFY(!view->isVisible());
        }
        QCOMPARE(m_fixture.bench.store.stringForKey(u"web-urls"_s), text);
        QCOMPARE(m_fixture.host.rebuilds, 1);
        QCOMPARE(show(u"/two/web"_s)->findChild<QPlainTextEdit*>()->blockCount(), 4);
    }

    void pastesOnlyText()
    {
        const auto view = show(QString(250, u'W'));
        auto* const editor = view->findChild<QPlainTextEdit*>();
        for (const QString& text : {QString(), u"http://a @@ a"_s}) {
            auto* const data = new QMimeData;
            if (!text.isNull())
                data->setText(text);
            QGuiApplication::clipboard()->setMimeData(data);
            QTest::keyClick(editor, Qt::Key_V, Qt::ControlModifier);
            QCOMPARE(editor->toPlainText(), text);
        }
        // No text is cut, however long the repository's name is.
        const auto* const heading = view->findChild<TextLine*>();
        QVERIFY(heading->geometry().right() < view->width());
        QVERIFY(heading->height() >= heading->heightForWidth(heading->width()));
    }

private:
    std::unique_ptr<LinkSettingsView> show(const QString& dir)
    {
        auto view = std::make_unique<LinkSettingsView>(m_fixture.bench.record(dir), u"initial"_s,
                                                       m_fixture.bench.store, m_fixture.host);
        view->show();
        return view;
    }

    SettingsFixture m_fixture;
};

TARNWICK_TEST(LinkSettingsViewTest)

#include "link_settings_view_test.moc"
