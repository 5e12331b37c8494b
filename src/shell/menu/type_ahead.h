// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

class QKeyEvent;

namespace tarnwick {

class StatusMenu;
class TypeAheadLabel;

/// Finding a row of an open menu, or an entry of an entered panel, by typing a part of its name.
///
/// Letters that follow each other form one text, which a label in the menu shows. Backspace, a
/// pause and every key that moves in the menu start a new one. Case, accents and other marks do not
/// count. A text that no name contains leaves the menu where it is; the same letter again and again
/// goes through all names with that letter.
class TypeAhead : public QObject
{
    Q_OBJECT

public:
    /// `menu` is the outermost menu and outlives it.
    explicit TypeAhead(StatusMenu& menu);

    /// Takes a key meant for the innermost open menu; returns false if it is not part of typing.
    [[nodiscard]] bool press(StatusMenu& innermost, const QKeyEvent& key);
    /// Forgets what was typed.
    void clear();

private:
    TypeAheadLabel* const m_label; // owned by the menu
    QString m_text;
    QTimer m_pause;
};

} // namespace tarnwick
