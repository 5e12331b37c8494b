// SPDX-License-Identifier: MIT
#include "shell/updates/update_window.h"

#include "shell/updates/release_notes_view.h"
#include "shell/updates/url_policy.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace tarnwick {

namespace {

constexpr int windowWidth = 480;
constexpr int notesHeight = 240;
constexpr int notesMargin = 8;
constexpr int margin = 20;
constexpr int spacing = 12;
constexpr double headingScale = 1.25;
constexpr int progressSteps = 1000;

struct Texts
{
    QString heading;
    QString detail;
    QString closeButton;
};

QString dataSize(qint64 bytes)
{
    return QLocale().formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat);
}

Texts offerTexts(const UpdateSession& session)
{
    const AppcastItem& item = *session.offer();
    return {UpdateWindow::tr("Tarnwick %1 is available").arg(item.name()),
            UpdateWindow::tr("This is build %1, you have build %2. The download takes %3.")
                .arg(item.version, session.buildNumber(), dataSize(item.length)),
            UpdateWindow::tr("Later")};
}

Texts downloadTexts(const UpdateSession& session)
{
    const AppcastItem& item = *session.offer();
    return {
        UpdateWindow::tr("Downloading Tarnwick %1 …").arg(item.name()),
        UpdateWindow::tr("%1 of %2").arg(dataSize(session.receivedBytes()), dataSize(item.length)),
        UpdateWindow::tr("Cancel")};
}

Texts savedTexts(const UpdateSession& session)
{
    const QFileInfo file(session.savedPath());
    const QString request = session.isOpened()
                                ? UpdateWindow::tr("Your desktop has been asked to open it.")
                                : UpdateWindow::tr("Your file manager has been asked to show it.");
    return {UpdateWindow::tr("Tarnwick %1 has been downloaded").arg(session.offer()->name()),
            UpdateWindow::tr("The file “%1” is in the folder %2. %3")
                .arg(file.fileName(), QDir::toNativeSeparators(file.path()), request),
            UpdateWindow::tr("Close")};
}

Texts windowTexts(const UpdateSession& session)
{
    using State = UpdateSession::State;
    switch (session.state()) {
    case State::Checking:
        return {UpdateWindow::tr("Checking for updates …"), {}, UpdateWindow::tr("Cancel")};
    case State::UpToDate:
        return {UpdateWindow::tr("You are up to date"),
                UpdateWindow::tr("Tarnwick %1 is the newest version.").arg(session.buildNumber()),
                UpdateWindow::tr("Close")};
    case State::Offering:
        return offerTexts(session);
    case State::Downloading:
        return downloadTexts(session);
    case State::Verifying:
        return {UpdateWindow::tr("Verifying the download …"), {}, UpdateWindow::tr("Cancel")};
    case State::Saved:
        return savedTexts(session);
    case State::Failed:
        return {session.offer() ? UpdateWindow::tr("The new version could not be downloaded")
                                : UpdateWindow::tr("The check for updates failed"),
                session.error(), UpdateWindow::tr("Close")};
    }
    return {};
}

/// Plain text: parts of it come from the network.
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
    , m_notes(new ReleaseNotesView(this))
    , m_notesLink(new QLabel(this))
    , m_download(new QPushButton(tr("Download"), this))
    , m_close(new QPushButton(this))
{
    layOut();
    connect(m_download, &QPushButton::clicked, &m_session, &UpdateSession::download);
    connect(m_close, &QPushButton::clicked, this, &QDialog::reject);
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
    m_notes->document()->setDocumentMargin(notesMargin);
    m_notesLink->setText(QStringLiteral("<a href=\"notes\">%1</a>")
                             .arg(tr("Release notes on the web").toHtmlEscaped()));
    m_notesLink->setTextInteractionFlags(Qt::LinksAccessibleByMouse |
                                         Qt::LinksAccessibleByKeyboard);

    auto* const buttons = new QDialogButtonBox(this);
    buttons->addButton(m_download, QDialogButtonBox::AcceptRole);
    buttons->addButton(m_close, QDialogButtonBox::RejectRole);

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
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

/// Centred as if the notes were visible, and before the window is shown: a size that changes while
/// the window manager places the window would put it into a corner.
void UpdateWindow::moveToCenter()
{
    const QScreen* const pointerScreen = QGuiApplication::screenAt(QCursor::pos());
    QRect area({}, QSize(width(), height() + notesHeight));
    area.moveCenter((pointerScreen ? pointerScreen : screen())->availableGeometry().center());
    move(area.topLeft());
}

void UpdateWindow::render()
{
    using State = UpdateSession::State;
    const State state = m_session.state();
    const bool isDownloading = state == State::Downloading;
    const bool isOffering = state == State::Offering;

    const Texts texts = windowTexts(m_session);
    m_heading->setText(texts.heading);
    m_detail->setText(texts.detail);
    m_detail->setVisible(!texts.detail.isEmpty());
    m_close->setText(texts.closeButton);

    // An empty range shows a busy indicator.
    m_progress->setRange(0, isDownloading ? progressSteps : 0);
    m_progress->setVisible(isDownloading || state == State::Checking || state == State::Verifying);

    m_notes->setVisible(false);
    m_notesLink->setVisible(false);
    if (isOffering)
        renderOffer();
    m_download->setVisible(isOffering);
    QPushButton* const button = isOffering ? m_download : m_close;
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
    m_detail->setText(windowTexts(m_session).detail);
    m_progress->setValue(
        static_cast<int>(progressSteps * m_session.receivedBytes() / m_session.offer()->length));
}

} // namespace tarnwick
