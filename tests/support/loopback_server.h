// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

#include <functional>

namespace tarnwick::test {

/// An HTTP server on 127.0.0.1. Each path has one answer, all others get 404; each connection is
/// closed after its answer. Needs the event loop of its thread.
class LoopbackServer
{
public:
    using Answer = std::function<void(QTcpSocket& client)>;

    LoopbackServer()
    {
        m_server.listen(QHostAddress::LocalHost);
        QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] {
            auto* const client = m_server.nextPendingConnection();
            QObject::connect(client, &QTcpSocket::readyRead, client, [this, client] {
                const QByteArray path = client->peek(4096).split(' ').value(1);
                if (client->peek(65536).contains("\r\n\r\n") && !client->readAll().isEmpty())
                    m_answers.value(path, bytes({}, "404 Not Found"))(*client);
            });
        });
    }

    [[nodiscard]] QUrl url(const QByteArray& path) const
    {
        return QUrl(QStringLiteral("http://127.0.0.1:%1%2")
                        .arg(m_server.serverPort())
                        .arg(QString::fromLatin1(path)));
    }

    void answer(const QByteArray& path, Answer answer) { m_answers[path] = std::move(answer); }

    [[nodiscard]] static Answer bytes(const QByteArray& body, const QByteArray& status = "200 OK",
                                      const QByteArray& header = "X-Header: none")
    {
        return [=](QTcpSocket& client) {
            client.write("HTTP/1.1 " + status + "\r\n" + header + "\r\nConnection: close\r\n\r\n");
            client.write(body);
            client.disconnectFromHost();
        };
    }
    [[nodiscard]] static Answer redirect(const QByteArray& target)
    {
        return bytes("A page that says where to go.", "302 Found", "Location: " + target);
    }
    /// Closes the connection before the announced length.
    [[nodiscard]] static Answer truncated(const QByteArray& begin)
    {
        return bytes(begin, "200 OK", "Content-Length: 1000000");
    }
    [[nodiscard]] static Answer noResponse()
    {
        return [](QTcpSocket&) {};
    }

private:
    QTcpServer m_server;
    QHash<QByteArray, Answer> m_answers;
};

} // namespace tarnwick::test
