// SPDX-License-Identifier: MIT
#include "support/pixels.h"
#include "support/temporary_repository.h"
#include "support/test_registry.h"
#include "support/workbench.h"
#include "views/colors.h"
#include "views/empty_state_view.h"
#include "views/repo_status_view.h"
#include "views/spinner.h"
#include "views/text_line.h"

#include <QRegularExpression>
#include <QSignalSpy>

using namespace tarnwick::test;

namespace {

/// What a person sees written in the widget, from top to bottom; glyphs are left out.
QStringList shownTexts(const QWidget& view)
{
    QMap<int, QString> texts;
    for (const auto* line : view.findChildren<TextLine*>()) {
        if (!line->isVisible())
            continue;
        static const QRegularExpression glyphs(u"[^ -~]"_s);
        const QString plain = line->text().replace(QChar::Nbsp, u' ').remove(glyphs);
        texts.insert(line->mapTo(&view, QPoint()).y(), plain.simplified());
    }
    return texts.values();
}

void layOut(QWidget& widget)
{
    QCoreApplication::sendPostedEvents();
    widget.resize(widget.sizeHint());
    QCoreApplication::sendPostedEvents();
}

} // namespace

class RepoStatusViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_bench.emplace(); }

    void followsARealRepository()
    {
        const TemporaryRepository repository;
        const auto row = shownRow(repository.dir());
        const QSignalSpy texts(row.get(), &RepoStatusView::textChanged);
        const auto* const spinner = row->findChild<Spinner*>();
        QCOMPARE(shownTexts(*row), (QStringList{u"repo"_s, u"?"_s, u"Repo is clean"_s}));
        QList<bool> turning;
        connect(m_record.get(), &RepoViewModel::isLoadingChanged, row.get(),
                [&] { turning += spinner->isVisible(); });
        QTRY_COMPARE(turning, (QList<bool>{true, false}));
        QTRY_COMPARE(row->text(), u"repo, branch main, Repo is clean"_s);
        QCOMPARE(row->sizeHint().width(), 340);

        repository.run({u"git checkout -q -b feature/x; echo x >> a; echo x >> b; git add b"_s});
        m_bench->refreshQueue.add({m_record});
        QTRY_COMPARE(shownTexts(*row),
                     (QStringList{u"repo"_s, u"feature/x"_s, u"1 change 1 staged"_s}));
        QCOMPARE(row->text(), u"repo, branch feature/x, 1 change, 1 staged"_s);
        QVERIFY(!texts.isEmpty());
        QFont large;
        large.setPixelSize(40); // or no pixel has a color to itself
        row->setFont(large);
        layOut(*row);
        for (const QColor& color : {QColor(0xff, 0xb3, 0), colors::teal(Appearance::Light),
                                    colors::yellow(Appearance::Light)})
            QVERIFY(showsColor(row->grab().toImage(), color));
        QCOMPARE(row->sizeHint().width(), 340);
    }

    void describesWhatTheSummaryHasNoWordFor_data()
    {
        const QString commit = u"echo %1 > a; git commit -qam %1"_s;
        const QString upstream = u"git branch -q up; git branch -q -u up"_s;
        const auto row = table<QStringList, QString>("commands", "expected");
        row("conflict",
            {u"git checkout -q -b x"_s, commit.arg(u"x"), u"git checkout -q main"_s,
             commit.arg(u"y"), u"! git merge -q x"_s},
            u"1 in conflict, no upstream"_s);
        row("renames", {upstream, u"git mv a RR; git mv b z"_s}, u"2 renamed"_s);
        row("detached", {u"git checkout -q --detach"_s}, u"detached head"_s);
        row("gone", {upstream, u"git branch -q -D up"_s}, u"upstream gone"_s);
        row("no commit", {u"rm -rf .git; git init -q -b main"_s}, u"no upstream"_s);
        row("refused", {u"echo broken > .git/HEAD"_s}, {});
    }

    void describesWhatTheSummaryHasNoWordFor()
    {
        QFETCH(QStringList, commands);
        const TemporaryRepository repository;
        repository.run(commands);
        const auto row = shownRow(repository.dir());
        QTRY_VERIFY(m_record->gitStatus());
        QTEST(row->description(), "expected");
    }

    void optionsApplyAtOnce()
    {
        const TemporaryRepository repository;
        const auto row = shownRow(repository.dir());
        QTRY_VERIFY(m_record->gitStatus());
        const int cleanHeight = row->sizeHint().height();
        m_bench->store.setBool(false, u"showCleanRepoStatus"_s);
        QVERIFY(!shownTexts(*row).contains(u"Repo is clean"_s));
        QTRY_VERIFY(row->sizeHint().height() < cleanHeight);

        repository.run({u"touch n"_s});
        m_bench->refreshQueue.add({m_record});
        QTRY_VERIFY(shownTexts(*row).contains(u"1 untracked"_s));
        m_bench->store.setBool(true, u"onyIcons"_s);
        QVERIFY(shownTexts(*row).contains(u"1"_s));
    }

    void longTextsStayInside()
    {
        const TemporaryRepository repository(QString(90, u'n'));
        repository.run({u"git checkout -q -b feature/"_s + QString(90, u'b')});
        const auto row = shownRow(repository.dir());
        QTRY_VERIFY(m_record->gitStatus() && m_record->branchString());
        row->resize(row->sizeHint());
        for (const auto* line : row->findChildren<TextLine*>()) {
            if (!line->isVisible())
                continue;
            const QRect area(line->mapTo(row.get(), QPoint()), line->size());
            QVERIFY(QRect(20, 10, 300, row->height() - 20).contains(area));
            QVERIFY(line->heightForWidth(line->width()) <= line->height());
        }
    }

    void proportionsAreKept_data()
    {
        const auto row = table<int, Qt::LayoutDirection>("points", "direction");
        row("small", 7, Qt::LeftToRight);
        row("large", 22, Qt::LeftToRight);
        row("mirrored", 10, Qt::RightToLeft);
    }

    void proportionsAreKept()
    {
        QFETCH(int, points);
        QFETCH(Qt::LayoutDirection, direction);
        const TemporaryRepository repository;
        repository.run({u"touch new"_s});
        const auto row = shownRow(repository.dir());
        QTRY_VERIFY(m_record->statusString());
        row->setLayoutDirection(direction);
        row->setFont(QFont(QString(), points)); // while it is shown
        layOut(*row);

        const auto areaOfText = [&row](const QString& text) {
            for (const auto* const line : row->findChildren<TextLine*>()) {
                if (line->text().contains(text))
                    return QRect(line->mapTo(row.get(), QPoint()), line->size());
            }
            return QRect();
        };
        const QRect name = areaOfText(u"repo"_s);
        const QRect summary = areaOfText(u"untracked"_s);
        QVERIFY(std::abs(summary.height() - name.height() * 14 / 13.0) < 3);
        const bool isMirrored = direction == Qt::RightToLeft;
        const QRect spinner = row->findChild<Spinner*>()->geometry();
        QCOMPARE(isMirrored ? 339 - spinner.left() : spinner.right(), 319);
    }

    void emptyStateIsNarrow()
    {
        EmptyStateView view;
        view.resize(340, view.sizeHint().height());
        view.show();
        QVERIFY(view.height() >= 140 && view.findChild<TextLine*>()->width() <= 300);
    }

    void logoReplacesTheFolder()
    {
        const TemporaryRepository repository;
        QImage logo(40, 10, QImage::Format_RGB32);
        logo.fill(QColor(12, 34, 56));
        QVERIFY(logo.save(repository.dir() + u"/TarnwickLogo.png"_s));
        const auto row = shownRow(repository.dir());
        // Stretched to a square at the leading inset.
        const QRect shown = areaOf(QColor(12, 34, 56), row->grab().toImage());
        QCOMPARE(shown, QRect(20, shown.y(), 16, 16));
        repository.write(u"TarnwickLogo.png"_s, "no picture");
        QVERIFY(!m_bench->record(repository.dir())->logo());
    }

private:
    [[nodiscard]] std::unique_ptr<RepoStatusView> shownRow(const QString& dir)
    {
        m_record = m_bench->record(dir);
        auto row = std::make_unique<RepoStatusView>(m_record, m_bench->store);
        row->setPalette(QPalette(QColor(240, 240, 240)));
        row->show();
        return row;
    }

    std::optional<Workbench> m_bench;
    std::shared_ptr<RepoViewModel> m_record;
};

TARNWICK_TEST(RepoStatusViewTest)

#include "repo_status_view_test.moc"
