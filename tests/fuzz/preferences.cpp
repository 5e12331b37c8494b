// SPDX-License-Identifier: MIT
#include "fuzz.h"
#include "model/preferences_store.h"

#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

void fuzz(const QByteArray& input)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("p")));
    require(file.open(QIODevice::WriteOnly) && file.write(input) == input.size());
    file.close();
    tarnwick::PreferencesStore(file.fileName()).setBool(true, QStringLiteral("onyIcons"));
    QJsonObject expected = QJsonDocument::fromJson(input).object();
    expected.insert(QStringLiteral("onyIcons"), true);
    require(file.open(QIODevice::ReadOnly));
    require(QJsonDocument::fromJson(file.readAll()).object() == expected);
}
