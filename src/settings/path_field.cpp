// SPDX-License-Identifier: MIT
#include "settings/path_field.h"

#include <QCompleter>
#include <QDir>
#include <QFileSystemModel>

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
    }
    QLineEdit::focusInEvent(event);
}

} // namespace tarnwick
