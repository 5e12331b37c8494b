// SPDX-License-Identifier: MIT
#include "shell/updates/http_transfer.h"

#include "shell/updates/url_policy.h"

#include <QCoreApplication>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>

#include <chrono>

namespace tarnwick {

namespace {

using namespace std::chrono_literals;

constexpr int maxRedirects = 5;
constexpr std::chrono::milliseconds inactivityTimeout = 30s;
constexpr int statusOk = 200;
constexpr int minErrorStatus = 400;

QNetworkRequest requestFor(const QUrl& url)
{
    QNetworkRequest request(url);
    // Each target is checked first. The policy of Qt 6.4 that asks for that fails at the second
    // redirect.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::ManualRedirectPolicy);
    request.setTransferTimeout(static_cast<int>(inactivityTimeout.count()));
    request.setHeader(QNetworkRequest::UserAgentHeader, QCoreApplication::applicationName());
    // Length and signature are those of the file itself, not of a compressed body.
    request.setRawHeader("Accept-Encoding", "identity");
    return request;
}

int statusOf(const QNetworkReply& reply)
{
    return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

QString originOf(const QUrl& url)
{
    return url.toDisplayString(QUrl::RemoveUserInfo | QUrl::RemovePath | QUrl::RemoveQuery |
                               QUrl::RemoveFragment);
}

QString errorText(const QNetworkReply& reply)
{
    const QString host = reply.url().host();
    if (const int status = statusOf(reply); status >= minErrorStatus)
        return HttpTransfer::tr("The server %1 refused the request (error %2).")
            .arg(host, QString::number(status));

    switch (reply.error()) {
    case QNetworkReply::OperationCanceledError:
    case QNetworkReply::TimeoutError:
        return HttpTransfer::tr("The server %1 does not answer.").arg(host);
    case QNetworkReply::HostNotFoundError:
        return HttpTransfer::tr("The server %1 cannot be found. Is there a network connection?")
            .arg(host);
    case QNetworkReply::ConnectionRefusedError:
        return HttpTransfer::tr("The server %1 accepts no connection.").arg(host);
    case QNetworkReply::RemoteHostClosedError:
        return HttpTransfer::tr("The server %1 broke the connection off.").arg(host);
    case QNetworkReply::SslHandshakeFailedError:
        return HttpTransfer::tr("There is no secure connection to the server %1.").arg(host);
    default:
        return HttpTransfer::tr("The network reports: %1").arg(reply.errorString());
    }
}

} // namespace

HttpTransfer::HttpTransfer(QNetworkAccessManager& network, qint64 maxBytes, QObject* parent)
    : QObject(parent)
    , m_network(network)
    , m_maxBytes(maxBytes)
{}

HttpTransfer::~HttpTransfer()
{
    stop();
}

void HttpTransfer::start(const QUrl& url)
{
    if (!isTrustedUrl(url))
        return fail(tr("The address is not secure: %1").arg(originOf(url)));

    m_reply = m_network.get(requestFor(url));
    connect(m_reply, &QNetworkReply::readyRead, this, &HttpTransfer::read);
    connect(m_reply, &QNetworkReply::finished, this, &HttpTransfer::finish);
}

void HttpTransfer::stop()
{
    if (!m_reply)
        return;
    m_reply->disconnect(this);
    m_reply->abort();
    m_reply->deleteLater();
    m_reply.clear();
}

/// Ends the transfer without reading the body, which may be endless.
void HttpTransfer::rejectResponse()
{
    const int status = statusOf(*m_reply);
    if (status >= minErrorStatus)
        return fail(errorText(*m_reply));
    const QUrl target = m_reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    if (!target.isEmpty())
        return followRedirect(m_reply->url().resolved(target));
    fail(tr("The server %1 gives an unexpected answer (%2).")
             .arg(m_reply->url().host(), QString::number(status)));
}

void HttpTransfer::followRedirect(const QUrl& target)
{
    if (!isTrustedTarget(m_reply->url(), target)) {
        return fail(tr("The server %1 redirects to an address that is not secure: %2")
                        .arg(m_reply->url().host(), originOf(target)));
    }
    if (++m_redirects > maxRedirects)
        return fail(tr("The server %1 redirects without end.").arg(m_reply->url().host()));
    stop();
    start(target);
}

void HttpTransfer::read()
{
    if (statusOf(*m_reply) != statusOk)
        return rejectResponse();
    // Not read(maxSize), which allocates maxSize bytes.
    const QByteArray bytes = m_reply->readAll();
    m_received += bytes.size();
    if (m_received > m_maxBytes)
        return fail(tr("The server %1 sends more than it should.").arg(m_reply->url().host()));
    Q_EMIT dataReceived(bytes);
}

void HttpTransfer::finish()
{
    if (m_reply->error() != QNetworkReply::NoError)
        return fail(errorText(*m_reply));
    if (statusOf(*m_reply) != statusOk)
        return rejectResponse();
    read();
    if (!m_reply)
        return;
    stop();
    Q_EMIT succeeded();
}

void HttpTransfer::fail(const QString& reason)
{
    stop();
    Q_EMIT failed(reason);
}

} // namespace tarnwick
