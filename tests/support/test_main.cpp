// SPDX-License-Identifier: MIT
#include "support/test_registry.h"

#include <QApplication>
#include <QTest>

/// PROGRAM [CLASS [ARGUMENT...]]: runs that test class, with Qt Test's arguments, or all of them.
int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("tarnwick"));
    QApplication::setQuitOnLastWindowClosed(false);

    const auto& tests = tarnwick::test::registeredTests();
    QStringList arguments = QApplication::arguments();
    const QStringList names =
        arguments.size() > 1 ? QStringList{arguments.takeAt(1)} : tests.keys();
    bool allPassed = true;
    for (const QString& name : names) {
        if (!tests.contains(name)) {
            qCritical() << "There is no test class" << name << "but" << tests.keys();
            return 2;
        }
        allPassed = QTest::qExec(tests[name]().get(), arguments) == 0 && allPassed;
    }
    return allPassed ? 0 : 1;
}
