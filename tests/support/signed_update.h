// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <sodium.h>

namespace tarnwick::test {

/// A package signed with a new key, and the feed that announces it as version 10.
class SignedUpdate
{
public:
    explicit SignedUpdate(QByteArray content)
        : m_content(std::move(content))
    {
        QByteArray secretKey(crypto_sign_SECRETKEYBYTES, 0);
        QByteArray publicKey(crypto_sign_PUBLICKEYBYTES, 0);
        QByteArray signature(crypto_sign_BYTES, 0);
        crypto_sign_keypair(bytes(publicKey), bytes(secretKey));
        crypto_sign_detached(bytes(signature), nullptr, bytes(m_content),
                             static_cast<unsigned long long>(m_content.size()), bytes(secretKey));
        m_publicKey = publicKey.toBase64();
        m_signature = signature.toBase64();
    }

    [[nodiscard]] const QByteArray& content() const { return m_content; }
    [[nodiscard]] const QByteArray& publicKey() const { return m_publicKey; }
    [[nodiscard]] const QByteArray& signature() const { return m_signature; }

    [[nodiscard]] QByteArray feed(const QByteArray& url) const
    {
        return R"(<rss xmlns:sparkle="http://www.andymatuschak.org/xml-namespaces/sparkle">
            <channel><item><sparkle:version>10</sparkle:version>
            <sparkle:shortVersionString>1.3</sparkle:shortVersionString>
            <description><![CDATA[<p>Faster <b>menus</b>.</p>]]></description>
            <enclosure url=")" +
               url + R"(" length=")" + QByteArray::number(m_content.size()) +
               R"(" sparkle:edSignature=")" + m_signature + R"("/></item></channel></rss>)";
    }

private:
    static uchar* bytes(QByteArray& array) { return reinterpret_cast<uchar*>(array.data()); }

    QByteArray m_content;
    QByteArray m_publicKey;
    QByteArray m_signature;
};

} // namespace tarnwick::test
