// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

namespace tarnwick {

/// A line edit for the path of a folder that offers completions, with a button for the desktop's
/// folder chooser. A single folder dropped from a file manager is taken, too; a drag of anything
/// else is refused. Otherwise it never changes the text by itself. A placeholder that is too long
/// is shown in a smaller font.
class PathField : public QLineEdit
{
    Q_OBJECT

public:
    explicit PathField(QWidget* parent = nullptr);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void chooseFolder();
    [[nodiscard]] QRect placeholderArea() const;
};

} // namespace tarnwick
