#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# check.sh: every check that needs no build, in a few seconds. Each counts as one; the last line is
# "N passed, N failed, N skipped".
set -uo pipefail
cd "$(dirname "$(realpath "${BASH_SOURCE[0]}")")/.." || exit # a link to it may be a hook
scripts/install_packages.sh check || exit
passed=0 failed=0 skipped=0

# check NAME COMMAND...: a command that ends with 77 has said why it checked nothing.
check() {
    local name=$1 status=0 output
    shift
    output=$("$@" 2>&1) || status=$?
    case $status in
    0) passed=$((passed + 1)) && echo "ok      $name" ;;
    77) skipped=$((skipped + 1)) && echo "skipped $name: $output" ;;
    *) failed=$((failed + 1)) && echo "FAILED  $name" && head -n 60 <<<"$output" ;;
    esac
}

# The files of the checkout, new ones included, whose names match one of the patterns.
files() { git ls-files -z --cached --others --exclude-standard --deduplicate -- "$@"; }

formatted() {
    local version
    version=$(clang-format --version 2>/dev/null)
    if [[ $version != *"version 14."* ]]; then
        echo "only clang-format 14 judges; here is ${version:-none}"
        return 77
    fi
    files '*.cpp' '*.h' | xargs -0 clang-format --dry-run -Werror
}

shell_scripts() { files '*.sh' run test bench package .ci/run | xargs -0 shellcheck; }
spelled() { files ':!*.svg' ':!*.png' ':!*.ts' | xargs -0 codespell; }
valid_manual() { man --warnings --encoding=UTF-8 --local-file resources/tarnwick.1 2>&1 >/dev/null | (! grep .); }

# Sources name their licence themselves, all else by the file that reuse reads.
licensed() {
    reuse lint --quiet || { reuse lint; return 1; }
    files '*.cpp' '*.h' '*.mm' '*.sh' '*.py' '*.cmake' '*CMakeLists.txt' run test bench package .ci/run |
        xargs -0 grep -L 'SPDX-License-\(Identifier\): MIT' | (! grep .)
}

# Against a copy, in which each text that is new or has gone would be marked.
translated() {
    local folder marked
    folder=$(mktemp -d) && cp translations/*.ts "$folder" &&
        PATH=/usr/lib/qt6/bin:$PATH lupdate -silent src -ts "$folder"/*.ts || return
    marked=$(grep -hE -B 2 'type="(unfinished|vanished|obsolete)"' "$folder"/*.ts)
    rm -r "$folder"
    [[ ! $marked ]] || { echo "$marked" && return 1; }
}

one_version() {
    local version
    version=$(sed -n 's/^project(Tarnwick VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
    grep -q "^tarnwick ($version) " <(head -n 1 debian/changelog) || echo "debian/changelog: not $version"
    grep -q "^## \[$version\]" CHANGELOG.md || echo "CHANGELOG.md: no section of $version"
    grep -q "<release version=\"$version\"" resources/*.metainfo.xml || echo "metainfo: no release $version"
}

check "the sources are formatted" formatted
check "includes run downwards, connections end" scripts/check_sources.py
check "the picture of the rooms shows the includes" scripts/draw_rooms.py --check
check "shellcheck finds nothing" shell_scripts
check "codespell finds nothing" spelled
check "every file names its licence" licensed
check "the desktop entry is valid" desktop-file-validate resources/org.tarnwick.Tarnwick.desktop
check "the AppStream metainfo is valid" \
    appstreamcli validate --pedantic --no-net resources/org.tarnwick.Tarnwick.metainfo.xml
check "the manual page is valid" valid_manual
check "every text is translated" translated
check "one version everywhere" eval '! one_version | grep .'
echo "$passed passed, $failed failed, $skipped skipped"
((failed == 0))
