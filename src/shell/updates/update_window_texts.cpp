// SPDX-License-Identifier: MIT
#include "shell/updates/update_window_texts.h"

#include "shell/updates/update_session.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLocale>

namespace tarnwick {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(UpdateWindow)
};

QString dataSize(qint64 bytes)
{
    return QLocale().formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat);
}

UpdateWindowTexts offerTexts(const UpdateSession& session)
{
    const AppcastItem& item = *session.offer();
    return {Texts::tr("Tarnwick %1 is available").arg(item.name()),
            Texts::tr("This is build %1, you have build %2. The download takes %3.")
                .arg(item.version, session.buildNumber(), dataSize(item.length)),
            Texts::tr("Later")};
}

UpdateWindowTexts downloadTexts(const UpdateSession& session)
{
    const AppcastItem& item = *session.offer();
    return {Texts::tr("Downloading Tarnwick %1 …").arg(item.name()),
            Texts::tr("%1 of %2").arg(dataSize(session.receivedBytes()), dataSize(item.length)),
            Texts::tr("Cancel")};
}

UpdateWindowTexts savedTexts(const UpdateSession& session)
{
    const QFileInfo file(session.savedPath());
    const QString advice =
        session.isOpened()
            ? Texts::tr("It is being opened, so that you can install it.")
            : Texts::tr("No program was found that opens it. Please install it by hand.");
    return {Texts::tr("Tarnwick %1 has been downloaded").arg(session.offer()->name()),
            Texts::tr("The file “%1” is in the folder %2. %3")
                .arg(file.fileName(), file.path(), advice),
            Texts::tr("Close")};
}

} // namespace

UpdateWindowTexts updateWindowTexts(const UpdateSession& session)
{
    using State = UpdateSession::State;
    switch (session.state()) {
    case State::Checking:
        return {Texts::tr("Checking for updates …"), {}, Texts::tr("Cancel")};
    case State::UpToDate:
        return {Texts::tr("You are up to date"),
                Texts::tr("Tarnwick %1 is the newest version.").arg(session.buildNumber()),
                Texts::tr("Close")};
    case State::Offering:
        return offerTexts(session);
    case State::Downloading:
        return downloadTexts(session);
    case State::Verifying:
        return {Texts::tr("Examining the download …"), {}, Texts::tr("Cancel")};
    case State::Saved:
        return savedTexts(session);
    case State::Failed:
        return {session.offer() ? Texts::tr("The new version could not be downloaded")
                                : Texts::tr("The check for updates failed"),
                session.error(), Texts::tr("Close")};
    }
    return {};
}

} // namespace tarnwick
