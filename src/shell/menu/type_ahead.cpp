// SPDX-License-Identifier: MIT
#include "shell/menu/type_ahead.h"

#include "shell/menu/menu_keys.h"
#include "shell/menu/status_menu.h"
#include "shell/menu/type_ahead_label.h"

#include <QKeyEvent>

#include <chrono>

namespace tarnwick {

namespace {

using namespace std::chrono_literals;

/// Long enough for those who search for the keys.
constexpr auto pause = 2s;

QString withoutCaseAndMarks(const QString& text)
{
    QString folded = text.normalized(QString::NormalizationForm_KD);
    folded.removeIf([](QChar c) { return c.isMark(); });
    return folded.toCaseFolded();
}

bool isTyped(const QKeyEvent& key)
{
    const QString text = key.text();
    return !text.isEmpty() && text.front().category() != QChar::Other_Control &&
           !(key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
}

bool isRepeatedLetter(const QString& text)
{
    return text.count(text.front()) == text.size();
}

/// A panel that has opened beside the pointer but has not been entered takes no letters.
StatusMenu& enteredMenu(StatusMenu& innermost)
{
    return innermost.activeRow() || !innermost.parentMenu() ? innermost : *innermost.parentMenu();
}

bool find(StatusMenu& menu, const QString& text, SearchFrom from)
{
    const auto contains = [wanted = withoutCaseAndMarks(text)](const QString& name) {
        return withoutCaseAndMarks(name).contains(wanted);
    };
    return moveToName(menu, contains, from);
}

} // namespace

TypeAhead::TypeAhead(StatusMenu& menu)
    : m_label(new TypeAheadLabel(&menu))
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(pause);
    connect(&m_pause, &QTimer::timeout, this, &TypeAhead::clear);
}

bool TypeAhead::press(StatusMenu& innermost, const QKeyEvent& key)
{
    StatusMenu& menu = enteredMenu(innermost);
    if (m_label->parentWidget() != &menu)
        clear();
    if (key.key() == Qt::Key_Backspace) {
        clear();
        return true;
    }
    const bool isSpaceAlone = m_text.isEmpty() && key.key() == Qt::Key_Space;
    if (!isTyped(key) || isSpaceAlone) {
        // Those from Shift on, the modifiers and dead keys, come before a letter.
        if (key.key() < Qt::Key_Shift)
            clear();
        return false;
    }
    const auto from = m_text.isEmpty() ? SearchFrom::Next : SearchFrom::Current;
    m_text += key.text();
    const bool isFound =
        find(menu, m_text, from) ||
        (isRepeatedLetter(m_text) && find(menu, m_text.first(1), SearchFrom::Next));
    m_label->showIn(menu, m_text, isFound);
    m_pause.start();
    return true;
}

void TypeAhead::clear()
{
    m_pause.stop();
    m_text.clear();
    m_label->hide();
}

} // namespace tarnwick
