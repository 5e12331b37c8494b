// SPDX-License-Identifier: MIT
#pragma once

#include "views/picture_view.h"

#include <QColor>
#include <QString>
#include <QWidget>

#include <optional>

namespace tarnwick {

/// How an entry of the actions panel looks. It does nothing by itself.
struct CButton
{
    /// Reserved: entries look the same with the pointer over them.
    bool isHovered = false;
    Picture img = {};
    /// The compact variant: a smaller icon, further in.
    bool small = false;
    /// Shown verbatim.
    QString title = {};
    /// A second, grey line; a blank one if empty.
    std::optional<QString> sub = std::nullopt;
    /// Of icon and title; the label colour if absent.
    std::optional<QColor> color = std::nullopt;

    bool operator==(const CButton&) const = default;
};

/// Shows a `CButton`. At least 200 by 26; a title or subtitle too long for the width goes on in
/// further lines.
class CButtonView : public QWidget
{
    Q_OBJECT

public:
    explicit CButtonView(const CButton& content, QWidget* parent = nullptr);
};

} // namespace tarnwick
