// SPDX-License-Identifier: MIT
#include "model/git_environment.h"

#include <array>

namespace tarnwick {

namespace {

// What `git rev-parse --local-env-vars` lists (git 2.39), and the namespace: all of it belongs to
// the repository of whoever started us, for example a git hook or an alias.
constexpr std::array repositoryVariables{
    u"GIT_ALTERNATE_OBJECT_DIRECTORIES",
    u"GIT_COMMON_DIR",
    u"GIT_CONFIG",
    u"GIT_CONFIG_COUNT",
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

} // namespace

QProcessEnvironment gitEnvironment(QProcessEnvironment inherited)
{
    for (const auto* name : repositoryVariables)
        inherited.remove(QString::fromUtf16(name));

    // "ahead" and "behind" are translated in other locales.
    inherited.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    // A status in the background must not make the user's own command fail on index.lock.
    inherited.insert(QStringLiteral("GIT_OPTIONAL_LOCKS"), QStringLiteral("0"));
    // A user's color.status=always puts escape codes even into a pipe.
    inherited.insert(QStringLiteral("GIT_CONFIG_COUNT"), QStringLiteral("1"));
    inherited.insert(QStringLiteral("GIT_CONFIG_KEY_0"), QStringLiteral("color.status"));
    inherited.insert(QStringLiteral("GIT_CONFIG_VALUE_0"), QStringLiteral("false"));
    return inherited;
}

} // namespace tarnwick
