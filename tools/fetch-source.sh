#!/usr/bin/env bash
# fetch-source.sh PACKAGE DIR: puts the source of a Debian package into DIR, for a library that the packaged build does not
# serve: the cross build has no packages at all. The source lists used are private and derived from the machine's own, so
# its apt configuration stays as it was; apt verifies the signed index and dpkg-source the checksums.
set -euo pipefail
package=${1:?usage: fetch-source.sh PACKAGE DIR}
dir=${2:?usage: fetch-source.sh PACKAGE DIR}
[ -d "$dir" ] && exit 0

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
: > "$work/log"

# known OPTION...: "URI RELEASE" of each main component that apt has an index of; the release itself before its updates
known() {
  local release
  release=$(. /etc/os-release && echo "${VERSION_CODENAME:-stable}")
  # shellcheck disable=SC2016 # apt-get's own placeholders
  apt-get "$@" indextargets --format '$(COMPONENT) $(REPO_URI) $(RELEASE)' 'Created-By: Packages' |
    awk -v release="$release" '$1 == "main" { print ($3 == release ? 0 : 1), $2, $3 }' | sort -u | cut -d' ' -f2-
}

# A machine that has thrown its indexes away gets private ones; a vendor's list that fails does not matter here.
repositories() {
  local lists=$work/machine-lists found
  found=$(known)
  if [ -z "$found" ]; then
    mkdir -p "$lists/partial"
    apt-get -qq -o Dir::State::Lists="$lists" -o APT::Sandbox::User=root update >> "$work/log" 2>&1 || true
    found=$(known -o Dir::State::Lists="$lists")
  fi
  if [ -n "$found" ]; then echo "$found"; fi
}

# fetch URI RELEASE: only what Debian itself has signed counts
fetch() {
  local options=(-qq -o Dir::Etc::SourceList=/dev/null -o Dir::Etc::SourceParts="$work/parts" -o Dir::State::Lists="$work/lists"
    -o Dir::Cache::pkgcache= -o Dir::Cache::srcpkgcache= -o APT::Sandbox::User=root)
  rm -rf "$work"/{parts,lists,package}
  mkdir -p "$work/parts" "$work/lists/partial" "$work/package"
  cat > "$work/parts/debian.sources" <<END
Types: deb-src
URIs: $1
Suites: $2
Components: main
Signed-By: /usr/share/keyrings/debian-archive-keyring.gpg
END
  apt-get "${options[@]}" update && cd "$work/package" &&
    apt-get "${options[@]}" --download-only source "$package" && dpkg-source -x "$package"_*.dsc tree
}

while read -r uri release; do
  if (fetch "$uri" "$release") >> "$work/log" 2>&1; then
    mkdir -p "$(dirname "$dir")"
    rm -rf "$dir"
    mv "$work/package/tree" "$dir"
    exit 0
  fi
done < <(repositories)

cat "$work/log" >&2
echo "fetch-source.sh: no Debian source list of this machine gave $package; is there a network?" >&2
exit 1
