// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>
#include <QMutex>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <QVariantMap>

#include <chrono>
#include <memory>
#include <optional>

namespace tarnwick {

class PreferencesStorage;

/// What the program remembers between runs: booleans and strings under flat keys.
///
/// Reads never fail: an absent or mistyped value reads as absent. Writes are visible to all readers
/// at once and are saved at the end of the event-loop turn, or in `synchronize()`, or at the latest
/// in the destructor. Saving that fails is tried again, after a second at first and then after ever
/// longer. What somebody else has changed in the storage is taken over with the next saving. Values
/// of other types, put there by hand, are kept as they are.
/// Every operation may be called from any thread; the object itself lives on the main thread.
class PreferencesStore : public QObject
{
    Q_OBJECT

public:
    /// Loads what the storage holds.
    explicit PreferencesStore(std::unique_ptr<PreferencesStorage> storage,
                              QObject* parent = nullptr);
    /// Keeps them in a PreferencesFile.
    explicit PreferencesStore(QString filePath, QObject* parent = nullptr);
    ~PreferencesStore() override;

    [[nodiscard]] bool boolForKey(const QString& key, bool fallback = false) const;
    void setBool(bool value, const QString& key);
    [[nodiscard]] std::optional<QString> stringForKey(const QString& key) const;
    void setObject(const QString& value, const QString& key);
    void setValue(bool value, const QString& key) { setBool(value, key); }

    /// Every key with its value, sorted by key.
    [[nodiscard]] QVariantMap dictionaryRepresentation() const;

    /// Returns when all writes are on the disk, or could not be put there.
    void synchronize();

Q_SIGNALS:
    /// Emitted on the writer's thread after every write, equal values included, and after a value
    /// has been taken over.
    void valueWritten(const QString& key);

private:
    void write(const QString& key, const QJsonValue& value);
    [[nodiscard]] QStringList takeOver(const QJsonObject& saved, const QJsonObject& held);

    const std::unique_ptr<PreferencesStorage> m_storage;

    mutable QMutex m_valuesMutex;
    QJsonObject m_values;
    bool m_hasUnsavedWrites = false;
    bool m_isSaveScheduled = false;

    /// Taken before `m_valuesMutex`; keeps an older state from replacing a newer one.
    QMutex m_storageMutex;
    std::chrono::milliseconds m_retryDelay;
    QTimer m_retryTimer;
};

} // namespace tarnwick
