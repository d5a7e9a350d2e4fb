#!/usr/bin/env bash
# installed.sh SOURCE BUILD VERSION DATE: installs into a temporary folder and checks the result.
set -euo pipefail
folder=$(mktemp -d)
trap 'rm -r "$folder"' EXIT
cmake --install "$2" --prefix "$folder/Any दिल्ली Place" >/dev/null
cd "$folder/Any दिल्ली Place"

[ "$(bin/durvela --version)" = "Durvela $3" ]
[ "$(bin/durvela-cli --version)" = "durvela-cli $3" ]
export XDG_CONFIG_HOME=$folder
[[ "$(bin/durvela-cli day --place Ujjain)" = "Ujjain, Madhya Pradesh, India"* ]]
home=$(dirname "$(readlink -f bin/durvela)")
count() { find "$1" -name "$2" | wc -l; }
for kind in city index; do
  [ "$(count "$home/atlas" "*.$kind")" -eq "$(count "$1/data/atlas/places" '*.tsv')" ]
done
[ "$(count "$home/Language" '*.txt')" -eq 5 ]
[ "$(count "$home" '*.afm')" -eq 14 ]
[ -e "$home/shared" ]
zcat share/doc/durvela/changelog.gz | head -n 1 | grep -qF "($3)"
zcat share/doc/durvela/changelog.gz | grep -m 1 '^ -- ' |
  grep -qF "$(LC_ALL=C date -d "$4" '+%a, %d %b %Y')"
grep -m 1 '<release ' share/metainfo/*.xml | grep -qF "version=\"$3\" date=\"$4\""
for manual in durvela durvela-cli; do
  zcat "share/man/man1/$manual.1.gz" | grep -qF "Durvela $3"
done
# bash completes every option that the program has.
. share/bash-completion/completions/durvela-cli
for command in day days; do
  COMP_WORDS=(durvela-cli $command --) COMP_CWORD=2
  _durvela_cli
  diff <(printf '%s\n' "${COMPREPLY[@]}" | sort) \
    <(bin/durvela-cli $command --help | grep -o '^  --[a-z]*' | tr -d ' ' | sort)
done
[ "$(count share/icons '*.svg')" -eq 2 ]
