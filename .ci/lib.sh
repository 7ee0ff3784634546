# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 The tonefret developers
# SPDX-License-Identifier: MIT
#
# Read by every gate: begins in the project's folder, ends with one line that says how it went.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
gate=${0##*/}

# The clone may belong to somebody other than who checks it.
export GIT_CONFIG_COUNT=1 GIT_CONFIG_KEY_0=safe.directory GIT_CONFIG_VALUE_0='*'

passed() {
    printf '%s: %s\n' "$gate" "$*"
}

failed() {
    printf '%s: FAILED: %s\n' "$gate" "$*"
    exit 1
}

sources() {
    git ls-files '*.cpp' '*.h'
}

# Runs a search: to find nothing is no error, not to be able to search is one.
search() {
    "$@" || [ $? -eq 1 ]
}
