// SPDX-License-Identifier: MIT
#include "platform/freedesktop/application_instance.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDir>
#include <QLockFile>
#include <QStandardPaths>

namespace tarnwick {

namespace {

constexpr const char* tokenVariable = "XDG_ACTIVATION_TOKEN";
constexpr QLatin1String tokenKey("activation-token");

/// The next window to open takes the token from the environment, and so comes to the front.
void useActivationToken(const QVariantMap& platformData)
{
    const QByteArray token = platformData.value(tokenKey).toByteArray();
    if (!token.isEmpty())
        qputenv(tokenVariable, token);
}

} // namespace

FreedesktopApplicationInstance::FreedesktopApplicationInstance(const QString& identifier)
    : m_identifier(identifier)
    , m_path(u'/' + QString(identifier).replace(u'.', u'/'))
{}

FreedesktopApplicationInstance::~FreedesktopApplicationInstance() = default;

bool FreedesktopApplicationInstance::becomeOnlyCopy()
{
    if (!isReachable())
        return lock();
    QDBusConnection bus = QDBusConnection::sessionBus();
    // Before the name, with which the bus hands over what it has started the program for.
    bus.registerObject(m_path, this, QDBusConnection::ExportAllSlots);
    // The bus takes the name back when the process is gone, however it ended.
    const auto reply = bus.interface()->registerService(m_identifier);
    if (!reply.isValid() || reply.value() == QDBusConnectionInterface::ServiceRegistered)
        return true;
    activateOtherCopy();
    return false;
}

bool FreedesktopApplicationInstance::isReachable() const
{
    return QDBusConnection::sessionBus().isConnected();
}

void FreedesktopApplicationInstance::Activate(const QVariantMap& platformData)
{
    useActivationToken(platformData);
    Q_EMIT activated();
}

void FreedesktopApplicationInstance::Open(const QStringList& /*uris*/,
                                          const QVariantMap& platformData)
{
    Activate(platformData);
}

void FreedesktopApplicationInstance::ActivateAction(const QString& name,
                                                    const QVariantList& /*parameter*/,
                                                    const QVariantMap& platformData)
{
    useActivationToken(platformData);
    Q_EMIT actionRequested(name);
}

void FreedesktopApplicationInstance::activateOtherCopy() const
{
    QVariantMap platformData;
    if (const QString token = qEnvironmentVariable(tokenVariable); !token.isEmpty())
        platformData.insert(tokenKey, token);
    QDBusMessage request = QDBusMessage::createMethodCall(
        m_identifier, m_path, QStringLiteral("org.freedesktop.Application"),
        QStringLiteral("Activate"));
    request << platformData;
    request.setAutoStartService(false); // it may have ended just now
    // A copy that is too busy to answer gets the request all the same.
    constexpr int timeoutMs = 2000;
    QDBusConnection::sessionBus().call(request, QDBus::Block, timeoutMs);
}

bool FreedesktopApplicationInstance::lock()
{
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation));
    m_lock = std::make_unique<QLockFile>(folder.filePath(m_identifier + QStringLiteral(".lock")));
    // Whether it is stale is told by the lock that the kernel holds on it for a running process,
    // not by its age or by what it says.
    m_lock->setStaleLockTime(0);
    if (m_lock->tryLock() || m_lock->error() != QLockFile::LockFailedError)
        return true;
    return m_lock->removeStaleLockFile() && m_lock->tryLock();
}

std::unique_ptr<ApplicationInstance> applicationInstance(const QString& identifier)
{
    return std::make_unique<FreedesktopApplicationInstance>(identifier);
}

} // namespace tarnwick
