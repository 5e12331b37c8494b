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

    auto* const completer = new QCompleter(this);
    auto* const folders = new QFileSystemModel(completer);
    folders->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot);
    folders->setRootPath(QDir::rootPath());
    completer->setModel(folders);
    setCompleter(completer);
}

} // namespace tarnwick
