// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

#include <memory>

namespace tarnwick {

/// The user's one running copy of the application, and what is asked of it from outside: by the
/// desktop, by a script, or by starting the program once more. Main thread only.
class ApplicationInstance : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Makes this process the one copy, until it ends. If another process is that already, asks it
    /// to come forward as if the user had, and returns false; there is nothing left to do then.
    /// Where nobody can know, every process may go on.
    [[nodiscard]] virtual bool becomeOnlyCopy() = 0;

    /// Whether anyone can ask it for anything.
    [[nodiscard]] virtual bool isReachable() const = 0;

Q_SIGNALS:
    /// The user wants to see the application; the first time, that may be what it was started for.
    void activated();
    /// The user wants an action of the application done, by its name in the desktop entry.
    void actionRequested(const QString& name);
};

/// `identifier` is the application's, in reverse-DNS form.
[[nodiscard]] std::unique_ptr<ApplicationInstance> applicationInstance(const QString& identifier);

} // namespace tarnwick
