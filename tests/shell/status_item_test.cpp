// SPDX-License-Identifier: MIT
#include "platform/tray_host.h"
#include "shell/status_item.h"
#include "support/test_registry.h"

#include <QApplication>
#include <QPalette>
#include <QTest>

using namespace tarnwick;

namespace {

class LateTrayHost : public TrayHost
{
public:
    [[nodiscard]] bool available() const override { return isAvailable; }

    [[nodiscard]] std::optional<QColor> panelColor(const QRect&) const override
    {
        ++colorQuestions;
        return std::nullopt;
    }

    bool isAvailable = false;
    mutable int colorQuestions = 0;
};

} // namespace

class StatusItemTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void waitsForThePlace();
    void looksAgainWhenColorsMayHaveChanged();
};

void StatusItemTest::waitsForThePlace()
{
    LateTrayHost host;
    const StatusItem item(host);
    QCoreApplication::processEvents();
    QCOMPARE(host.colorQuestions, 0);
    host.isAvailable = true;
    Q_EMIT host.appeared();
    QCOMPARE(host.colorQuestions, 1);     // before the item is shown
    QTRY_COMPARE(host.colorQuestions, 2); // and once the panel has drawn it
}

void StatusItemTest::looksAgainWhenColorsMayHaveChanged()
{
    LateTrayHost host;
    host.isAvailable = true;
    const StatusItem item(host);
    QTRY_COMPARE(host.colorQuestions, 2);
    Q_EMIT host.appeared(); // the panel started anew
    QTRY_COMPARE(host.colorQuestions, 3);
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette(Qt::darkGray));
    QTRY_COMPARE(host.colorQuestions, 4);
    QApplication::setPalette(before);
}

TARNWICK_TEST(StatusItemTest)

#include "status_item_test.moc"
