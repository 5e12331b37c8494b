// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

class QNetworkAccessManager;
class QNetworkReply;
class QUrl;

namespace tarnwick {

/// Downloads the body of a trusted URL in chunks. Follows a few redirects to trusted targets;
/// fails on an inactivity timeout, on any status but 200 and on more than `maxBytes`.
///
/// Ends with exactly one of `succeeded` and `failed`, unless it is stopped or destroyed before.
class HttpTransfer : public QObject
{
    Q_OBJECT

public:
    /// If `network` is destroyed first, a running transfer ends without a signal.
    HttpTransfer(QNetworkAccessManager& network, qint64 maxBytes, QObject* parent);
    ~HttpTransfer() override;

    /// To be called once.
    void start(const QUrl& url);
    /// Ends it without another signal. Unlike destruction, safe in a slot of its signals.
    void stop();

Q_SIGNALS:
    void dataReceived(const QByteArray& bytes);
    void succeeded();
    /// The reason is a sentence for the user.
    void failed(const QString& reason);

private:
    void rejectResponse();
    void followRedirect(const QUrl& target);
    void read();
    void finish();
    void fail(const QString& reason);

    QNetworkAccessManager& m_network;
    const qint64 m_maxBytes;
    qint64 m_received = 0;
    int m_redirects = 0;
    QPointer<QNetworkReply> m_reply;
};

} // namespace tarnwick
