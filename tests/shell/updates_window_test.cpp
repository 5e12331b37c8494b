// SPDX-License-Identifier: MIT
#include "shell/updates/appcast.h"
#include "shell/updates/release_notes_view.h"
#include "shell/updates/update_window.h"
#include "shell/updates/updater.h"
#include "support/loopback_server.h"
#include "support/pixels.h"
#include "support/signed_update.h"
#include "support/temporary_repository.h"
#include "support/test_registry.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>

using namespace tarnwick::test;

namespace {

QWidgetList windows()
{
    QWidgetList widgets = QApplication::topLevelWidgets();
    widgets.removeIf([](QWidget* widget) { return !qobject_cast<UpdateWindow*>(widget); });
    return widgets;
}

QStringList labelTexts(const QWidget& window)
{
    QStringList texts;
    for (const auto* label : window.findChildren<QLabel*>())
        texts += label->isVisible() ? label->text() : QString();
    return texts;
}

void clickButton(const QWidget& window, const QString& text)
{
    for (auto* const button : window.findChildren<QPushButton*>()) {
        if (button->isVisible() && button->text() == text)
            return QTest::mouseClick(button, Qt::LeftButton);
    }
    QFAIL(qPrintable(u"no button "_s + text));
}

} // namespace

class UpdatesWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_settings = {m_server.url("/feed"), m_update.publicKey(), u"10"_s, m_folder.path(), {}};
    }

    void oneCheckAtATime()
    {
        m_server.answer("/feed", LoopbackServer::bytes(m_update.signedFeed("pkg")));
        std::optional<StandardUpdaterController> controller(std::in_place, m_settings, false);
        Updater& updater = controller->updater();
        const QSignalSpy changes(&updater, &Updater::canCheckForUpdatesChanged);
        updater.checkForUpdates();
        QCOMPARE(windows().size(), 0);

        updater.start();
        updater.checkForUpdates();
        updater.checkForUpdates();
        QCOMPARE(windows().size(), 1);
        QVERIFY(!updater.canCheckForUpdates());
        QTRY_VERIFY(
            labelTexts(*windows().first()).contains(u"Tarnwick 10 is the newest version."_s));
        QTest::keyClick(windows().first(), Qt::Key_Escape);
        QTRY_VERIFY(updater.canCheckForUpdates());
        QCOMPARE(changes, QList<QVariantList>({{true}, {false}, {true}}));

        updater.checkForUpdates();
        controller.reset();
        QTRY_VERIFY(labelTexts(*windows().first()).contains(u"You are up to date"_s));
        clickButton(*windows().first(), u"Close"_s);
        QTRY_COMPARE(windows().size(), 0);
    }

    void canBeCancelledAtAnyTime()
    {
        m_settings.buildNumber = u"9"_s;
        m_server.answer("/pkg",
                        [](QTcpSocket& client) { client.write("HTTP/1.1 200 OK\r\n\r\nco"); });
        for (const bool isFeedPending : {true, false}) {
            m_server.answer("/feed", isFeedPending
                                         ? LoopbackServer::noResponse()
                                         : LoopbackServer::bytes(m_update.signedFeed("pkg")));
            StandardUpdaterController controller(m_settings, true);
            controller.updater().checkForUpdates();
            const QWidget& window = *windows().first();
            if (!isFeedPending) {
                QTRY_VERIFY(labelTexts(window).contains(u"Tarnwick 1.3 is available"_s));
                clickButton(window, u"Download"_s);
                QTRY_VERIFY(labelTexts(window).contains(u"2 bytes of 7 bytes"_s));
            }
            clickButton(window, u"Cancel"_s);
            QTRY_VERIFY(controller.updater().canCheckForUpdates());
            QTRY_VERIFY(windows().isEmpty());
        }
        QVERIFY(
            QDir(m_folder.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    }

    /// All but the first would load a file, or take Qt minutes or unlimited memory.
    void onlyHarmlessReleaseNotesAreHtml()
    {
        const QString file = m_folder.filePath(u"picture.png"_s);
        QImage picture(50, 50, QImage::Format_RGB32);
        picture.fill(Qt::magenta);
        QVERIFY(picture.save(file));
        ReleaseNotesView view;
        view.resize(400, 300);
        bool isHtml = true;
        for (const QString& notes :
             {u"<P><b>a </b>&lt;<br/>b<a href=\"https://example.org/\"></a></p>"_s,
              u"<b>a </b>&lt;<br>b<img src='%1'>"_s.arg(file),
              u"<style>p { color: red }</style><b>a </b>&lt;</p>b<table"_s,
              u"<table><tr><td>"_s.repeated(1000) + u"<b>a &lt;</td>b"_s,
              u"<table>a &lt;<br>b"_s + u"<tr><td colspan=20000>"_s.repeated(900),
              u"<p style='margin:99999px'>"_s.repeated(700) + u"a &lt;<br>b"_s,
              u"a &lt;<br>b"_s + u"<b>"_s.repeated(300'000)}) {
            AppcastItem item;
            item.notes = notes;
            view.showNotes(item);
            QCOMPARE(view.toPlainText().trimmed(), u"a <\nb"_s);
            QCOMPARE(view.toHtml().contains(u"font-weight:700"_s), std::exchange(isHtml, false));
            QVERIFY(!showsColor(view.grab().toImage(), Qt::magenta));
        }
    }

private:
    const SignedUpdate m_update{"content"};
    LoopbackServer m_server;
    const QTemporaryDir m_folder;
    UpdateSettings m_settings;
};

TARNWICK_TEST(UpdatesWindowTest)

#include "updates_window_test.moc"
