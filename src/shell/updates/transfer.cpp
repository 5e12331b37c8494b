// SPDX-License-Identifier: MIT
#include "shell/updates/transfer.h"

#include "shell/updates/trusted_address.h"

#include <QCoreApplication>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>

namespace tarnwick {

namespace {

constexpr int mostRedirects = 5;
constexpr int mostSilenceMs = 30'000;
constexpr int statusOk = 200;
constexpr int firstErrorStatus = 400;

QNetworkRequest requestFor(const QUrl& url)
{
    QNetworkRequest request(url);
    // Each target is looked at first. Qt 6.4's own policy for that loses its way among several
    // redirects.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::ManualRedirectPolicy);
    request.setTransferTimeout(mostSilenceMs);
    request.setHeader(QNetworkRequest::UserAgentHeader, QCoreApplication::applicationName());
    // Sizes and signatures are those of the file itself.
    request.setRawHeader("Accept-Encoding", "identity");
    return request;
}

int statusOf(const QNetworkReply& reply)
{
    return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

QString siteOf(const QUrl& url)
{
    return url.toDisplayString(QUrl::RemoveUserInfo | QUrl::RemovePath | QUrl::RemoveQuery |
                               QUrl::RemoveFragment);
}

QString failureOf(const QNetworkReply& reply)
{
    const QString host = reply.url().host();
    if (const int status = statusOf(reply); status >= firstErrorStatus)
        return Transfer::tr("The server %1 refused the request (error %2).").arg(host).arg(status);

    switch (reply.error()) {
    case QNetworkReply::OperationCanceledError:
    case QNetworkReply::TimeoutError:
        return Transfer::tr("The server %1 does not answer.").arg(host);
    case QNetworkReply::HostNotFoundError:
        return Transfer::tr("The server %1 cannot be found. Is there a network connection?")
            .arg(host);
    case QNetworkReply::ConnectionRefusedError:
        return Transfer::tr("The server %1 accepts no connection.").arg(host);
    case QNetworkReply::RemoteHostClosedError:
        return Transfer::tr("The server %1 broke the connection off.").arg(host);
    case QNetworkReply::SslHandshakeFailedError:
        return Transfer::tr("There is no secure connection to the server %1.").arg(host);
    default:
        return Transfer::tr("The network reports: %1").arg(reply.errorString());
    }
}

} // namespace

Transfer::Transfer(QNetworkAccessManager& network, qint64 mostBytes, QObject* parent)
    : QObject(parent)
    , m_network(network)
    , m_mostBytes(mostBytes)
{}

Transfer::~Transfer()
{
    stop();
}

void Transfer::start(const QUrl& url)
{
    if (!isTrustedAddress(url))
        return fail(tr("The address is not secure: %1").arg(siteOf(url)));

    m_reply = m_network.get(requestFor(url));
    connect(m_reply, &QNetworkReply::readyRead, this, &Transfer::read);
    connect(m_reply, &QNetworkReply::finished, this, &Transfer::finish);
}

void Transfer::stop()
{
    if (!m_reply)
        return;
    m_reply->disconnect(this);
    m_reply->abort();
    m_reply->deleteLater();
    m_reply.clear();
}

/// What the server sends instead of what was asked for is of no interest, and may have no end.
void Transfer::turnAway()
{
    const int status = statusOf(*m_reply);
    if (status >= firstErrorStatus)
        return fail(failureOf(*m_reply));
    const QUrl target = m_reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    if (!target.isEmpty())
        return follow(m_reply->url().resolved(target));
    fail(tr("The server %1 gives an unexpected answer (%2).")
             .arg(m_reply->url().host())
             .arg(status));
}

void Transfer::follow(const QUrl& target)
{
    if (++m_redirects > mostRedirects)
        return fail(tr("The server %1 redirects without end.").arg(m_reply->url().host()));
    stop();
    start(target);
}

void Transfer::read()
{
    if (statusOf(*m_reply) != statusOk)
        return turnAway();
    // No more than that: a number would be the size of the memory taken for it.
    const QByteArray bytes = m_reply->readAll();
    m_received += bytes.size();
    if (m_received > m_mostBytes)
        return fail(tr("The server %1 sends more than it should.").arg(m_reply->url().host()));
    Q_EMIT arrived(bytes);
}

void Transfer::finish()
{
    if (m_reply->error() != QNetworkReply::NoError)
        return fail(failureOf(*m_reply));
    if (statusOf(*m_reply) != statusOk)
        return turnAway();
    read();
    if (!m_reply)
        return;
    stop();
    Q_EMIT succeeded();
}

void Transfer::fail(const QString& reason)
{
    stop();
    Q_EMIT failed(reason);
}

} // namespace tarnwick
