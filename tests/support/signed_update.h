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
        crypto_sign_keypair(bytes(m_publicKey), bytes(m_secretKey));
    }

    [[nodiscard]] const QByteArray& content() const { return m_content; }
    [[nodiscard]] QByteArray publicKey() const { return m_publicKey.toBase64(); }
    [[nodiscard]] QByteArray signature() const { return signatureOf(m_content); }

    [[nodiscard]] QByteArray signedFeed(const QByteArray& url) const
    {
        return signedText(unsignedFeed(url));
    }
    [[nodiscard]] QByteArray signedText(const QByteArray& text) const
    {
        return text + "<!-- signature: " + signatureOf(text) + " -->\n";
    }
    [[nodiscard]] QByteArray unsignedFeed(const QByteArray& url) const
    {
        return R"(<rss xmlns:sparkle="http://www.andymatuschak.org/xml-namespaces/sparkle">
            <channel><item><sparkle:version>10</sparkle:version>
            <sparkle:shortVersionString>1.3</sparkle:shortVersionString>
            <description><![CDATA[<p>Faster <b>menus</b>.</p>]]></description>
            <enclosure url=")" +
               url + R"(" length=")" + QByteArray::number(m_content.size()) +
               R"(" sparkle:edSignature=")" + signature() + "\"/></item></channel></rss>\n";
    }

private:
    [[nodiscard]] QByteArray signatureOf(QByteArray message) const
    {
        QByteArray secretKey = m_secretKey;
        QByteArray signature(crypto_sign_BYTES, 0);
        crypto_sign_detached(bytes(signature), nullptr, bytes(message),
                             static_cast<unsigned long long>(message.size()), bytes(secretKey));
        return signature.toBase64();
    }
    static uchar* bytes(QByteArray& array) { return reinterpret_cast<uchar*>(array.data()); }

    QByteArray m_content;
    QByteArray m_publicKey = QByteArray(crypto_sign_PUBLICKEYBYTES, 0);
    QByteArray m_secretKey = QByteArray(crypto_sign_SECRETKEYBYTES, 0);
};

} // namespace tarnwick::test
