// SPDX-License-Identifier: MIT
#include "shell/menu/hosted_row.h"
#include "shell/menu/hosting_view.h"
#include "shell/menu/row_column.h"
#include "shell/menu/status_menu.h"
#include "shell/menu/type_ahead_label.h"
#include "support/test_registry.h"

#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QWheelEvent>

using namespace tarnwick::test;

namespace {

struct CountingMenu : StatusMenu
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
        panel->addRow(host({first, last}, 300));
        row = menu.addRow(view);
        row->setSubmenu([panel = panel] { return panel; });
        menu.addSeparator();
    }
    [[nodiscard]] QPoint blank() const { return row->mapToGlobal(QPoint(3, 3)); }

    QLabel* label = new QLabel(u"main"_s);
    QPushButton* button = new QPushButton(u"Refresh"_s);
    QPushButton* first = new QPushButton(u"Open"_s);
    QPushButton* last = new QPushButton(u"Push"_s);
    HostingView* view = host({label, button}, 340);
    StatusMenu* panel;
    HostedRow* row;
};

// Events go in where the system's do, so that popups get in each other's way.
void click(const StatusMenu& under, QPoint global)
{
    QTest::mouseClick(under.windowHandle(), Qt::LeftButton, {}, under.mapFromGlobal(global));
}

void type(Qt::Key key)
{
    QTest::keyClick(QApplication::activePopupWidget()->windowHandle(), key);
}

} // namespace

class MenuRowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_menu.reset(); }

    void eachRowAsksForKeysOncePerShowing()
    {
        CountingMenu menu;
        for (int i = 0; i < 100; ++i)
            menu.addRow(host({new QLabel(u"text"_s)}, 340))->setSubmenu([] { return nullptr; });
        for (const int shown : {1, 2}) {
            menu.show();
            QVERIFY(QTest::qWaitForWindowExposed(&menu));
            menu.hide();
            QCOMPARE(menu.requests, shown * 100);
        }
    }

    void pressReachesTheRowBehindASubmenu()
    {
        open(3);
        m_menu->openSubmenuOf(*m_rows[1].row);
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
        click(*m_menu, m_rows[0].blank());
        QVERIFY(m_rows[0].panel->isVisible());
        click(*m_menu, m_rows[2].blank());
        QVERIFY(m_rows[2].panel->isVisible());
        QVERIFY(!m_rows[0].panel->isVisible());
    }

    void openMenuFollowsItsRows()
    {
        open(3);
        const QRect before = m_menu->geometry();
        m_menu->openSubmenuOf(*m_rows[1].row);
        const int panelTop = m_rows[1].panel->y();
        m_rows[0].label->setText(u"one\ntwo\nthree"_s);
        QTRY_VERIFY(m_menu->height() > before.height());
        QCOMPARE(m_menu->pos(), before.topLeft());
        QCOMPARE(m_rows[1].panel->y() - panelTop, m_menu->height() - before.height());
        QVERIFY(m_rows[1].row->y() > m_rows[0].row->geometry().bottom());
        m_rows[0].label->setText(u"one"_s);
        QTRY_COMPARE(m_menu->geometry(), before);
    }

    void manyRowsScroll()
    {
        open(100);
        const QRect screen = m_menu->screen()->availableGeometry();
        const RowColumn& column = m_menu->column();
        QVERIFY(screen.contains(m_menu->geometry()));
        const auto turnWheel = [this](int notches) {
            const QPointF at(100, 100);
            QWheelEvent wheel(at, m_menu->mapToGlobal(at), {}, QPoint(0, -120), Qt::NoButton,
                              Qt::NoModifier, Qt::NoScrollPhase, false);
            for (int i = 0; i < notches; ++i)
                qApp->notify(m_menu->windowHandle(), &wheel);
        };
        const auto y = [&](int row) { return column.areaOf(*m_rows[row].row).y(); };
        turnWheel(5);
        const int before = y(20);
        QVERIFY(y(1) < 0);
        QVERIFY(!m_rows[90].label->isVisible());
        m_rows[90].label->setText(u"one\ntwo\nthree"_s);
        m_rows[90].view->setText(u"one two three"_s);
        QTRY_VERIFY(m_rows[90].row->height() > m_rows[20].row->height());
        QCOMPARE(y(20), before);

        turnWheel(500);
        QVERIFY(column.rect().contains(column.areaOf(*m_rows[99].row)));
        QVERIFY(m_rows[99].label->isVisible());
        click(*m_menu, m_rows[99].blank());
        QVERIFY(screen.contains(m_rows[99].panel->geometry()));
        m_rows[99].panel->close();
        for (const auto& [key, row] : {std::pair(Qt::Key_Home, 0),
                                       {Qt::Key_PageDown, 10},
                                       {Qt::Key_PageUp, 0},
                                       {Qt::Key_End, 99}}) {
            type(key);
            const auto active = column.rows().indexOf(m_menu->activeRow());
            QVERIFY(key == Qt::Key_PageDown ? active > 5 && active < 30 : active == row);
            QVERIFY(column.rect().contains(column.areaOf(*m_menu->activeRow())));
        }
    }

    void keysReachEverything()
    {
        open(3);
        type(Qt::Key_Down);
        type(Qt::Key_Down);
        QCOMPARE(m_menu->activeRow(), m_rows[1].row);
        type(Qt::Key_Right);
        QVERIFY(m_rows[1].panel->isVisible());
        QCOMPARE(m_rows[1].panel->focusWidget(), m_rows[1].first);
        type(Qt::Key_Down);
        type(Qt::Key_Shift);
        QCOMPARE(m_rows[1].panel->focusWidget(), m_rows[1].last);
        QSignalSpy clicked(m_rows[1].last, &QPushButton::clicked);
        type(Qt::Key_Return);
        type(Qt::Key_Space);
        QCOMPARE(clicked.size(), 2);
        type(Qt::Key_Home);
        QCOMPARE(m_rows[1].panel->focusWidget(), m_rows[1].first);
        type(Qt::Key_Left);
        QVERIFY(!m_rows[1].panel->isVisible());
        QCOMPARE(m_menu->activeRow(), m_rows[1].row);
        type(Qt::Key_Tab);
        QCOMPARE(m_menu->focusWidget(), m_rows[1].button);
        type(Qt::Key_Down);
        QCOMPARE(m_menu->activeRow(), m_rows[2].row);
        type(Qt::Key_Space);
        QVERIFY(m_rows[2].panel->isVisible());
        type(Qt::Key_Escape);
        QVERIFY(!m_rows[2].panel->isVisible());
        type(Qt::Key_Escape);
        QVERIFY(!m_menu->isVisible());
    }

    void typedLettersFindANextName()
    {
        open(3);
        m_rows[0].row->setName(u"Kestrel"_s);
        m_rows[1].row->setName(u"\u00c9clair \u00e9t\u00e9"_s);
        m_rows[2].row->setName(u"desk"_s);
        m_rows[1].last->setAccessibleName(u"Push"_s);
        const auto* const label = m_menu->findChild<TypeAheadLabel*>();
        for (const auto& [letters, row, shown] : {std::tuple("k", 0, "k"),
                                                  {"k", 2, "kk"},
                                                  {"\bclaIR E", 1, "claIR E"},
                                                  {"q", 1, "claIR Eq"}}) {
            for (const char* letter = letters; *letter; ++letter)
                QTest::keyClick(m_menu->windowHandle(), *letter);
            QCOMPARE(m_menu->activeRow(), m_rows[row].row);
            QCOMPARE(label->text(), QString::fromLatin1(shown));
            QVERIFY(label->isVisible());
        }
        QTRY_VERIFY(!label->isVisible());
        m_menu->openSubmenuOf(*m_rows[1].row);
        type(Qt::Key_E); // the panel is open, but nobody is in it
        QVERIFY(!m_rows[1].panel->isVisible());
        QCOMPARE(m_menu->activeRow(), m_rows[2].row);
        type(Qt::Key_Home);
        type(Qt::Key_Down);
        type(Qt::Key_Space);
        type(Qt::Key_U);
        QCOMPARE(m_rows[1].panel->focusWidget(), m_rows[1].last);
    }

    void refreshPaintsOneRow()
    {
        struct PaintWatch : QObject
        {
            bool eventFilter(QObject* watched, QEvent* event) override
            {
                if (event->type() == QEvent::Paint && watched->isWidgetType())
                    painted += static_cast<QWidget*>(watched);
                return false;
            }
            QList<QWidget*> painted;
        } watch;
        open(3);
        QTest::qWait(0);
        qApp->installEventFilter(&watch);
        m_rows[1].view->setText(u"R&D, work"_s);
        m_rows[1].label->setText(u"work"_s);
        QTRY_VERIFY(!watch.painted.isEmpty());
        qApp->removeEventFilter(&watch);
        for (const QWidget* const painted : watch.painted)
            QVERIFY(painted->isAncestorOf(m_rows[1].label) || painted == m_rows[1].label);
        QVERIFY(!watch.painted.contains(m_rows[0].label));
    }

private:
    void open(int rows)
    {
        m_menu = std::make_unique<StatusMenu>();
        m_rows.clear();
        for (int i = 0; i < rows; ++i)
            m_rows.append(Row(*m_menu));
        m_menu->popUpBeside(QRect(600, 0, 24, 24), {});
        QVERIFY(QTest::qWaitForWindowExposed(m_menu.get()));
    }

    std::unique_ptr<StatusMenu> m_menu;
    QList<Row> m_rows;
};

TARNWICK_TEST(MenuRowsTest)

#include "menu_rows_test.moc"
