// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QList>
#include <QObject>
#include <QRect>
#include <QString>

#include <optional>

namespace tarnwick {

/// What a desktop makes of a status item.
enum class ItemStyle {
    /// Shows the icon as it is drawn, and opens the item's menu on a right click.
    Colored,
    /// Takes the icon's shape and colours it itself. A menu of the item would open on a left click,
    /// too, so the item must not have one.
    Template,
};

/// Knows when the desktop has a place for a status item.
///
/// Qt looks for such a place once per process and never again, so nobody may make a QSystemTrayIcon
/// or ask QSystemTrayIcon::isSystemTrayAvailable() before available() is true. From then on it
/// stays true: when the place goes and comes back, the item returns by itself. A desktop that never
/// offers one is no error; available() then stays false. Main thread only.
class TrayHost : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    [[nodiscard]] virtual bool available() const = 0;

    [[nodiscard]] virtual ItemStyle itemStyle() const { return ItemStyle::Colored; }

    /// Whether it is still being found out if there is a place, which takes seconds at most.
    [[nodiscard]] virtual bool isUndecided() const { return false; }

    /// What to give an entry of the item's menu so that this text is shown as it is: in menus some
    /// characters have a meaning.
    [[nodiscard]] virtual QString literalMenuText(QString text) const
    {
        return text.replace(u'&', QStringLiteral("&&"));
    }

    /// Where the desktop's panels are to be seen now, in logical coordinates of all screens; empty
    /// where none is, or where the desktop does not tell. Asks anew each time.
    [[nodiscard]] virtual QList<QRect> panelRects() const = 0;

    /// The colour that the status item is seen against; nothing where the desktop does not tell and
    /// while the panel is hidden. `item` is where the item is on the screen; where that is not
    /// known, an empty rectangle at a point on its panel, or a null one.
    [[nodiscard]] virtual std::optional<QColor> panelColor(const QRect& item) const = 0;

    /// The name under which the panel finds the item's icon, to draw it in the colour of its texts;
    /// empty where it draws the picture that it is given.
    [[nodiscard]] virtual QString tintedIconName() const { return {}; }

Q_SIGNALS:
    /// A place has come up: the first, or another after the panel started anew. Never emitted from
    /// within the constructor.
    void appeared();
    /// It has been found out that there is no place yet.
    void missed();
    /// A panel has moved, shows or hides itself, or is about to have another colour.
    void panelsChanged();
};

} // namespace tarnwick
