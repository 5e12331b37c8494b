// SPDX-License-Identifier: MIT
#include "settings/window/path_field.h"

#include "views/forwarded_press.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QDir>
#include <QFileSystemModel>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFrame>

namespace tarnwick {

namespace {

constexpr int textMargin = 3;
/// The margin that QLineEdit adds to those that are set.
constexpr int builtInMargin = 2;

} // namespace

PathField::PathField(QWidget* parent)
    : QLineEdit(parent)
{
    setTextMargins(textMargin, 0, textMargin, 0);
    // Otherwise a row dropped here would insert the text of its drag.
    setAcceptDrops(false);
    // paintEvent() draws the placeholder instead.
    QPalette own = palette();
    own.setColor(QPalette::PlaceholderText, Qt::transparent);
    setPalette(own);
}

bool PathField::eventFilter(QObject* watched, QEvent* event)
{
    auto* const popup = completer() ? completer()->popup() : nullptr;
    if (watched != popup || event->type() != QEvent::MouseButtonPress)
        return QLineEdit::eventFilter(watched, event);
    const auto& press = static_cast<const QMouseEvent&>(*event);
    if (popup->rect().contains(press.position().toPoint()))
        return QLineEdit::eventFilter(watched, event);
    // Qt swallows the press that closes the popup; forward it to the widget under the pointer.
    popup->hide();
    if (QWidget* const target = QApplication::widgetAt(press.globalPosition().toPoint()))
        new ForwardedPress(*target, press); // owned by the target
    return true;
}

void PathField::focusInEvent(QFocusEvent* event)
{
    // Created on demand, because the model reads folders from its construction on, and its
    // destructor waits for that: a disk that does not answer would block every settings window.
    if (!completer()) {
        auto* const newCompleter = new QCompleter(this);
        auto* const model = new QFileSystemModel(newCompleter);
        model->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot);
        model->setRootPath(QDir::rootPath());
        newCompleter->setModel(model);
        setCompleter(newCompleter);
        newCompleter->popup()->installEventFilter(this);
    }
    QLineEdit::focusInEvent(event);
}

void PathField::paintEvent(QPaintEvent* event)
{
    QLineEdit::paintEvent(event);
    if (!text().isEmpty())
        return;
    QStyleOptionFrame option;
    initStyleOption(&option);
    const QRect area = style()
                           ->subElementRect(QStyle::SE_LineEditContents, &option, this)
                           .marginsRemoved(textMargins())
                           .adjusted(builtInMargin, 0, -builtInMargin, 0);
    QFont fitting = font();
    const int width = fontMetrics().horizontalAdvance(placeholderText());
    if (width > area.width())
        fitting.setPixelSize(QFontInfo(fitting).pixelSize() * area.width() / width);
    QPainter painter(this);
    painter.setFont(fitting);
    painter.setPen(QGuiApplication::palette().color(QPalette::PlaceholderText));
    painter.drawText(area, Qt::AlignLeading | Qt::AlignVCenter, placeholderText());
}

} // namespace tarnwick
