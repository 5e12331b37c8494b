// SPDX-License-Identifier: MIT
#include "shell/updates/update_window.h"

#include "shell/updates/notes_view.h"
#include "shell/updates/update_window_texts.h"
#include "shell/updates/web_page.h"

#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace tarnwick {

namespace {

constexpr int windowWidth = 480;
constexpr int notesHeight = 240;
constexpr int notesInset = 8;
constexpr int inset = 20;
constexpr int spacing = 12;
constexpr double headingScale = 1.25;
constexpr int progressSteps = 1000;

/// What it shows may come from the network.
QLabel* newPlainLabel(QWidget* parent)
{
    auto* const label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setWordWrap(true);
    return label;
}

} // namespace

UpdateWindow::UpdateWindow(UpdateSettings settings, QWidget* parent)
    : QDialog(parent)
    , m_session(std::move(settings))
    , m_heading(newPlainLabel(this))
    , m_detail(newPlainLabel(this))
    , m_progress(new QProgressBar(this))
    , m_notes(new NotesView(this))
    , m_notesLink(new QLabel(this))
    , m_download(new QPushButton(tr("Download"), this))
    , m_dismiss(new QPushButton(this))
{
    layOut();
    connect(m_download, &QPushButton::clicked, &m_session, &UpdateSession::download);
    connect(m_dismiss, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_notesLink, &QLabel::linkActivated, this,
            [this] { openWebPage(m_session.offer()->notesLink); });
    connect(&m_session, &UpdateSession::stateChanged, this, &UpdateWindow::render);
    connect(&m_session, &UpdateSession::progressed, this, &UpdateWindow::renderProgress);
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, &QWidget::close);

    render();
    moveToCenter();
    m_session.start();
}

void UpdateWindow::layOut()
{
    QFont font = m_heading->font();
    font.setBold(true);
    font.setPointSizeF(QFontInfo(font).pointSizeF() * headingScale);
    m_heading->setFont(font);
    m_progress->setTextVisible(false);
    m_progress->setAccessibleName(tr("Progress"));
    m_notes->setMinimumHeight(notesHeight);
    m_notes->document()->setDocumentMargin(notesInset);
    m_notesLink->setText(QStringLiteral("<a href=\"notes\">%1</a>")
                             .arg(tr("Release notes on the web").toHtmlEscaped()));
    m_notesLink->setTextInteractionFlags(Qt::LinksAccessibleByMouse |
                                         Qt::LinksAccessibleByKeyboard);

    auto* const buttons = new QDialogButtonBox(this);
    buttons->addButton(m_download, QDialogButtonBox::AcceptRole);
    buttons->addButton(m_dismiss, QDialogButtonBox::RejectRole);

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(inset, inset, inset, inset);
    layout->setSpacing(spacing);
    layout->addWidget(m_heading);
    layout->addWidget(m_progress);
    layout->addWidget(m_detail);
    layout->addWidget(m_notes, 1);
    layout->addWidget(m_notesLink);
    layout->addStretch();
    layout->addWidget(buttons);
    setMinimumWidth(windowWidth);
}

/// Leaves room to grow for the notes. The place has to be known before the window is shown: a size
/// that changes while the window manager is still looking for one would lead it into a corner.
void UpdateWindow::moveToCenter()
{
    const QScreen* const pointed = QGuiApplication::screenAt(QCursor::pos());
    QRect grown({}, QSize(width(), height() + notesHeight));
    grown.moveCenter((pointed ? pointed : screen())->availableGeometry().center());
    move(grown.topLeft());
}

void UpdateWindow::render()
{
    using State = UpdateSession::State;
    const State state = m_session.state();
    const bool isDownloading = state == State::Downloading;
    const bool isOffering = state == State::Offering;

    const UpdateWindowTexts texts = updateWindowTexts(m_session);
    m_heading->setText(texts.heading);
    m_detail->setText(texts.detail);
    m_detail->setVisible(!texts.detail.isEmpty());
    m_dismiss->setText(texts.dismiss);

    // Without an end it moves to and fro.
    m_progress->setRange(0, isDownloading ? progressSteps : 0);
    m_progress->setVisible(isDownloading || state == State::Checking || state == State::Verifying);

    m_notes->setVisible(false);
    m_notesLink->setVisible(false);
    if (isOffering)
        renderOffer();
    m_download->setVisible(isOffering);
    QPushButton* const button = isOffering ? m_download : m_dismiss;
    button->setDefault(true);
    button->setFocus();
    layout()->activate();
    resize(windowWidth, layout()->totalHeightForWidth(windowWidth));
}

void UpdateWindow::renderOffer()
{
    const AppcastItem& item = *m_session.offer();
    m_notes->showNotes(item);
    m_notes->setVisible(!item.notes.isEmpty());
    m_notesLink->setVisible(isWebPage(item.notesLink));
}

void UpdateWindow::renderProgress()
{
    m_detail->setText(updateWindowTexts(m_session).detail);
    m_progress->setValue(
        static_cast<int>(progressSteps * m_session.receivedBytes() / m_session.offer()->length));
}

} // namespace tarnwick
