// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPalette>

#include <optional>

namespace tarnwick {

/// What the user chooses in KDE's system settings. Main thread only.
class KdeSettings : public QObject
{
    Q_OBJECT

public:
    explicit KdeSettings(QObject* parent = nullptr);

    /// The colours of applications; nothing where none were ever chosen. Reads the file anew.
    [[nodiscard]] static std::optional<QPalette> palette();

Q_SIGNALS:
    /// Colours, icons or fonts were chosen; a panel may take a moment to show it. Only on KDE.
    void changed();
};

} // namespace tarnwick
