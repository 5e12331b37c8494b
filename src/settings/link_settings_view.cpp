// SPDX-License-Identifier: MIT
#include "settings/link_settings_view.h"

#include "model/preference_keys.h"
#include "model/preferences_store.h"
#include "model/repo_view_model.h"
#include "settings/close_key_window.h"
#include "settings/grey_frame.h"
#include "settings/save_button.h"
#include "settings/secondary_text.h"
#include "settings/settings_host.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QShowEvent>
#include <QVBoxLayout>

namespace tarnwick {

namespace {

constexpr int viewWidth = 900;
constexpr int outerInset = 50;
constexpr int spacing = 10;
constexpr int headingSize = 14;
constexpr int editorWidth = 800;
constexpr int editorMinimumHeight = 300;
constexpr int editorInset = 10;
/// The editor in its frame is wider than the insets leave room for.
constexpr int editorEndInset = viewWidth - outerInset - (editorWidth + 2 * (editorInset + 1));

QLabel* newHeading(const QString& text, QWidget* parent)
{
    auto* const heading = new QLabel(text, parent);
    heading->setTextFormat(Qt::PlainText);
    heading->setWordWrap(true);
    QFont font = heading->font();
    font.setPixelSize(headingSize);
    font.setBold(true);
    heading->setFont(font);
    return heading;
}

/// The document's own plain text has ordinary spaces in place of those that do not break.
QString textAsTyped(const QTextDocument& document)
{
    return document.toRawText()
        .replace(QChar::ParagraphSeparator, u'\n')
        .replace(QChar::LineSeparator, u'\n');
}

} // namespace

LinkSettingsView::LinkSettingsView(std::shared_ptr<RepoViewModel> forModel, const QString& text,
                                   PreferencesStore& store, SettingsHost& host, QWidget* parent)
    : QWidget(parent)
    , m_forModel(std::move(forModel))
    , m_store(store)
    , m_host(host)
    , m_editor(new QPlainTextEdit(text, this))
{
    setFixedWidth(viewWidth);
    layOut();
}

void LinkSettingsView::loadLinks()
{
    m_editor->setPlainText(
        m_store.stringForKey(preferences::linksKey(m_forModel->name())).value_or(QString()));
}

void LinkSettingsView::saveLinks()
{
    m_store.setObject(textAsTyped(*m_editor->document()),
                      preferences::linksKey(m_forModel->name()));
    m_host.rebuildMenu();
    closeKeyWindow();
}

void LinkSettingsView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    // A spontaneous event only brings a minimised window back, typed text and all.
    if (event->spontaneous())
        return;
    loadLinks();
    m_editor->setFocus();
}

void LinkSettingsView::layOut()
{
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(outerInset, outerInset, editorEndInset, outerInset);
    column->setSpacing(spacing);
    column->addWidget(newHeading(tr("Add links for '%1'").arg(m_forModel->name()), this));
    for (const QString& line :
         {tr("Copy/Paste with keyboard seems to be broken in Monterey, but you can use the mouse!"),
          tr("Enter the links, one per line, in this format: 'url @@ title'"),
          tr("Example:\n http://www.example.com @@ title in repo menu\n"
             " http://search.example.org @@ search"),
          tr("Tip: with file:// you can link to a local folder")})
        column->addWidget(new SecondaryText(line, this));

    m_editor->setFixedWidth(editorWidth);
    m_editor->setMinimumHeight(editorMinimumHeight);
    m_editor->setAccessibleName(tr("Links"));
    m_editor->setLineWrapMode(QPlainTextEdit::NoWrap);
    // Otherwise the keyboard would not get out of the editor.
    m_editor->setTabChangesFocus(true);
    column->addWidget(new GreyFrame(m_editor, editorInset, this), 1, Qt::AlignLeft);

    auto* const save = new SaveButton(this);
    connect(save, &QPushButton::clicked, this, &LinkSettingsView::saveLinks);
    auto* const buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(save);
    column->addLayout(buttons);
}

} // namespace tarnwick
