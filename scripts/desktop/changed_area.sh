#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# changed_area.sh BEFORE AFTER: prints "X Y WIDTH HEIGHT" of the largest connected area in which the
# two pictures differ; fails where there is none.
set -euo pipefail
convert "$1" "$2" -compose difference -composite -colorspace gray -threshold 3% \
    -morphology Close Square:4 -define connected-components:verbose=true \
    -define connected-components:area-threshold=12 -connected-components 8 null: 2>/dev/null |
    awk -F '[ x+]+' '/gray\(255\)|gray\(100%\)|srgb\(255,255,255\)/ && $3 * $4 > largest {
        largest = $3 * $4; area = $5 " " $6 " " $3 " " $4 }
        END { if (!largest) exit 1; print area }' OFS=' '
