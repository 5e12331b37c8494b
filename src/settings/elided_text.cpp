// SPDX-License-Identifier: MIT
#include "settings/elided_text.h"

#include "views/colors.h"

#include <QPainter>

namespace tarnwick {

QString verbatimToolTip(const QString& text)
{
    if (text.isEmpty())
        return {};
    return QStringLiteral("<p style='white-space:pre'>%1</p>").arg(text.toHtmlEscaped());
}

ElidedText::ElidedText(QString text, Shade shade, QWidget* parent)
    : QWidget(parent)
    , m_text(std::move(text))
    , m_shade(shade)
{
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setAccessibleName(m_text);
}

QSize ElidedText::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(m_text), fontMetrics().height()};
}

QSize ElidedText::minimumSizeHint() const
{
    return {0, fontMetrics().height()};
}

void ElidedText::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setPen(m_shade == Shade::Primary ? labelColor(palette())
                                             : secondaryLabelColor(palette()));
    painter.drawText(rect(), Qt::AlignLeading | Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(m_text, Qt::ElideMiddle, width()));
}

} // namespace tarnwick
