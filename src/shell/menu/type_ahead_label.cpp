// SPDX-License-Identifier: MIT
#include "shell/menu/type_ahead_label.h"

#include "views/colors.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QPainter>
#include <QStyle>

#include <cmath>

namespace tarnwick {

namespace {

constexpr QMargins padding{10, 3, 10, 3};
constexpr int inset = 8;
constexpr float tint = 0.15F;

} // namespace

TypeAheadLabel::TypeAheadLabel(QWidget* menu)
    : QWidget(menu)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    menu->installEventFilter(this);
    hide();
}

void TypeAheadLabel::showIn(QWidget& menu, const QString& text, bool isFound)
{
    if (parentWidget() != &menu) {
        parentWidget()->removeEventFilter(this);
        setParent(&menu);
        menu.installEventFilter(this);
    }
    m_text = text;
    m_isFound = isFound;
    place();
    raise();
    show();
    update();
}

bool TypeAheadLabel::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize && isVisible())
        place();
    return QWidget::eventFilter(watched, event);
}

void TypeAheadLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF outline = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    const QColor color =
        m_isFound ? palette().color(QPalette::Highlight) : colors::red(appearanceOf(palette()));
    QColor background = color;
    background.setAlphaF(tint);
    painter.setPen(color);
    for (const QBrush& fill : {palette().window(), QBrush(background)}) {
        painter.setBrush(fill);
        painter.drawRoundedRect(outline, outline.height() / 2, outline.height() / 2);
    }
    painter.setPen(m_isFound ? labelColor(palette()) : color);
    const QRect area = rect().marginsRemoved(padding);
    painter.drawText(area, Qt::AlignCenter,
                     fontMetrics().elidedText(m_text, Qt::ElideLeft, area.width()));
}

void TypeAheadLabel::place()
{
    const QRect area = parentWidget()->rect().adjusted(inset, inset, -inset, -inset);
    const auto textWidth =
        static_cast<int>(std::ceil(QFontMetricsF(font()).horizontalAdvance(m_text)));
    const QSize text(textWidth, fontMetrics().height());
    const QSize wanted = text.grownBy(padding).boundedTo(area.size());
    setGeometry(QStyle::alignedRect(layoutDirection(), Qt::AlignRight | Qt::AlignBottom,
                                    wanted.expandedTo({wanted.height(), 0}), area));
}

} // namespace tarnwick
