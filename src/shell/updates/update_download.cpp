// SPDX-License-Identifier: MIT
#include "shell/updates/update_download.h"

#include "shell/updates/partial_file.h"
#include "shell/updates/safe_file_name.h"
#include "shell/updates/signature.h"
#include "shell/updates/transfer.h"

#include <QDir>
#include <QPromise>
#include <QThreadPool>

namespace tarnwick {

UpdateDownload::UpdateDownload(AppcastItem item, UpdateSettings settings,
                               QNetworkAccessManager& network, QObject* parent)
    : QObject(parent)
    , m_item(std::move(item))
    , m_settings(std::move(settings))
    , m_transfer(new Transfer(network, m_item.length, this))
    , m_file(std::make_shared<PartialFile>(m_settings.downloadFolder))
{
    connect(m_transfer, &Transfer::arrived, this, &UpdateDownload::write);
    connect(m_transfer, &Transfer::succeeded, this, &UpdateDownload::verify);
    connect(m_transfer, &Transfer::failed, this, &UpdateDownload::fail);
    connect(&m_proof, &QFutureWatcherBase::finished, this, &UpdateDownload::keep);
}

UpdateDownload::~UpdateDownload() = default;

void UpdateDownload::start()
{
    if (m_file->open())
        m_transfer->start(m_item.url);
    else
        failToSave();
}

void UpdateDownload::write(const QByteArray& bytes)
{
    if (!m_file->write(bytes))
        return failToSave();
    m_received += bytes.size();
    Q_EMIT progressed(m_received);
}

void UpdateDownload::verify()
{
    if (!m_file->flush())
        return failToSave();
    Q_EMIT arrived();

    // A job of the pool has to be copyable, a promise is not.
    const auto promise = std::make_shared<QPromise<bool>>();
    promise->start();
    m_proof.setFuture(promise->future());
    QThreadPool::globalInstance()->start(
        [promise, file = m_file, length = m_item.length,
         key = decodedPublicKey(m_settings.publicKey),
         signature = decodedSignature(m_item.signature)]() mutable {
            const bool isGenuine = file->size() == length && file->isSignedBy(key, signature);
            // Before the answer, so that the file is never in two threads.
            file.reset();
            promise->addResult(isGenuine);
            promise->finish();
        });
}

void UpdateDownload::keep()
{
    if (!m_proof.result()) {
        return fail(tr("The download is damaged or was not made by the people who make Tarnwick. "
                       "It has been deleted."));
    }
    const QString path = m_file->keepAs(safeFileName(m_item.url));
    if (path.isEmpty())
        return failToSave();
    Q_EMIT succeeded(path);
}

void UpdateDownload::fail(const QString& reason)
{
    m_transfer->stop();
    m_file.reset();
    Q_EMIT failed(reason);
}

void UpdateDownload::failToSave()
{
    fail(tr("The download cannot be saved in %1. %2")
             .arg(QDir::toNativeSeparators(m_settings.downloadFolder), m_file->errorString()));
}

} // namespace tarnwick
