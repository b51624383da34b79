#!/usr/bin/env bash
# Fetches pugixml's source from Debian's own source package into DIR: the packaged library is the narrow-character
# build, and the documents here are wide. A private source list, derived from the machine's own binary lists, leaves the
# machine's apt configuration as it was.
set -euo pipefail
dir=${1:?usage: fetch-pugixml.sh DIR}
[ -f "$dir/src/pugixml.cpp" ] && exit 0

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/parts" "$work/lists/partial"
# Only Debian's own lists: other vendors' lists rarely have a source section, and one that fails would end the update.
for list in /etc/apt/sources.list /etc/apt/sources.list.d/*; do
  [ -f "$list" ] || continue
  grep -q debian-archive-keyring "$list" || grep -qE '^deb .*(bookworm|stable).* main' "$list" || continue
  case $list in
    *.sources) sed 's/^Types:.*/Types: deb-src/' "$list" > "$work/parts/$(basename "$list")" ;;
    *) sed -nE 's|^deb((  *\[[^]]*\])?  *[^ ]+  *(bookworm|stable)(-[a-z]+)?(/updates)?  *main.*)|deb-src\1|p' "$list" > "$work/parts/$(basename "${list%.list}").list" ;;
  esac
done
find "$work/parts" -size 0 -delete
options=(-o Dir::Etc::sourcelist=/dev/null -o Dir::Etc::sourceparts="$work/parts" -o Dir::State::lists="$work/lists")
apt-get "${options[@]}" -qq update
(cd "$work" && apt-get "${options[@]}" -qq --download-only source pugixml && dpkg-source --no-check -x pugixml_*.dsc tree > /dev/null)
mkdir -p "$(dirname "$dir")"
rm -rf "$dir"
mv "$work/tree" "$dir"
