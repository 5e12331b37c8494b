// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

class QNetworkAccessManager;
class QNetworkReply;
class QUrl;

namespace tarnwick {

/// Gets what is at a trusted address, piece by piece. Follows a few redirects, but never to an
/// address that is not trusted; gives up on a server that is silent for long, that answers with
/// anything but success, or that sends more than `mostBytes`.
///
/// Ends with exactly one of `succeeded` and `failed`, unless it is stopped or destroyed before.
class Transfer : public QObject
{
    Q_OBJECT

public:
    /// When the network goes first, a transfer that goes on ends without a signal.
    Transfer(QNetworkAccessManager& network, qint64 mostBytes, QObject* parent);
    ~Transfer() override;

    /// Once.
    void start(const QUrl& url);
    /// Ends it without another signal. To be used instead of destruction by who is being told.
    void stop();

Q_SIGNALS:
    void arrived(const QByteArray& bytes);
    void succeeded();
    /// The reason is a sentence for the user.
    void failed(const QString& reason);

private:
    void turnAway();
    void follow(const QUrl& target);
    void read();
    void finish();
    void fail(const QString& reason);

    QNetworkAccessManager& m_network;
    const qint64 m_mostBytes;
    qint64 m_received = 0;
    int m_redirects = 0;
    QPointer<QNetworkReply> m_reply;
};

} // namespace tarnwick
