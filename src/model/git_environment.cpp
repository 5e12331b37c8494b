// SPDX-License-Identifier: MIT
#include "model/git_environment.h"

#include <array>
#include <utility>

namespace tarnwick {

namespace {

// What `git rev-parse --local-env-vars` lists (git 2.39), and the namespace: all of it belongs to
// the repository of whoever started us, for example a git hook or an alias.
constexpr std::array repositoryVariables{
    u"GIT_ALTERNATE_OBJECT_DIRECTORIES",
    u"GIT_COMMON_DIR",
    u"GIT_CONFIG",
    u"GIT_CONFIG_PARAMETERS",
    u"GIT_DIR",
    u"GIT_GRAFT_FILE",
    u"GIT_IMPLICIT_WORK_TREE",
    u"GIT_INDEX_FILE",
    u"GIT_INTERNAL_SUPER_PREFIX",
    u"GIT_NAMESPACE",
    u"GIT_NO_REPLACE_OBJECTS",
    u"GIT_OBJECT_DIRECTORY",
    u"GIT_PREFIX",
    u"GIT_REPLACE_REF_BASE",
    u"GIT_SHALLOW_FILE",
    u"GIT_WORK_TREE",
};

/// In a partial clone a status may fetch, and the remote may want a password.
void forbidPrompts(QProcessEnvironment& environment)
{
    environment.insert(QStringLiteral("GIT_TERMINAL_PROMPT"), QStringLiteral("0"));
    // An empty value stands before core.askPass.
    environment.insert(QStringLiteral("GIT_ASKPASS"), QString());
    // What BatchMode=yes does, but for every ssh that the user has configured: GIT_SSH_COMMAND
    // would replace core.sshCommand. An askpass program that cannot run, and no terminal instead.
    environment.insert(QStringLiteral("SSH_ASKPASS"), QString());
    environment.insert(QStringLiteral("SSH_ASKPASS_REQUIRE"), QStringLiteral("force"));
}

/// Adds our settings to those that the user has put into the environment; the last of a key counts.
void addConfiguration(QProcessEnvironment& environment)
{
    constexpr std::array<std::pair<const char16_t*, const char16_t*>, 3> settings{{
        // color.status=always puts escape codes even into a pipe.
        {u"color.status", u"false"},
        // Without it a branch that is ahead is reported as "different" only.
        {u"status.aheadBehind", u"true"},
        {u"credential.interactive", u"false"},
    }};
    const QString countName = QStringLiteral("GIT_CONFIG_COUNT");
    const QString keyName = QStringLiteral("GIT_CONFIG_KEY_%1");
    const QString valueName = QStringLiteral("GIT_CONFIG_VALUE_%1");

    const int inheritedCount = environment.value(countName).toInt();
    int count = 0;
    // Git refuses to run where one is missing.
    while (count < inheritedCount && environment.contains(keyName.arg(count)) &&
           environment.contains(valueName.arg(count)))
        ++count;
    for (const auto& [key, value] : settings) {
        environment.insert(keyName.arg(count), QString::fromUtf16(key));
        environment.insert(valueName.arg(count), QString::fromUtf16(value));
        ++count;
    }
    environment.insert(countName, QString::number(count));
}

} // namespace

QProcessEnvironment gitEnvironment(QProcessEnvironment inherited)
{
    for (const auto* name : repositoryVariables)
        inherited.remove(QString::fromUtf16(name));

    // "ahead" and "behind" are translated in other locales.
    inherited.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    // A status in the background must not make the user's own command fail on index.lock.
    inherited.insert(QStringLiteral("GIT_OPTIONAL_LOCKS"), QStringLiteral("0"));
    forbidPrompts(inherited);
    addConfiguration(inherited);
    return inherited;
}

} // namespace tarnwick
