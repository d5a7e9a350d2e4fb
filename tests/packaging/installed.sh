#!/usr/bin/env bash
# installed.sh SOURCE BUILD VERSION DATE: installs into a temporary folder and checks the result.
set -euo pipefail
folder=$(mktemp -d)
trap 'rm -r "$folder"' EXIT
cmake --install "$2" --prefix "$folder/Any दिल्ली Place" >/dev/null
cd "$folder/Any दिल्ली Place"

[ "$(bin/durvela --version)" = "Durvela $3" ]
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
zcat share/man/man1/durvela.1.gz | grep -qF "Durvela $3"
[ "$(count share/icons '*.svg')" -eq 2 ]
