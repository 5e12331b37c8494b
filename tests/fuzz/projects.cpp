// SPDX-License-Identifier: MIT
#include "fuzz.h"
#include "model/project_files.h"

#include <QDir>
#include <QTemporaryDir>

void fuzz(const QByteArray& input)
{
    const QTemporaryDir folder;
    const QString name = QString::fromUtf8(input) + QStringLiteral(".xcodeproj");
    if (name.contains(u'/') || !QDir().mkdir(folder.filePath(name)))
        return;
    const auto found = tarnwick::projectFiles(folder.path());
    require(found.size() == !name.startsWith(u'.'));
    require(found.isEmpty() || name.contains(u'%') || found.first().path.contains(folder.path()));
}
