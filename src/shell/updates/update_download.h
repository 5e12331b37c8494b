// SPDX-License-Identifier: MIT
#pragma once

#include "shell/updates/appcast.h"
#include "shell/updates/updater.h"

#include <QFutureWatcher>
#include <QObject>

#include <memory>

class QNetworkAccessManager;

namespace tarnwick {

class PartialFile;
class HttpTransfer;

/// Downloads one version, verifies its signature and only then puts it into the download folder.
/// Ends with exactly one of `succeeded` and `failed`; after `failed`, and when it is destroyed
/// earlier, nothing stays in the folder. Main thread; the signature is verified on another.
class UpdateDownload : public QObject
{
    Q_OBJECT

public:
    /// The item has a trusted URL, a length and a signature. If `network` is destroyed first, the
    /// download ends without a signal.
    UpdateDownload(AppcastItem item, UpdateSettings settings, QNetworkAccessManager& network,
                   QObject* parent);
    ~UpdateDownload() override;

    void start();

Q_SIGNALS:
    void progressed(qint64 receivedBytes);
    /// Everything is received; the signature is being verified.
    void verificationStarted();
    void succeeded(const QString& path);
    /// The reason is a sentence for the user.
    void failed(const QString& reason);

private:
    void write(const QByteArray& bytes);
    void verify();
    void save();
    void fail(const QString& reason);
    void failWithFileError();

    const AppcastItem m_item;
    const UpdateSettings m_settings;
    HttpTransfer* const m_transfer;
    qint64 m_received = 0;
    /// Shared with the verification, which may outlast this object.
    std::shared_ptr<PartialFile> m_file;
    QFutureWatcher<bool> m_verification;
};

} // namespace tarnwick
