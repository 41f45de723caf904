#!/usr/bin/env bash
# Prints how many lines of test there are to a hundred lines of code, blank lines and comments aside.
set -euo pipefail
cd "$(dirname "$0")/.."
count() { git ls-files -co --exclude-standard -- "$@" | tr '\n' '\0' | xargs -0 cat | grep -cvE '^[[:space:]]*(//.*|#.*)?$'; }
code=$(count 'src/*.cpp' 'src/*.h' 'include/*.h' 'hosts/*.cpp' 'hosts/*.h' 'tools/*.cpp' 'tools/*.h')
tests=$(count 'tests/*.cpp' 'tests/*.h' 'tests/*.pilot' 'tests/*.py' 'tests/*.sh')
echo "$tests lines of test to $code lines of code: $((100 * tests / code)) %"
