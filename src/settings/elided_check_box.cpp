// SPDX-License-Identifier: MIT
#include "settings/elided_check_box.h"

#include "settings/elided_text.h"

#include <QStyleOptionButton>

namespace tarnwick {

ElidedCheckBox::ElidedCheckBox(const QString& text, QWidget* parent)
    : QCheckBox(parent)
    , m_text(text)
{
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setAccessibleName(text);
}

void ElidedCheckBox::resizeEvent(QResizeEvent* event)
{
    QCheckBox::resizeEvent(event);
    QStyleOptionButton option;
    initStyleOption(&option);
    const int width = style()->subElementRect(QStyle::SE_CheckBoxContents, &option, this).width();
    const QString shown = fontMetrics().elidedText(m_text, Qt::ElideMiddle, width);
    setToolTip(shown == m_text ? QString() : verbatimToolTip(m_text));
    setText(QString(shown).replace(u'&', QStringLiteral("&&")));
}

} // namespace tarnwick
