// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace tarnwick {

/// The program's symbol, name and version, centred on a band of a fixed height. They are a little
/// taller than the band: `overflow` above and below it belongs to them, too, and to the widget.
class SettingsHeader : public QWidget
{
    Q_OBJECT

public:
    static constexpr int bandHeight = 60;
    static constexpr int overflow = 10;

    explicit SettingsHeader(const QString& version, QWidget* parent = nullptr);
};

} // namespace tarnwick
