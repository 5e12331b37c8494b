// SPDX-License-Identifier: MIT
#include "platform/detached_program.h"

#include "platform/program_environment.h"

#include <QProcess>

namespace tarnwick {

bool startDetached(const QString& program, const QStringList& arguments, const QString& folder)
{
    QProcess process;
    process.setProgram(program);
    process.setArguments(arguments);
    process.setWorkingDirectory(folder);
    process.setProcessEnvironment(programEnvironment());
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return process.startDetached();
}

} // namespace tarnwick
