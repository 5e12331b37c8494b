// SPDX-License-Identifier: MIT
#include "settings/window/path_field.h"

#include "views/forwarded_press.h"
#include "views/symbols.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QCompleter>
#include <QDir>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFrame>
#include <QToolButton>
#include <QWindow>

#include <algorithm>

namespace tarnwick {

namespace {

constexpr int textMargin = 3;
/// The margin that QLineEdit adds to those that are set.
constexpr int builtInMargin = 2;

/// The folder that is being dragged; empty for anything else.
QString draggedFolder(const QDropEvent& event)
{
    const QList<QUrl> urls = event.mimeData()->urls();
    const QString path = urls.size() == 1 ? urls.first().toLocalFile() : QString();
    return QFileInfo(path).isDir() ? QDir::cleanPath(path) : QString();
}

} // namespace

PathField::PathField(QWidget* parent)
    : QLineEdit(parent)
{
    setTextMargins(textMargin, 0, textMargin, 0);
    // paintEvent() draws the placeholder instead.
    QPalette own = palette();
    own.setColor(QPalette::PlaceholderText, Qt::transparent);
    setPalette(own);

    QAction* const choose =
        addAction(symbolIcon(symbolNamed(u"folder")), QLineEdit::TrailingPosition);
    choose->setText(tr("Choose a folder"));
    choose->setShortcut(QKeySequence::Open);
    choose->setToolTip(
        tr("Choose a folder (%1)").arg(choose->shortcut().toString(QKeySequence::NativeText)));
    connect(choose, &QAction::triggered, this, &PathField::chooseFolder);
}

// The text of a drag is none to be inserted: it may come from a row of the list.
void PathField::dragEnterEvent(QDragEnterEvent* event)
{
    event->setAccepted(!draggedFolder(*event).isEmpty());
    // The folder stays where it is.
    if (event->isAccepted())
        event->setDropAction(Qt::CopyAction);
}

void PathField::dragMoveEvent(QDragMoveEvent* event)
{
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void PathField::dropEvent(QDropEvent* event)
{
    setText(draggedFolder(*event));
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

bool PathField::eventFilter(QObject* watched, QEvent* event)
{
    auto* const popup = completer() ? completer()->popup() : nullptr;
    // Where it has none, Wayland makes the popup a window of its own when it is shown again.
    if (popup && watched == popup && event->type() == QEvent::Show)
        popup->windowHandle()->setTransientParent(window()->windowHandle());
    if (!popup || watched != popup || event->type() != QEvent::MouseButtonPress)
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
    const QRect area = placeholderArea();
    QFont fitting = font();
    const int width = fontMetrics().horizontalAdvance(placeholderText());
    if (width > area.width())
        fitting.setPixelSize(QFontInfo(fitting).pixelSize() * area.width() / width);
    QPainter painter(this);
    painter.setFont(fitting);
    painter.setPen(QGuiApplication::palette().color(QPalette::PlaceholderText));
    painter.drawText(area, Qt::AlignLeading | Qt::AlignVCenter, placeholderText());
}

void PathField::chooseFolder()
{
    auto* const chooser = new QFileDialog(window(), tr("Choose a folder"));
    chooser->setAttribute(Qt::WA_DeleteOnClose);
    chooser->setFileMode(QFileDialog::Directory);
    chooser->setOption(QFileDialog::ShowDirsOnly);
    chooser->setDirectory(QFileInfo(text()).isDir() ? text() : QDir::homePath());
    connect(chooser, &QFileDialog::fileSelected, this, &QLineEdit::setText);
    chooser->open();
}

QRect PathField::placeholderArea() const
{
    QStyleOptionFrame option;
    initStyleOption(&option);
    QRect area = style()
                     ->subElementRect(QStyle::SE_LineEditContents, &option, this)
                     .marginsRemoved(textMargins())
                     .adjusted(builtInMargin, 0, -builtInMargin, 0);
    const QRect button = findChild<QToolButton*>()->geometry();
    if (isRightToLeft())
        area.setLeft(std::max(area.left(), button.right() + 1));
    else
        area.setRight(std::min(area.right(), button.left() - 1));
    return area;
}

} // namespace tarnwick
