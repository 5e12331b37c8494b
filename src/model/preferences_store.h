// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>
#include <QMutex>
#include <QObject>
#include <QString>
#include <QVariantMap>

#include <optional>

namespace tarnwick {

/// What the program remembers between runs: booleans and strings under flat keys, kept as one JSON
/// object in one file that only the user may read.
///
/// Reads never fail: an absent or mistyped value reads as absent. Writes are visible to all readers
/// at once and reach the file at the end of the event-loop turn, or in `synchronize()`, or at the
/// latest in the destructor. Values of other types, put there by hand, are kept as they are.
/// Every operation may be called from any thread; the object itself lives on the main thread.
class PreferencesStore : public QObject
{
    Q_OBJECT

public:
    /// Reads the file. One that holds no JSON object is renamed beside it, and the store starts
    /// empty. What cannot be read (another owner's file, a link to nowhere, a device, more than
    /// 16 MiB) or renamed is left alone: the store starts empty, and nothing is ever written.
    /// A diagnostic line tells about either.
    explicit PreferencesStore(QString filePath, QObject* parent = nullptr);
    ~PreferencesStore() override;

    /// Where this user's preferences live.
    [[nodiscard]] static QString defaultFilePath();

    [[nodiscard]] bool boolForKey(const QString& key, bool fallback = false) const;
    void setBool(bool value, const QString& key);
    [[nodiscard]] std::optional<QString> stringForKey(const QString& key) const;
    void setObject(const QString& value, const QString& key);
    void setValue(bool value, const QString& key) { setBool(value, key); }

    /// Every key with its value, sorted by key.
    [[nodiscard]] QVariantMap dictionaryRepresentation() const;

    /// Returns when all writes are on the disk.
    void synchronize();

Q_SIGNALS:
    /// Emitted on the writer's thread after every write, equal values included.
    void valueWritten(const QString& key);

private:
    void load();
    void write(const QString& key, const QJsonValue& value);

    const QString m_filePath;
    bool m_isWritable = true;

    mutable QMutex m_valuesMutex;
    QJsonObject m_values;
    bool m_hasUnsavedWrites = false;
    bool m_isSaveScheduled = false;

    /// Taken before `m_valuesMutex`; keeps an older state from replacing a newer file.
    QMutex m_fileMutex;
};

} // namespace tarnwick
