#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# lint.sh [--changed | FILE...]: clang-tidy with the checks of .clang-tidy, and clazy's of level 1,
# over these sources, or all of them, which takes some minutes. With --changed, clang-tidy alone over
# those that differ from main or, on main itself, from the commit before; ./test does that.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

changed_sources() {
    local main base
    main=$(git rev-parse -q --verify origin/main || git rev-parse -q --verify main) || main=HEAD
    base=$(git merge-base HEAD "$main")
    [[ $base != "$(git rev-parse HEAD)" ]] || base=$(git rev-parse -q --verify HEAD~1) || base=HEAD
    {
        git diff --name-only "$base" -- src helpers
        git ls-files --others --exclude-standard -- src helpers
    } | sed -n 's/\.\(cpp\|h\)$/.cpp/p' | sort -u
}

# each COMMAND...: on every file, its failures included.
each() { printf '%s\0' "${files[@]}" | xargs -0 -P "$(nproc)" -n 1 "$@" 2> >(grep -v 'warnings\? generated\.$' >&2); }

tools=(tidy clazy)
case ${1-} in
--changed)
    # Each version has checks of its own.
    clang-tidy --version 2>/dev/null | grep -q 'version 14\.' || { echo "Skipped, because only clang-tidy 14 judges."; exit 77; }
    tools=(tidy) && mapfile -t files < <(changed_sources)
    ;;
"") mapfile -t files < <(git ls-files 'src/*.cpp' 'helpers/*.cpp') ;;
*) files=("$@") ;;
esac
scripts/install_packages.sh build lint
scripts/build.sh release
# What this system does not compile is not known here.
known=build/release/compile_commands.json
for i in "${!files[@]}"; do
    [[ -e ${files[i]} ]] && grep -qF "/${files[i]}\"" "$known" || unset "files[$i]"
done
((${#files[@]})) || { echo "No source to check."; exit 0; }

status=0
for tool in "${tools[@]}"; do
    echo "Checking ${#files[@]} sources with $tool ..."
    case $tool in
    tidy) each clang-tidy -p build/release --quiet || status=1 ;;
    clazy) each clazy-standalone -p build/release -checks=level1 -extra-arg=-Werror || status=1 ;;
    esac
done
exit "$status"
