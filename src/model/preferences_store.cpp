// SPDX-License-Identifier: MIT
#include "model/preferences_store.h"

#include "model/preferences_file.h"

#include <QMutexLocker>

#include <algorithm>
#include <utility>

namespace tarnwick {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds firstRetryDelay = 1s;
constexpr std::chrono::milliseconds maxRetryDelay = 5min;

} // namespace

PreferencesStore::PreferencesStore(std::unique_ptr<PreferencesStorage> storage, QObject* parent)
    : QObject(parent)
    , m_storage(std::move(storage))
    , m_values(m_storage->load())
    , m_retryDelay(firstRetryDelay)
{
    m_retryTimer.setSingleShot(true);
    connect(&m_retryTimer, &QTimer::timeout, this, &PreferencesStore::synchronize);
}

PreferencesStore::PreferencesStore(QString filePath, QObject* parent)
    : PreferencesStore(std::make_unique<PreferencesFile>(std::move(filePath)), parent)
{}

PreferencesStore::~PreferencesStore()
{
    synchronize();
}

bool PreferencesStore::boolForKey(const QString& key, bool fallback) const
{
    const QMutexLocker lock(&m_valuesMutex);
    return m_values.value(key).toBool(fallback);
}

void PreferencesStore::setBool(bool value, const QString& key)
{
    write(key, value);
}

std::optional<QString> PreferencesStore::stringForKey(const QString& key) const
{
    const QMutexLocker lock(&m_valuesMutex);
    const QJsonValue value = m_values.value(key);
    return value.isString() ? std::optional(value.toString()) : std::nullopt;
}

void PreferencesStore::setObject(const QString& value, const QString& key)
{
    write(key, value);
}

QVariantMap PreferencesStore::dictionaryRepresentation() const
{
    const QMutexLocker lock(&m_valuesMutex);
    return m_values.toVariantMap();
}

void PreferencesStore::synchronize()
{
    QMutexLocker storageLock(&m_storageMutex);
    QJsonObject values;
    {
        const QMutexLocker lock(&m_valuesMutex);
        m_isSaveScheduled = false;
        if (!m_hasUnsavedWrites)
            return;
        m_hasUnsavedWrites = false;
        values = m_values;
    }
    QJsonObject held = values;
    if (m_storage->save(held)) {
        m_retryDelay = firstRetryDelay;
        const QStringList changed = takeOver(values, held);
        storageLock.unlock();
        for (const QString& key : changed)
            Q_EMIT valueWritten(key);
        return;
    }
    {
        const QMutexLocker lock(&m_valuesMutex);
        m_hasUnsavedWrites = true;
    }
    QMetaObject::invokeMethod(this, [this, delay = m_retryDelay] { m_retryTimer.start(delay); });
    m_retryDelay = std::min(2 * m_retryDelay, maxRetryDelay);
}

/// Adopts what others have changed, but for what has been written here since `saved`; returns the
/// keys.
QStringList PreferencesStore::takeOver(const QJsonObject& saved, const QJsonObject& held)
{
    const QMutexLocker lock(&m_valuesMutex);
    QStringList changed;
    for (const QString& key : saved.keys() + held.keys()) {
        if (saved.value(key) == held.value(key) || m_values.value(key) != saved.value(key))
            continue;
        if (held.contains(key))
            m_values.insert(key, held.value(key));
        else
            m_values.remove(key);
        changed += key;
    }
    return changed;
}

void PreferencesStore::write(const QString& key, const QJsonValue& value)
{
    bool wasSaveScheduled = false;
    {
        const QMutexLocker lock(&m_valuesMutex);
        m_values.insert(key, value);
        m_hasUnsavedWrites = true;
        wasSaveScheduled = std::exchange(m_isSaveScheduled, true);
    }
    if (!wasSaveScheduled)
        QMetaObject::invokeMethod(this, &PreferencesStore::synchronize, Qt::QueuedConnection);
    Q_EMIT valueWritten(key);
}

} // namespace tarnwick
