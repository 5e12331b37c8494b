// SPDX-License-Identifier: MIT
#include "shell/updates/signature.h"

#include <sodium.h>

namespace tarnwick {

namespace {

QByteArray decoded(const QByteArray& base64, size_t expectedSize)
{
    const auto result =
        QByteArray::fromBase64Encoding(base64.trimmed(), QByteArray::AbortOnBase64DecodingErrors);
    const bool isValid = result && result.decoded.size() == static_cast<qsizetype>(expectedSize);
    return isValid ? result.decoded : QByteArray();
}

const uchar* bytesOf(const QByteArray& array)
{
    return reinterpret_cast<const uchar*>(array.constData());
}

} // namespace

QByteArray decodedPublicKey(const QByteArray& base64)
{
    return decoded(base64, crypto_sign_PUBLICKEYBYTES);
}

QByteArray decodedSignature(const QByteArray& base64)
{
    return decoded(base64, crypto_sign_BYTES);
}

bool isSignedBy(const QByteArray& publicKey, const QByteArray& signature, const uchar* message,
                qint64 size)
{
    return publicKey.size() == crypto_sign_PUBLICKEYBYTES &&
           signature.size() == crypto_sign_BYTES && sodium_init() >= 0 &&
           crypto_sign_verify_detached(bytesOf(signature), message,
                                       static_cast<unsigned long long>(size),
                                       bytesOf(publicKey)) == 0;
}

std::optional<QByteArray> verifiedText(const QByteArray& publicKey, const QByteArray& signedText)
{
    const QByteArray commentStart = "<!-- signature: ";
    const QByteArray commentEnd = " -->";
    const qsizetype size = signedText.lastIndexOf(commentStart);
    QByteArray signature = signedText.mid(size + commentStart.size()).trimmed();
    if (size < 0 || !signature.endsWith(commentEnd))
        return {};
    signature.chop(commentEnd.size());
    if (!isSignedBy(publicKey, decodedSignature(signature), bytesOf(signedText), size))
        return {};
    return signedText.left(size);
}

} // namespace tarnwick
