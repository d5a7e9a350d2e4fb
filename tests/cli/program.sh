#!/usr/bin/env bash
# program.sh PROGRAM: what only a process shows. It needs no toolkit, no zone or locale of the machine
# moves its figures, and output that fails ends it with status 1 and one line.
set -euo pipefail
program=$1
folder=$(mktemp -d)
trap 'rm -r "$folder"' EXIT
export XDG_CONFIG_HOME=$folder HOME=$folder

ldd "$program" >"$folder/libraries"
grep -qF libstdc++ "$folder/libraries"
[ "$(grep -ciE 'qt|libX11|wayland' "$folder/libraries")" -eq 0 ]

days=(days --place Edison --state "New Jersey" --from 2026-10-25 --to 2026-11-07)
TZ=UTC LC_ALL=C "$program" "${days[@]}" >"$folder/here"
for place in "Asia/Kolkata hi_IN" "America/New_York de_DE"; do
  TZ=${place% *} LC_ALL=${place#* }.UTF-8 "$program" "${days[@]}" | cmp - "$folder/here"
done

# expect_failure COMMAND: fails with status 1 and one line.
expect_failure() {
  status=0
  bash -c "$1" _ "$program" 2>"$folder/errors" || status=$?
  [ "$status" -eq 1 ]
  [ "$(wc -l <"$folder/errors")" -eq 1 ]
  grep -q '^durvela-cli: ' "$folder/errors"
}
expect_failure '"$1" day >/dev/full'
expect_failure '"$1" --help >/dev/full'
expect_failure '"$1" day >&-'
expect_failure 'set -o pipefail; "$1" days --from 0100-01-01 --to 9999-12-31 | head -n 1 >/dev/null'
