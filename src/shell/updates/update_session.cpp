// SPDX-License-Identifier: MIT
#include "shell/updates/update_session.h"

#include "shell/updates/http_transfer.h"
#include "shell/updates/signature.h"
#include "shell/updates/update_download.h"
#include "shell/updates/url_policy.h"

#include <QDesktopServices>
#include <QRegularExpression>

namespace tarnwick {

namespace {

constexpr qint64 mebibyte = 1'048'576;
constexpr qint64 maxFeedBytes = mebibyte;
constexpr qint64 maxDownloadBytes = 2048 * mebibyte;

/// Formats that the desktop opens in an installer or an archive manager. Others, such as desktop
/// entries, AppImages and scripts, might be run.
bool isPackage(const QString& path)
{
    static const QRegularExpression suffix(
        QStringLiteral("\\.(deb|rpm|flatpak|dmg|zip|tar\\.(gz|bz2|xz|zst))$"),
        QRegularExpression::CaseInsensitiveOption);
    return path.contains(suffix);
}

} // namespace

UpdateSession::UpdateSession(UpdateSettings settings, QObject* parent)
    : QObject(parent)
    , m_settings(std::move(settings))
{}

void UpdateSession::start()
{
    if (decodedPublicKey(m_settings.publicKey).isEmpty()) {
        return fail(
            tr("This copy of Tarnwick was made without the key that tells a genuine version "
               "from a forged one."));
    }
    auto* const transfer = new HttpTransfer(m_network, maxFeedBytes, this);
    connect(transfer, &HttpTransfer::dataReceived, this,
            [this](const QByteArray& bytes) { m_feed += bytes; });
    connect(transfer, &HttpTransfer::succeeded, this, &UpdateSession::readFeed);
    connect(transfer, &HttpTransfer::failed, this, &UpdateSession::fail);
    transfer->start(m_settings.feed);
}

void UpdateSession::readFeed()
{
    const auto feed = verifiedText(decodedPublicKey(m_settings.publicKey), m_feed);
    if (!feed) {
        return fail(tr("The server's list of updates was not signed by the people who make "
                       "Tarnwick."));
    }
    const auto items = parseAppcast(*feed, appcastSystem());
    if (!items)
        return fail(tr("The server's list of updates cannot be read."));

    m_offer = newestItem(*items, m_settings.buildNumber);
    if (!m_offer)
        return setState(State::UpToDate);
    for (QUrl* const url : {&m_offer->url, &m_offer->notesLink}) {
        if (!url->isEmpty())
            *url = m_settings.feed.resolved(*url);
    }
    if (const QString obstacle = downloadObstacle(*m_offer); !obstacle.isEmpty())
        return fail(obstacle);
    setState(State::Offering);
}

QString UpdateSession::downloadObstacle(const AppcastItem& item) const
{
    if (decodedSignature(item.signature).isEmpty()) {
        return tr("Tarnwick %1 is available, but its download is not signed, so it cannot be told "
                  "from a forged one.")
            .arg(item.name());
    }
    if (!isTrustedTarget(m_settings.feed, item.url)) {
        return tr("Tarnwick %1 is available, but there is no secure address to download it from.")
            .arg(item.name());
    }
    if (item.length <= 0 || item.length > maxDownloadBytes) {
        return tr("Tarnwick %1 is available, but the size of its download is missing or not "
                  "credible.")
            .arg(item.name());
    }
    return {};
}

void UpdateSession::download()
{
    if (m_state != State::Offering)
        return;
    auto* const download = new UpdateDownload(*m_offer, m_settings, m_network, this);
    connect(download, &UpdateDownload::progressed, this, [this](qint64 receivedBytes) {
        m_receivedBytes = receivedBytes;
        Q_EMIT progressed();
    });
    connect(download, &UpdateDownload::verificationStarted, this,
            [this] { setState(State::Verifying); });
    connect(download, &UpdateDownload::succeeded, this, &UpdateSession::openDownload);
    connect(download, &UpdateDownload::failed, this, &UpdateSession::fail);
    setState(State::Downloading);
    download->start();
}

void UpdateSession::openDownload(const QString& path)
{
    m_savedPath = path;
    m_isOpened = isPackage(path) && QDesktopServices::openUrl(QUrl::fromLocalFile(path));
    if (!m_isOpened)
        m_settings.showInFolder(path);
    setState(State::Saved);
}

void UpdateSession::fail(const QString& reason)
{
    m_error = reason;
    setState(State::Failed);
}

void UpdateSession::setState(State state)
{
    m_state = state;
    Q_EMIT stateChanged();
}

} // namespace tarnwick
