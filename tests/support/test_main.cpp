// SPDX-License-Identifier: MIT
#include "support/test_registry.h"

#include <QApplication>
#include <QTest>

/// Runs every test class of the executable with the same arguments; the exit status counts the
/// failures.
int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("tarnwick"));
    QApplication::setQuitOnLastWindowClosed(false);

    int failures = 0;
    for (const auto& makeTest : tarnwick::test::registeredTests())
        failures += QTest::qExec(makeTest().get(), argc, argv);
    return failures;
}
