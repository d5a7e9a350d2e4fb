#!/usr/bin/env bash
# plain_build.sh SOURCE: a build without a preset must not fail for a warning, nor its ctest for the
# nightly sweeps, which it does not build.
set -euo pipefail
folder=$(mktemp -d)
trap 'rm -r "$folder"' EXIT
env -u CXXFLAGS cmake -S "$1" -B "$folder" -DCMAKE_EXPORT_COMPILE_COMMANDS=ON >/dev/null
[ "$(grep -c -e -Werror "$folder/compile_commands.json")" -eq 0 ]
[ "$(ctest --test-dir "$folder" -N | grep -c Nightly)" -eq 0 ]
