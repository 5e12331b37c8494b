// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWidget>

namespace tarnwick {

/// Shows what is being typed in a menu, at the end of the menu's lower edge and over its rows. The
/// pointer passes through it.
class TypeAheadLabel : public QWidget
{
    Q_OBJECT

public:
    /// Hidden at first.
    explicit TypeAheadLabel(QWidget* menu);

    /// Becomes a child of the menu. A text that was not found is red.
    void showIn(QWidget& menu, const QString& text, bool isFound);
    [[nodiscard]] const QString& text() const { return m_text; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void place();

    QString m_text;
    bool m_isFound = true;
};

} // namespace tarnwick
