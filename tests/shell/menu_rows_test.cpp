// SPDX-License-Identifier: MIT
#include "shell/menu/hosting_view.h"
#include "shell/menu/key_window.h"
#include "shell/menu/status_menu.h"
#include "support/test_registry.h"

#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QWheelEvent>

using namespace tarnwick::test;

namespace {

struct CountingWindow : QWidget, KeyWindow
{
    void becomeKeyWindow() override { ++requests; }
    int requests = 0;
};

HostingView* host(const QList<QWidget*>& widgets, int width)
{
    auto* const content = new QWidget;
    content->setFixedWidth(width);
    auto* const layout = new QVBoxLayout(content);
    for (QWidget* const widget : widgets)
        layout->addWidget(widget);
    return new HostingView(content);
}

/// A row of a label and a button, with a panel of two buttons as its submenu.
struct Row
{
    explicit Row(StatusMenu& menu)
        : panel(new StatusMenu(&menu))
    {
        view->setText(u"R&D, main"_s);
        panel->addHostedRow(host({first, last}, 300));
        menu.addHostedRow(view)->setMenu(panel);
        menu.addSeparator();
    }
    [[nodiscard]] QPoint blank() const { return view->mapToGlobal(QPoint(3, 3)); }

    QLabel* label = new QLabel(u"main"_s);
    QPushButton* button = new QPushButton(u"Refresh"_s);
    QPushButton* first = new QPushButton(u"Open"_s);
    QPushButton* last = new QPushButton(u"Push"_s);
    HostingView* view = host({label, button}, 340);
    StatusMenu* panel;
};

// Pointer events go in where the system's do, so that popups get in each other's way.
void click(const StatusMenu& under, QPoint global)
{
    QTest::mouseClick(under.windowHandle(), Qt::LeftButton, {}, under.mapFromGlobal(global));
}

} // namespace

class MenuRowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_menu.reset(); }

    void keysAreAskedForOncePerShowing()
    {
        CountingWindow window;
        new HostingView(new QLabel(u"text"_s), &window);
        for (const int shown : {1, 2}) {
            window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&window));
            window.hide();
            QCOMPARE(window.requests, shown);
        }
    }

    void pressReachesTheRowBehindASubmenu()
    {
        open(3);
        m_menu->setActiveAction(m_menu->actionOf(*m_rows[1].view));
        QTRY_VERIFY(m_rows[1].panel->isVisible());
        QSignalSpy clicked(m_rows[0].button, &QPushButton::clicked);
        click(*m_menu, m_rows[0].button->mapToGlobal(QPoint(9, 9)));
        QCOMPARE(clicked.size(), 1);
        QVERIFY(!m_rows[1].panel->isVisible());
        QVERIFY(m_menu->isVisible());
    }

    void blankAreaOpensAndNeverCloses()
    {
        open(3);
        click(*m_menu, m_rows[0].blank());
        QVERIFY(m_rows[0].panel->isVisible());
        for (const QPoint place : {QPoint(3, 3), QPoint(10, 10)}) {
            click(*m_rows[0].panel, m_rows[0].panel->mapToGlobal(place));
            QVERIFY(m_rows[0].panel->isVisible());
        }
        QSignalSpy hidden(m_rows[0].panel, &QMenu::aboutToHide);
        click(*m_menu, m_rows[0].blank());
        QCOMPARE(hidden.size(), 0);
        click(*m_menu, m_rows[2].blank());
        QVERIFY(m_rows[2].panel->isVisible());
        QVERIFY(!m_rows[0].panel->isVisible());
    }

    void openMenuFollowsItsRows()
    {
        open(3);
        const QRect before = m_menu->geometry();
        m_rows[0].label->setText(u"one\ntwo\nthree"_s);
        QTRY_VERIFY(m_menu->height() > before.height());
        QCOMPARE(m_menu->pos(), before.topLeft());
        QVERIFY(m_rows[1].view->y() > m_rows[0].view->geometry().bottom());
        m_rows[0].label->setText(u"one"_s);
        QTRY_COMPARE(m_menu->geometry(), before);
    }

    void manyRowsMakeOneColumn()
    {
        open(100);
        const QRect screen = m_menu->screen()->availableGeometry();
        QVERIFY(screen.contains(m_menu->geometry()));
        for (const Row& row : m_rows)
            QCOMPARE(row.view->x(), m_rows[0].view->x());

        const auto turnWheel = [this](int notches) {
            const QPointF at(100, 100);
            QWheelEvent wheel(at, m_menu->mapToGlobal(at), {}, QPoint(0, notches * 120),
                              Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            // Or it would not reach the menu through a row.
            QSpontaneKeyEvent::setSpontaneous(&wheel);
            qApp->notify(m_menu->windowHandle(), &wheel);
        };
        turnWheel(-10);
        const int y = m_rows[20].view->y();
        QVERIFY(m_rows[0].view->geometry().bottom() < 0);
        m_rows[90].label->setText(u"one\ntwo\nthree"_s);
        QTRY_VERIFY(m_rows[90].view->height() > m_rows[20].view->height());
        QCOMPARE(m_rows[20].view->y(), y);

        turnWheel(-10000);
        QVERIFY(m_menu->rect().contains(m_rows[99].view->geometry()));
        click(*m_menu, m_rows[99].blank());
        QVERIFY(screen.contains(m_rows[99].panel->geometry()));
        m_rows[99].panel->close();
        QTest::keyClick(m_menu.get(), Qt::Key_Home);
        QVERIFY(m_menu->rect().contains(m_rows[0].view->geometry()));
    }

    void keysReachEverything()
    {
        open(3);
        const auto activeView = [this] { return m_menu->hostedView(m_menu->activeAction()); };
        const auto type = [](Qt::Key key) {
            QWidget* const popup = QApplication::activePopupWidget();
            QTest::keyClick(popup->focusWidget() ? popup->focusWidget() : popup, key);
        };
        type(Qt::Key_Down);
        type(Qt::Key_Down);
        QCOMPARE(activeView(), m_rows[1].view);
        type(Qt::Key_Right);
        QVERIFY(m_rows[1].panel->isVisible());
        QCOMPARE(m_rows[1].panel->focusWidget(), m_rows[1].first);
        type(Qt::Key_Down);
        QCOMPARE(m_rows[1].panel->focusWidget(), m_rows[1].last);
        QSignalSpy clicked(m_rows[1].last, &QPushButton::clicked);
        type(Qt::Key_Return);
        type(Qt::Key_Space);
        QCOMPARE(clicked.size(), 2);
        type(Qt::Key_Left);
        QVERIFY(!m_rows[1].panel->isVisible());
        QCOMPARE(activeView(), m_rows[1].view);
        type(Qt::Key_Tab);
        QCOMPARE(m_menu->focusWidget(), m_rows[1].button);
        type(Qt::Key_Escape);
        QVERIFY(!m_menu->isVisible());
    }

    void refreshPaintsOneRow()
    {
        struct PaintWatch : QObject
        {
            bool eventFilter(QObject*, QEvent* event) override
            {
                if (event->type() == QEvent::Paint)
                    painted += static_cast<QPaintEvent*>(event)->region();
                return false;
            }
            QRegion painted;
        } watch;
        open(3);
        QTest::qWait(0);
        m_menu->installEventFilter(&watch);
        m_rows[1].view->setText(u"R&D, work"_s);
        m_rows[1].label->setText(u"work"_s);
        QTRY_VERIFY(!watch.painted.isEmpty());
        QVERIFY(m_rows[1].view->geometry().contains(watch.painted.boundingRect()));
        QCOMPARE(m_menu->actionOf(*m_rows[1].view)->text(), u"R&&D, work"_s);
    }

private:
    void open(int rows)
    {
        m_menu = std::make_unique<StatusMenu>();
        m_rows.clear();
        for (int i = 0; i < rows; ++i)
            m_rows.append(Row(*m_menu));
        m_menu->popUpBeside(QRect(600, 0, 24, 24));
        QVERIFY(QTest::qWaitForWindowExposed(m_menu.get()));
    }

    std::unique_ptr<StatusMenu> m_menu;
    QList<Row> m_rows;
};

TARNWICK_TEST(MenuRowsTest)

#include "menu_rows_test.moc"
