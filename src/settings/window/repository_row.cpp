// SPDX-License-Identifier: MIT
#include "settings/window/repository_row.h"

#include "settings/window/elided_text.h"
#include "views/colors.h"
#include "views/symbols.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QToolButton>

namespace tarnwick {

namespace {

constexpr int padding = 5;
constexpr int dividerHeight = 1;
constexpr int spacing = 8;
constexpr int dirSize = 8;
constexpr qreal cornerRadius = 4;
constexpr qreal focusRingWidth = 2;
constexpr float dividerOpacity = 0.15F;
constexpr QColor draggedBackground(0x55, 0x55, 0x55);

QLabel* newHandle(QWidget* parent)
{
    auto* const handle = new QLabel(symbolNamed(u"line.3.horizontal"), parent);
    handle->setFont(withSymbols(parent->font()));
    handle->setAccessibleName(RepositoryRow::tr("Handle"));
    return handle;
}

QLayout* newTexts(const QString& name, const QString& dir, QWidget* parent)
{
    auto* const nameText = new ElidedText(name, ElidedText::Color::Label, parent);
    auto* const dirText = new ElidedText(dir, ElidedText::Color::SecondaryLabel, parent);
    QFont small = parent->font();
    small.setPixelSize(dirSize);
    dirText->setFont(small);

    auto* const column = new QVBoxLayout;
    column->setSpacing(0);
    column->addWidget(nameText);
    column->addWidget(dirText);
    return column;
}

} // namespace

RepositoryRow::RepositoryRow(const QString& name, const QString& dir, QWidget* parent)
    : ReorderableRow(parent)
{
    setAccessibleName(name + QStringLiteral(", ") + dir);
    setToolTip(plainTextToolTip(dir));

    auto* const remove = new QToolButton(this);
    remove->setText(glyphText(glyph::deleted));
    remove->setFont(withSymbols(font()));
    remove->setAutoRaise(true);
    remove->setAccessibleName(tr("Remove %1").arg(name));
    remove->setToolTip(plainTextToolTip(remove->accessibleName()));
    connect(remove, &QToolButton::clicked, this, &RepositoryRow::removalRequested);

    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(padding, padding, padding, padding + dividerHeight);
    row->setSpacing(spacing);
    row->addWidget(newHandle(this));
    row->addLayout(newTexts(name, dir, this), 1);
    row->addWidget(remove);
    setCurrent(false);
}

void RepositoryRow::setDragged(bool isDragged)
{
    if (m_isDragged == isDragged)
        return;
    m_isDragged = isDragged;
    QPalette colors;
    if (isDragged) {
        for (const auto role : {QPalette::WindowText, QPalette::ButtonText})
            colors.setColor(role, colors::white());
    }
    setPalette(colors);
    update();
}

void RepositoryRow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Delete && hasFocus())
        Q_EMIT removalRequested();
    else
        ReorderableRow::keyPressEvent(event);
}

void RepositoryRow::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    QColor divider = labelColor(QGuiApplication::palette());
    divider.setAlphaF(dividerOpacity);
    painter.fillRect(0, height() - dividerHeight, width(), dividerHeight, divider);

    const QRectF background = QRectF(rect()).adjusted(0, 0, 0, -dividerHeight);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    if (m_isDragged) {
        painter.setBrush(draggedBackground);
        painter.drawRoundedRect(background, cornerRadius, cornerRadius);
    }
    if (hasFocus()) {
        const qreal half = focusRingWidth / 2;
        painter.setPen(QPen(palette().color(QPalette::Highlight), focusRingWidth));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(background.adjusted(half, half, -half, -half), cornerRadius,
                                cornerRadius);
    }
}

} // namespace tarnwick
