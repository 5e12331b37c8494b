// SPDX-License-Identifier: MIT
#include "platform/running_processes.h"

#include <QDir>
#include <QFile>

namespace tarnwick {

ParentByProcess runningProcesses()
{
    const QStringList names =
        QDir(QStringLiteral("/proc")).entryList({QStringLiteral("[0-9]*")}, QDir::Dirs);
    ParentByProcess parents;
    for (const QString& name : names) {
        QFile file(QStringLiteral("/proc/%1/stat").arg(name));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QByteArray line = file.readAll();
        // proc(5). The name of the program, which may hold anything, ends at the last parenthesis.
        const QByteArrayList fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
        if (fields.size() > 1 && fields[0] != "Z" && fields[0] != "X")
            parents.insert(name.toLongLong(), fields[1].toLongLong());
    }
    return parents;
}

} // namespace tarnwick
