// SPDX-License-Identifier: MIT
#include "views/panel/c_button.h"

#include "views/colors.h"
#include "views/row_metrics.h"
#include "views/text_line.h"

#include <QHBoxLayout>

namespace tarnwick {

namespace {

constexpr int iconSide = 20;
constexpr int smallIconSide = 12;
constexpr int spacing = 8;
constexpr int smallLineInset = 4;
constexpr int smallTitleInset = 6;
constexpr int bodyInset = 6;
constexpr int outerInset = 20;
constexpr int subtitleSize = 11;
constexpr QSize minSize{200, 26};

TextLine* newText(const QString& text, const QColor& color, const QFont& font, QWidget* parent)
{
    auto* const line = new TextLine(parent);
    line->setFont(font);
    line->setSegments({{text, color}});
    return line;
}

} // namespace

CButtonView::CButtonView(const CButton& content, QWidget* parent)
    : QWidget(parent)
{
    setMinimumSize(minSize);
    auto* const body = new QVBoxLayout(this);
    constexpr int sideInset = outerInset + bodyInset;
    body->setContentsMargins(sideInset, bodyInset, sideInset, bodyInset);
    body->setSpacing(0);

    const QColor color = content.color.value_or(labelColor(palette()));
    auto* const first = new QHBoxLayout;
    first->setSpacing(0);
    // No margins: those would stay on the left where writing goes to the left.
    first->addSpacing(content.small ? smallLineInset : 0);
    auto* const picture = new PictureView(this);
    const int side = content.small ? smallIconSide : iconSide;
    picture->setFixedSize(side, side);
    picture->setPicture(content.img, color);
    first->addWidget(picture, 0, Qt::AlignVCenter);
    first->addSpacing(spacing + (content.small ? smallTitleInset : 0));
    first->addWidget(newText(content.title, color, font(), this), 0, Qt::AlignVCenter);
    first->addStretch(1);
    body->addLayout(first);

    if (!content.sub)
        return;
    auto* const second = new QHBoxLayout;
    second->addSpacing(iconSide + spacing);
    second->addWidget(newText(content.sub->isEmpty() ? QStringLiteral(" ") : *content.sub,
                              secondaryLabelColor(palette()), row::sizedFont(font(), subtitleSize),
                              this));
    second->addStretch(1);
    body->addLayout(second);
}

} // namespace tarnwick
