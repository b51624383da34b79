# shellcheck shell=bash disable=SC2034,SC2154
# To be sourced. Installs the Debian packages that a verb needs; a second run finds them all and calls no installer.

packages_build=(
  cmake ninja-build g++                              # native build
  g++-mingw-w64-x86-64-posix                         # cross build
  googletest libcli11-dev dpkg-dev                   # sources, headers, the unpacker of source packages
  librsvg2-bin imagemagick                           # pictures and icon
  libxml2-dev                                        # the other reader that documents are tried with
  python3                                            # the bill of materials
)
packages_wine=(
  wine wine64 fonts-wine locales
  libxcursor1 libxrandr2 libxi6 libxcomposite1 libxrender1 libxinerama1 libxfixes3 libxxf86vm1
)
packages_display=(xvfb xdotool imagemagick)
packages_check=(python3 clang-format shellcheck pyflakes3 osslsigncode openssl)
packages_format=(clang-format)
packages_tidy=(clang-14 clang-tidy-14)
packages_coverage=(gcovr)
packages_fuzz=(clang-14 libclang-rt-14-dev)
packages_package=(python3 nsis unzip osslsigncode openssl)

say() { echo "== $*"; }
fail() { echo "dev: $*" >&2; exit 1; }

# set_up GROUP...
set_up() {
  local group missing=()
  for group in "$@"; do
    local -n packages=packages_$group
    local package
    for package in "${packages[@]}"; do
      case " ${missing[*]} " in *" $package "*) continue ;; esac
      [ "$(dpkg-query -W -f '${Status}' "$package" 2> /dev/null)" = 'install ok installed' ] || missing+=("$package")
    done
  done
  [ ${#missing[@]} -gt 0 ] || return 0

  command -v apt-get > /dev/null || fail "install these packages first: ${missing[*]} (this script installs them on Debian only)"
  local as_root=(env DEBIAN_FRONTEND=noninteractive)
  if [ "$(id -u)" != 0 ]; then
    command -v sudo > /dev/null || fail "not root and no sudo: install these packages first: ${missing[*]}"
    as_root=(sudo "${as_root[@]}")
  fi
  say "Installing ${missing[*]}"
  local log
  log=$(mktemp)
  # An update that fails for another vendor's list is no reason to stop: the install tells whether Debian's were enough.
  "${as_root[@]}" apt-get -qq update < /dev/null > "$log" 2>&1 || true
  "${as_root[@]}" apt-get -qq install -y --no-install-recommends "${missing[@]}" < /dev/null >> "$log" 2>&1 || {
    tail -30 "$log" >&2
    fail "apt-get could not install ${missing[*]}; its whole output is in $log"
  }
  rm -f "$log"
}

# The libraries whose sources the builds compile themselves.
set_up_sources() {
  local package
  for package in pugixml expat libcsv; do
    [ -d "$root/build/deps/$package" ] && continue
    say "Fetching the source of $package"
    "$root/tools/fetch-source.sh" "$package" "$root/build/deps/$package" || fail "could not fetch the source of $package"
  done
}
