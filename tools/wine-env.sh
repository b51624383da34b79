# To be sourced. Wine for this project: prefixes of its own under build/, never the user's; no debugger on a crash; no
# display. Functions start with wine_; their results are environment variables for the programs started afterwards.

wine_root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# wine_use [DPI]: chooses the prefix; each resolution has its own, since Wine reads it once per session.
wine_use() {
  local dpi=${1:-96}
  export WINEPREFIX=${KZ_WINE_PREFIX:-$wine_root/build/wine}
  [ "$dpi" = 96 ] || WINEPREFIX=$WINEPREFIX-$dpi
  export WINEARCH=win64 WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml,winemenubuilder.exe='
  wine_dpi=$dpi
  if [ ! -f "$WINEPREFIX/.ready" ]; then wine_boot; fi
}

# wine_reg KEY NAME TYPE DATA
wine_reg() { "${wine_pin[@]}" wine reg add "$1" /v "$2" /t "$3" /d "$4" /f > /dev/null; }

# One boot per prefix, even when several tests come first at once.
wine_boot() {
  mkdir -p "$(dirname "$WINEPREFIX")"
  (
    flock 9
    [ -f "$WINEPREFIX/.ready" ] && exit 0
    unset DISPLAY WAYLAND_DISPLAY
    rm -rf "$WINEPREFIX"
    "${wine_pin[@]}" wineboot --init > /dev/null 2>&1
    wine_reg 'HKCU\Software\Wine\Drivers' Graphics REG_SZ null
    wine_reg 'HKLM\Software\Microsoft\Windows NT\CurrentVersion\AeDebug' Auto REG_SZ 0
    wine_reg 'HKLM\Software\Microsoft\Windows NT\CurrentVersion\AeDebug' Debugger REG_SZ ''
    wine_reg 'HKCU\Control Panel\Desktop' LogPixels REG_DWORD "$wine_dpi"
    # The settings count from the next session on, and the registry is on disk only when the server has ended.
    wineserver -k
    wineserver -w
    touch "$WINEPREFIX/.ready"
  ) 9> "$WINEPREFIX.lock" || { echo "wine: cannot make the prefix $WINEPREFIX" >&2; return 1; }
}

# Windows programs and the server they start belong on one processor: they hand control to each other at every message, and
# that is several times slower across two.
wine_pin=(taskset -c "${KZ_WINE_CPU:-0}")

# A server that stays for a minute makes the next start forty times quicker.
wine_serve() { "${wine_pin[@]}" wineserver -p60 < /dev/null > /dev/null 2>&1 || true; }

# wine_path FOLDER: FOLDER as Windows programs see it
wine_path() { local path=${1//\//\\}; echo "Z:$path"; }

# wine_locale NAME: a user locale such as es_ES, compiled into build/ so that the machine need not have it
wine_locale() {
  local folder=$wine_root/build/locale
  if [ ! -d "$folder/$1.UTF-8" ]; then
    mkdir -p "$folder"
    local compiled
    compiled=$(mktemp -d "$folder/.new-XXXXXX")
    localedef --no-archive -i "$1" -f UTF-8 "$compiled/$1.UTF-8" 2> /dev/null || true
    [ -f "$compiled/$1.UTF-8/LC_NUMERIC" ] || { echo "wine: cannot compile the locale $1" >&2; return 1; }
    mv -T "$compiled/$1.UTF-8" "$folder/$1.UTF-8" 2> /dev/null || true
    rm -rf "$compiled"
  fi
  export LOCPATH=$folder
  export LC_ALL=$1.UTF-8
}
