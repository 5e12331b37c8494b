// SPDX-License-Identifier: MIT
#include "settings/reorder/reorderable_for_each.h"
#include "support/test_registry.h"

using namespace tarnwick::test;

namespace {

using Letters = ReorderableForEach<QChar>;

struct List
{
    explicit List(QString letters)
        : shown(std::move(letters))
        , reorder({[this] { return Letters::Items(shown.cbegin(), shown.cend()); },
                   [this](const Letters::Items& items) { shown = text(items); },
                   [this](const Letters::Items& items) { stored = text(items); }},
                  [] { return true; })
    {}

    static QString text(const Letters::Items& items)
    {
        return QString(items.data(), static_cast<qsizetype>(items.size()));
    }
    [[nodiscard]] QString marked() const
    {
        QString letters;
        std::ranges::copy_if(shown, std::back_inserter(letters),
                             [this](QChar letter) { return reorder.isDragged(letter); });
        return letters;
    }

    QString shown;
    QString stored;
    Letters reorder;
};

} // namespace

/// Reorders a list of letters.
class ReorderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void drags_data()
    {
        const auto row = table<QString, QChar, QString, QString, QString>(
            "before", "dragged", "entered", "after", "marked");
        row("third of five to the first", u"abcde"_s, u'c', u"a"_s, u"cabde"_s, u"c"_s);
        row("first of three to the third", u"abc"_s, u'a', u"c"_s, u"bca"_s, u"a"_s);
        row("to the neighbour and back", u"abc"_s, u'a', u"bab"_s, u"abc"_s, u"a"_s);
        row("down row by row", u"abcd"_s, u'a', u"bacad"_s, u"bcda"_s, u"a"_s);
        row("over its own row", u"abc"_s, u'b', u"bb"_s, u"abc"_s, u""_s);
        row("no row entered", u"abc"_s, u'b', u""_s, u"abc"_s, u""_s);
        row("of equals the first moves", u"aba"_s, u'a', u"b"_s, u"baa"_s, u"aa"_s);
        row("of equals the first is the target", u"abb"_s, u'a', u"b"_s, u"bab"_s, u"a"_s);
        row("dragged item removed", u"abc"_s, u'x', u"b"_s, u"abc"_s, u""_s);
        row("target item removed", u"abc"_s, u'a', u"x"_s, u"abc"_s, u""_s);
    }

    void drags()
    {
        QFETCH(QString, before);
        QFETCH(QChar, dragged);
        QFETCH(QString, entered);
        QFETCH(QString, after);
        List list(before);
        list.reorder.dropDelegate(before[0])->dropEntered();
        QCOMPARE(list.shown, before);

        QCOMPARE(list.reorder.onDrag(dragged), QString::number(qHash(dragged)));
        QCOMPARE(list.marked(), QString());
        for (const QChar letter : entered) {
            const auto row = list.reorder.dropDelegate(letter);
            QVERIFY(row->validateDrop());
            row->dropEntered();
            QCOMPARE(row->dropUpdated(), Qt::MoveAction);
            row->dropExited();
        }
        // The state after a drag that ends outside.
        QCOMPARE(list.shown, after);
        QTEST(list.marked(), "marked");
        QCOMPARE(list.stored, QString());

        QVERIFY(list.reorder.dropDelegate(after[0])->performDrop());
        QCOMPARE(list.stored, after);
        QCOMPARE(list.marked(), QString());
        QVERIFY(!list.reorder.draggedItem);
    }
};

TARNWICK_TEST(ReorderTest)

#include "reorder_test.moc"
