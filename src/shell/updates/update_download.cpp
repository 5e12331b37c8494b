// SPDX-License-Identifier: MIT
#include "shell/updates/update_download.h"

#include "shell/updates/http_transfer.h"
#include "shell/updates/partial_file.h"
#include "shell/updates/signature.h"

#include <QDir>
#include <QPromise>
#include <QThreadPool>

namespace tarnwick {

UpdateDownload::UpdateDownload(AppcastItem item, UpdateSettings settings,
                               QNetworkAccessManager& network, QObject* parent)
    : QObject(parent)
    , m_item(std::move(item))
    , m_settings(std::move(settings))
    , m_transfer(new HttpTransfer(network, m_item.length, this))
    , m_file(std::make_shared<PartialFile>(m_settings.downloadFolder))
{
    connect(m_transfer, &HttpTransfer::dataReceived, this, &UpdateDownload::write);
    connect(m_transfer, &HttpTransfer::succeeded, this, &UpdateDownload::verify);
    connect(m_transfer, &HttpTransfer::failed, this, &UpdateDownload::fail);
    connect(&m_verification, &QFutureWatcherBase::finished, this, &UpdateDownload::save);
}

UpdateDownload::~UpdateDownload() = default;

void UpdateDownload::start()
{
    if (m_file->open())
        m_transfer->start(m_item.url);
    else
        failWithFileError();
}

void UpdateDownload::write(const QByteArray& bytes)
{
    if (!m_file->write(bytes))
        return failWithFileError();
    m_received += bytes.size();
    Q_EMIT progressed(m_received);
}

void UpdateDownload::verify()
{
    if (!m_file->flush())
        return failWithFileError();
    Q_EMIT verificationStarted();

    // The pool copies the function, and a promise cannot be copied.
    const auto promise = std::make_shared<QPromise<bool>>();
    promise->start();
    m_verification.setFuture(promise->future());
    QThreadPool::globalInstance()->start(
        [promise, file = m_file, length = m_item.length,
         key = decodedPublicKey(m_settings.publicKey),
         signature = decodedSignature(m_item.signature)]() mutable {
            const bool isGenuine = file->size() == length && file->isSignedBy(key, signature);
            // Released before the result is reported: the file belongs to one thread at a time.
            file.reset();
            promise->addResult(isGenuine);
            promise->finish();
        });
}

void UpdateDownload::save()
{
    if (!m_verification.result()) {
        return fail(tr("The download is damaged or was not made by the people who make Tarnwick. "
                       "It has been deleted."));
    }
    const QString path = m_file->saveAs(safeFileName(m_item.url));
    if (path.isEmpty())
        return failWithFileError();
    Q_EMIT succeeded(path);
}

void UpdateDownload::fail(const QString& reason)
{
    m_transfer->stop();
    m_file.reset();
    Q_EMIT failed(reason);
}

void UpdateDownload::failWithFileError()
{
    fail(tr("The download cannot be saved in %1. %2")
             .arg(QDir::toNativeSeparators(m_settings.downloadFolder), m_file->errorString()));
}

} // namespace tarnwick
