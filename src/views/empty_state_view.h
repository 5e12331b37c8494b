// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace tarnwick {

class TextLine;

/// What the menu says while no repository is watched: where to add one.
class EmptyStateView : public QWidget
{
    Q_OBJECT

public:
    explicit EmptyStateView(QWidget* parent = nullptr);

    /// The same for assistive technology, with the name of the button in place of its glyph.
    [[nodiscard]] QString text() const;

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void render();

    TextLine* m_text;
};

} // namespace tarnwick
