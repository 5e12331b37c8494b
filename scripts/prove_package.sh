#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# prove_package.sh [SUITE]: builds the package of HEAD in a bare Debian (bookworm by default) and leads
# it through its life there, see desktop/package_life.sh. Ends as prove_fresh_root.sh does.
set -euo pipefail
scripts=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
exec "$scripts/prove_fresh_root.sh" "${1-bookworm}" ./package scripts/desktop/package_life.sh
