// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace tarnwick {

/// The 32 bytes of an Ed25519 public key from base64; empty where the text is anything else.
[[nodiscard]] QByteArray decodedPublicKey(const QByteArray& base64);

/// The 64 bytes of an Ed25519 signature from base64; empty where the text is anything else.
[[nodiscard]] QByteArray decodedSignature(const QByteArray& base64);

/// Verifies a signature. False for a key or a signature of a wrong length. Takes about three
/// seconds per gigabyte; any thread.
[[nodiscard]] bool isSignedBy(const QByteArray& publicKey, const QByteArray& signature,
                              const uchar* message, qint64 size);

} // namespace tarnwick
