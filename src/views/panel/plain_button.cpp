// SPDX-License-Identifier: MIT
#include "views/panel/plain_button.h"

#include "views/panel/c_button.h"

#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>

namespace tarnwick {

namespace {

constexpr qreal focusInset = 6;
constexpr qreal focusRadius = 4;
constexpr float focusStrength = 0.25F;

} // namespace

PlainButton::PlainButton(const CButton& content, QWidget* parent)
    : QAbstractButton(parent)
{
    // As high as the content is at the width it gets; buttons are as high as their size hint.
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(content.title);
    if (content.sub)
        setAccessibleDescription(*content.sub);
    auto* const view = new CButtonView(content, this);
    view->setAttribute(Qt::WA_TransparentForMouseEvents);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(view);
}

QSize PlainButton::sizeHint() const
{
    return layout()->sizeHint();
}

void PlainButton::mouseDoubleClickEvent(QMouseEvent* event)
{
    event->accept();
}

void PlainButton::paintEvent(QPaintEvent* /*event*/)
{
    if (!hasFocus())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor color = palette().color(QPalette::Highlight);
    painter.setPen(color);
    color.setAlphaF(focusStrength);
    painter.setBrush(color);
    painter.drawRoundedRect(QRectF(rect()).adjusted(focusInset, 0.5, -focusInset, -0.5),
                            focusRadius, focusRadius);
}

} // namespace tarnwick
