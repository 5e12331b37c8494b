// SPDX-License-Identifier: MIT
#pragma once

#include "shell/updates/appcast.h"
#include "shell/updates/update_settings.h"

#include <QFutureWatcher>
#include <QObject>

#include <memory>

class QNetworkAccessManager;

namespace tarnwick {

class PartialFile;
class Transfer;

/// Downloads one version, proves that it is genuine and only then puts it into the download folder.
/// Ends with exactly one of `succeeded` and `failed`; after `failed`, and when it is destroyed
/// before its end, nothing stays in the folder. Main thread; the proof is made on another.
class UpdateDownload : public QObject
{
    Q_OBJECT

public:
    /// The item is downloadable. For `start()` the network has to be there; when it goes, the
    /// download ends without a signal.
    UpdateDownload(AppcastItem item, UpdateSettings settings, QNetworkAccessManager& network,
                   QObject* parent);
    ~UpdateDownload() override;

    void start();

Q_SIGNALS:
    void progressed(qint64 receivedBytes);
    /// All is there and is being looked at.
    void arrived();
    void succeeded(const QString& path);
    /// The reason is for the user.
    void failed(const QString& reason);

private:
    void write(const QByteArray& bytes);
    void verify();
    void keep();
    void fail(const QString& reason);
    void failToSave();

    const AppcastItem m_item;
    const UpdateSettings m_settings;
    Transfer* const m_transfer;
    qint64 m_received = 0;
    /// Shared with the proof, which may outlast this object.
    std::shared_ptr<PartialFile> m_file;
    QFutureWatcher<bool> m_proof;
};

} // namespace tarnwick
