// SPDX-License-Identifier: MIT
#include "settings/window/elided_text.h"

#include "views/colors.h"

#include <QPainter>
#include <QStyleOptionButton>

namespace tarnwick {

QString plainTextToolTip(const QString& text)
{
    if (text.isEmpty())
        return {};
    return QStringLiteral("<p style='white-space:pre'>%1</p>").arg(text.toHtmlEscaped());
}

ElidedText::ElidedText(const QString& text, Color color, QWidget* parent)
    : QLabel(text, parent)
    , m_color(color)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QSize ElidedText::minimumSizeHint() const
{
    return {0, fontMetrics().height()};
}

void ElidedText::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setPen(m_color == Color::Label ? labelColor(palette())
                                           : secondaryLabelColor(palette()));
    painter.drawText(rect(), Qt::AlignLeading | Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(text(), Qt::ElideMiddle, width()));
}

ElidedCheckBox::ElidedCheckBox(QString text, QWidget* parent)
    : QCheckBox(parent)
    , m_text(std::move(text))
{
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setAccessibleName(m_text);
}

void ElidedCheckBox::resizeEvent(QResizeEvent* event)
{
    QCheckBox::resizeEvent(event);
    QStyleOptionButton option;
    initStyleOption(&option);
    const int width = style()->subElementRect(QStyle::SE_CheckBoxContents, &option, this).width();
    const QString elided = fontMetrics().elidedText(m_text, Qt::ElideMiddle, width);
    setToolTip(elided == m_text ? QString() : plainTextToolTip(m_text));
    setText(QString(elided).replace(u'&', QStringLiteral("&&")));
}

} // namespace tarnwick
