// SPDX-License-Identifier: MIT
#include "settings/links/link_settings_view.h"

#include "model/preference_keys.h"
#include "model/preferences_store.h"
#include "model/repo_view_model.h"
#include "settings/grey_frame.h"
#include "settings/save_button.h"
#include "settings/settings_host.h"
#include "views/colors.h"
#include "views/text_line.h"

#include <QAccessibleWidget>
#include <QGuiApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QShowEvent>
#include <QVBoxLayout>

namespace tarnwick {

namespace {

constexpr int viewWidth = 900;
constexpr int margin = 50;
constexpr int spacing = 10;
constexpr int headingSize = 14;
constexpr int editorWidth = 800;
constexpr int editorMinimumHeight = 300;
constexpr int editorPadding = 10;
/// The framed editor is wider than the space between two margins.
constexpr int rightMargin = viewWidth - margin - (editorWidth + 2 * (editorPadding + 1));

/// Plain text in the secondary label colour of the current palette.
class SecondaryText : public QLabel
{
public:
    SecondaryText(const QString& text, QWidget* parent)
        : QLabel(text, parent)
    {
        setTextFormat(Qt::PlainText);
        setWordWrap(true);
        updateColor();
    }

protected:
    void changeEvent(QEvent* event) override
    {
        if (event->type() == QEvent::PaletteChange)
            updateColor();
        QLabel::changeEvent(event);
    }

private:
    void updateColor()
    {
        const QColor color = secondaryLabelColor(QGuiApplication::palette());
        if (palette().color(QPalette::WindowText) == color)
            return;
        QPalette own = palette();
        own.setColor(QPalette::WindowText, color);
        setPalette(own);
    }
};

/// Bold text that is broken inside words, too: the name of a repository may have no spaces.
class Heading : public TextLine
{
public:
    Heading(const QString& text, QWidget* parent)
        : TextLine(parent)
    {
        QAccessible::installFactory(createAccessible);
        QFont bold = font();
        bold.setPixelSize(headingSize);
        bold.setBold(true);
        setFont(bold);
        setSegments({{text, labelColor(palette())}});
    }

protected:
    void changeEvent(QEvent* event) override
    {
        if (event->type() == QEvent::PaletteChange)
            setSegments({{text(), labelColor(palette())}});
        TextLine::changeEvent(event);
    }

private:
    static QAccessibleInterface* createAccessible(const QString& /*className*/, QObject* object)
    {
        auto* const heading = dynamic_cast<Heading*>(object);
        return heading ? new QAccessibleWidget(heading, QAccessible::Heading) : nullptr;
    }
};

class LinkEditor : public QPlainTextEdit
{
public:
    using QPlainTextEdit::QPlainTextEdit;

protected:
    void insertFromMimeData(const QMimeData* source) override
    {
        // QPlainTextEdit 6.4 crashes on data without formats, such as that of an empty clipboard.
        if (canInsertFromMimeData(source))
            QPlainTextEdit::insertFromMimeData(source);
    }
};

/// Unlike QTextDocument::toPlainText(), keeps no-break spaces.
QString plainText(const QTextDocument& document)
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
    , m_editor(new LinkEditor(text, this))
{
    setFixedWidth(viewWidth);
    createLayout();
}

void LinkSettingsView::loadLinks()
{
    m_editor->setPlainText(
        m_store.stringForKey(preferences::linksKey(m_forModel->name())).value_or(QString()));
}

void LinkSettingsView::saveLinks()
{
    m_store.setObject(plainText(*m_editor->document()), preferences::linksKey(m_forModel->name()));
    m_host.rebuildMenu();
    closeKeyWindow();
}

void LinkSettingsView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    // A spontaneous event restores a minimised window, which keeps its text.
    if (event->spontaneous())
        return;
    loadLinks();
    m_editor->setFocus();
}

void LinkSettingsView::createLayout()
{
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, rightMargin, margin);
    column->setSpacing(spacing);
    column->addWidget(new Heading(tr("Add links for '%1'").arg(m_forModel->name()), this));
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
    // Otherwise the keyboard could not leave the editor.
    m_editor->setTabChangesFocus(true);
    column->addWidget(new GreyFrame(m_editor, editorPadding, this), 1, Qt::AlignLeft);

    auto* const save = new SaveButton(this);
    connect(save, &QPushButton::clicked, this, &LinkSettingsView::saveLinks);
    auto* const buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(save);
    column->addLayout(buttons);
    // Minimum sizes alone do not take wrapped lines into account.
    setMinimumHeight(column->minimumHeightForWidth(viewWidth));
}

} // namespace tarnwick
