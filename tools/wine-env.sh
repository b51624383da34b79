# shellcheck shell=bash
# To be sourced. Wine for this project: prefixes of its own under build/, never the user's; no debugger on a crash.
# Functions start with wine_; their results are environment variables for the programs started afterwards.

wine_root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
wine_base=${KZ_WINE_PREFIX:-$wine_root/build/wine}
# In every finished prefix; its number goes up with what wine_boot sets, so that older prefixes are made anew.
wine_mark=.ready-2

# Windows programs and the server they start belong on one processor: they hand control to each other at every message, and
# that is several times slower across two. The sessions take turns over the processors that there are.
wine_pin_session() {
  local ranges range cpus=() index=0
  IFS=, read -ra ranges < <(sed -n 's/^Cpus_allowed_list:[[:space:]]*//p' /proc/self/status)
  for range in "${ranges[@]}"; do mapfile -t -O ${#cpus[@]} cpus < <(seq "${range%-*}" "${range#*-}"); done
  if [ "$wine_session" != 96 ]; then index=1; fi
  wine_pin=(taskset -c "${cpus[index % ${#cpus[@]}]}")
  # Wine maps a page at a fixed address. With random addresses one start in some thousands finds it taken and gives up.
  if setarch --addr-no-randomize true 2> /dev/null; then wine_pin=(setarch --addr-no-randomize "${wine_pin[@]}"); fi
}

# wine_use SESSION: 96, 120, 144 or 192 are sessions without a display at that many dots per inch (Wine reads the resolution once
# per session, so each has a prefix of its own); desktop draws on DISPLAY, in one window of 1280 x 1024.
wine_use() {
  wine_session=$1
  export WINEPREFIX=$wine_base-$wine_session
  export WINEARCH=win64 WINEDEBUG=${KZ_WINE_DEBUG:--all} WINEDLLOVERRIDES='mscoree,mshtml,winemenubuilder.exe='
  wine_pin_session
  if [ "$wine_session" != desktop ]; then unset DISPLAY WAYLAND_DISPLAY; fi
  if [ ! -f "$WINEPREFIX/$wine_mark" ]; then wine_boot; fi
}

# wine_ready SESSION...: makes the prefixes ready ahead of their first use
wine_ready() {
  local session
  for session in "$@"; do (wine_use "$session"); done
}

# wine_reg KEY NAME TYPE DATA
wine_reg() { "${wine_pin[@]}" wine reg add "$1" /v "$2" /t "$3" /d "$4" /f > /dev/null; }

# One boot per prefix, even when several tests come first at once.
wine_boot() {
  mkdir -p "$(dirname "$WINEPREFIX")"
  (
    flock 9
    [ -f "$WINEPREFIX/$wine_mark" ] && exit 0
    unset DISPLAY WAYLAND_DISPLAY
    rm -rf "$WINEPREFIX"
    "${wine_pin[@]}" wineboot --init < /dev/null > /dev/null 2>&1
    # Debian's Wine does not look where Debian's package puts its fonts.
    ln -s /usr/share/wine/fonts/* "$WINEPREFIX/drive_c/windows/Fonts/"
    wine_reg 'HKLM\Software\Microsoft\Windows NT\CurrentVersion\AeDebug' Auto REG_SZ 0
    wine_reg 'HKLM\Software\Microsoft\Windows NT\CurrentVersion\AeDebug' Debugger REG_SZ ''
    if [ "$wine_session" = desktop ]; then
      wine_reg 'HKCU\Software\Wine\Explorer' Desktop REG_SZ kz
      wine_reg 'HKCU\Software\Wine\Explorer\Desktops' kz REG_SZ 1280x1024
    else
      wine_reg 'HKCU\Software\Wine\Drivers' Graphics REG_SZ null
      wine_reg 'HKCU\Control Panel\Desktop' LogPixels REG_DWORD "$wine_session"
    fi
    # The settings count from the next session on, and the registry is on disk only when the server has ended.
    wine_stop
    touch "$WINEPREFIX/$wine_mark"
  ) 9> "$WINEPREFIX.lock" || { echo "wine: cannot make the prefix $WINEPREFIX" >&2; return 1; }
}

# A server that stays for a minute makes the next start forty times quicker.
wine_serve() { "${wine_pin[@]}" wineserver -p60 < /dev/null > /dev/null 2>&1 || true; }

wine_stop() {
  wineserver -k 2> /dev/null || true
  wineserver -w
}

wine_stop_all() {
  local folder
  for folder in "$wine_base"-*/; do
    if [ -d "$folder" ]; then (export WINEPREFIX=${folder%/}; wine_stop); fi
  done
}

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
  export LC_ALL=$1.UTF-8 2> /dev/null
}
