// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <optional>

namespace tarnwick {

/// The 32 bytes of an Ed25519 public key from base64; empty where the text is anything else.
[[nodiscard]] QByteArray decodedPublicKey(const QByteArray& base64);

/// The 64 bytes of an Ed25519 signature from base64; empty where the text is anything else.
[[nodiscard]] QByteArray decodedSignature(const QByteArray& base64);

/// Verifies a signature. False for a key or a signature of a wrong length. Takes about three
/// seconds per gigabyte; any thread.
[[nodiscard]] bool isSignedBy(const QByteArray& publicKey, const QByteArray& signature,
                              const uchar* message, qint64 size);

/// Verifies a text that ends with a signature of everything before that, in a comment of XML:
/// "<!-- signature: BASE64 -->". The text without the comment; nothing if the signature is missing
/// or invalid, or if anything but white space follows.
[[nodiscard]] std::optional<QByteArray> verifiedText(const QByteArray& publicKey,
                                                     const QByteArray& signedText);

} // namespace tarnwick
