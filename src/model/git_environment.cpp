// SPDX-License-Identifier: MIT
#include "model/git_environment.h"

#include <array>
#include <utility>

namespace tarnwick {

namespace {

// What `git rev-parse --local-env-vars` lists (git 2.39), and the namespace: all of it belongs to
// the repository of whoever started us, for example a git hook or an alias.
constexpr std::array repositoryVariables{
    "GIT_ALTERNATE_OBJECT_DIRECTORIES",
    "GIT_COMMON_DIR",
    "GIT_CONFIG",
    "GIT_CONFIG_PARAMETERS",
    "GIT_DIR",
    "GIT_GRAFT_FILE",
    "GIT_IMPLICIT_WORK_TREE",
    "GIT_INDEX_FILE",
    "GIT_INTERNAL_SUPER_PREFIX",
    "GIT_NAMESPACE",
    "GIT_NO_REPLACE_OBJECTS",
    "GIT_OBJECT_DIRECTORY",
    "GIT_PREFIX",
    "GIT_REPLACE_REF_BASE",
    "GIT_SHALLOW_FILE",
    "GIT_WORK_TREE",
};

/// In a partial clone a status may fetch, and the remote may want a password.
void forbidPrompts(Environment& environment)
{
    environment.insert("GIT_TERMINAL_PROMPT", "0");
    // An empty value stands before core.askPass.
    environment.insert("GIT_ASKPASS", "");
    // What BatchMode=yes does, but for every ssh that the user has configured: GIT_SSH_COMMAND
    // would replace core.sshCommand. An askpass program that cannot run, and no terminal instead.
    environment.insert("SSH_ASKPASS", "");
    environment.insert("SSH_ASKPASS_REQUIRE", "force");
}

/// Adds our settings to those that the user has put into the environment; the last of a key counts.
void addConfiguration(Environment& environment)
{
    constexpr std::array<std::pair<const char*, const char*>, 3> settings{{
        // color.status=always puts escape codes even into a pipe.
        {"color.status", "false"},
        // Without it a branch that is ahead is reported as "different" only.
        {"status.aheadBehind", "true"},
        {"credential.interactive", "false"},
    }};
    const QByteArray countName = "GIT_CONFIG_COUNT";
    const auto keyName = [](int i) { return "GIT_CONFIG_KEY_" + QByteArray::number(i); };
    const auto valueName = [](int i) { return "GIT_CONFIG_VALUE_" + QByteArray::number(i); };

    const int inheritedCount = environment.value(countName).toInt();
    int count = 0;
    // Git refuses to run where one is missing.
    while (count < inheritedCount && environment.contains(keyName(count)) &&
           environment.contains(valueName(count)))
        ++count;
    for (const auto& [key, value] : settings) {
        environment.insert(keyName(count), key);
        environment.insert(valueName(count), value);
        ++count;
    }
    environment.insert(countName, QByteArray::number(count));
}

} // namespace

Environment gitEnvironment(Environment inherited)
{
    for (const char* const name : repositoryVariables)
        inherited.remove(name);

    // "ahead" and "behind" are translated in other locales.
    inherited.insert("LC_ALL", "C");
    // A status in the background must not make the user's own command fail on index.lock.
    inherited.insert("GIT_OPTIONAL_LOCKS", "0");
    forbidPrompts(inherited);
    addConfiguration(inherited);
    return inherited;
}

} // namespace tarnwick
