// SPDX-License-Identifier: MIT
#include "settings/path_field.h"

#include "views/handed_press.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QDir>
#include <QFileSystemModel>
#include <QMouseEvent>

namespace tarnwick {

namespace {

constexpr int textMargin = 3;

} // namespace

PathField::PathField(QWidget* parent)
    : QLineEdit(parent)
{
    setTextMargins(textMargin, 0, textMargin, 0);
    // A row that is dropped here by mistake would leave the text of its drag behind.
    setAcceptDrops(false);
}

bool PathField::eventFilter(QObject* watched, QEvent* event)
{
    auto* const popup = completer() ? completer()->popup() : nullptr;
    if (watched != popup || event->type() != QEvent::MouseButtonPress)
        return QLineEdit::eventFilter(watched, event);
    const auto& press = static_cast<const QMouseEvent&>(*event);
    if (popup->rect().contains(press.position().toPoint()))
        return QLineEdit::eventFilter(watched, event);
    // The press that closes the list also counts where it was made: nobody presses a button twice.
    popup->hide();
    if (QWidget* const target = QApplication::widgetAt(press.globalPosition().toPoint()))
        new HandedPress(*target, press); // which owns it
    return true;
}

void PathField::focusInEvent(QFocusEvent* event)
{
    // The model starts reading folders when it is made, and is waited for when it goes: whoever
    // only looks at the list has nothing to do with a disk that does not answer.
    if (!completer()) {
        auto* const folders = new QCompleter(this);
        auto* const model = new QFileSystemModel(folders);
        model->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot);
        model->setRootPath(QDir::rootPath());
        folders->setModel(model);
        setCompleter(folders);
        folders->popup()->installEventFilter(this);
    }
    QLineEdit::focusInEvent(event);
}

} // namespace tarnwick
