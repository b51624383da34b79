# shellcheck shell=bash disable=SC1091,SC2034,SC2154
# To be sourced. A private virtual display with the editor on it, driven by a real mouse and a real keyboard (xdotool). The
# probe tells where a control is and when a condition has come true; every wait has a limit, so a step either happens or
# fails.
# Needs desktop_bin (the folder of KZEditor.exe) and desktop_probe (WindowProbe.exe) set before. desktop_locale may name a
# user locale such as es_ES, desktop_failure a file for a picture of what was there when the script failed.

. "$(dirname "${BASH_SOURCE[0]}")/wine-env.sh"

desktop_folder=$(mktemp -d)

desktop_die() { echo "desktop: $*" >&2; exit 1; }

desktop_start() {
  wine_use desktop
  # A session left over draws on a display that is gone.
  wine_stop
  unset WAYLAND_DISPLAY XAUTHORITY
  export LC_ALL=C.UTF-8
  KZ_SETTINGS=$(wine_path "$desktop_folder/settings.xml")
  export KZ_SETTINGS
  if [ -n "${desktop_locale:-}" ]; then wine_locale "$desktop_locale"; fi
  Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3> "$desktop_folder/display" > /dev/null 2>&1 &
  desktop_xvfb=$!
  trap desktop_end EXIT
  for _ in $(seq 100); do
    if [ -s "$desktop_folder/display" ]; then break; fi
    kill -0 "$desktop_xvfb" 2> /dev/null || desktop_die "Xvfb does not start"
    sleep 0.05
  done
  DISPLAY=:$(cat "$desktop_folder/display")
  [ "$DISPLAY" != : ] || desktop_die "Xvfb tells no display number"
  export DISPLAY
  wine_serve
  desktop_probe_start
}

desktop_end() {
  local status=$?
  if [ "$status" != 0 ] && [ -n "${desktop_failure:-}" ]; then import -window root "$desktop_failure" || true; fi
  wine_stop
  kill "$desktop_xvfb" 2> /dev/null || true
  rm -rf "$desktop_folder"
}

# probe COMMAND ARGUMENT...: asks the probe, which stays until the desktop ends; its answer and its exit status
probe() {
  local IFS=$'\t' line
  if [ -z "${desktop_probe_pid:-}" ]; then desktop_die "the probe was not started"; fi
  printf '%s\n' "$*" >&"$desktop_ask"
  while IFS= read -r -t 60 line <&"$desktop_answer"; do
    case $line in
      =0) return 0 ;;
      =*)
        cat "$desktop_folder/probe.err" >&2
        return "${line#=}" ;;
      *) printf '%s\n' "$line" ;;
    esac
  done
  desktop_die "the probe does not answer: $(cat "$desktop_folder/probe.err")"
}
desktop_probe_start() {
  coproc desktop_coproc { exec "${wine_pin[@]}" wine "$desktop_probe" serve 2> "$desktop_folder/probe.err"; }
  # Copies of the two ends are there in subshells too, where those of the coprocess are not.
  exec {desktop_answer}<&"${desktop_coproc[0]}" {desktop_ask}>&"${desktop_coproc[1]}"
  desktop_probe_pid=$desktop_coproc_PID
}

# editor ARGUMENT...: starts the editor, program FILE ARGUMENT... another program; editor_end waits until it has ended and
# stores what it wrote and its exit status. Not to be called in a subshell, which could not wait for it.
editor() { program "$desktop_bin/KZEditor.exe" "$@"; }
program() {
  timeout 300 "${wine_pin[@]}" wine "$@" < /dev/null > "$desktop_folder/editor" 2> "$desktop_folder/editor.err" &
  desktop_editor=$!
}
editor_end() {
  editor_status=0
  wait "$desktop_editor" || editor_status=$?
  editor_output=$(cat "$desktop_folder/editor")
  cat "$desktop_folder/editor.err" >&2
}

# The windows are named by a part of their title, the controls by their id; "" is the window that takes input now.
window() { probe wait "$1"; }
window_gone() { probe gone "$1"; }
until_control() { probe until "$@"; }
until_menu() { probe menu; }

# mouse_at X Y [XDOTOOL_COMMAND...]: for a mouse that is there already to move, xdotool would wait 15 s
mouse_at() { xdotool mousemove 0 0 mousemove --sync "$@"; }

# click TITLE ID [ITEM]: with the mouse, on a control or on its tab or row ITEM; click_for_menu with the right button
click() { click_with 1 "$@"; }
click_for_menu() {
  click_with 3 "$@"
  until_menu
}
click_with() {
  local button=$1 point
  shift
  point=$(probe point "$@") || desktop_die "nothing to click: $*"
  # shellcheck disable=SC2086 # two words, x and y
  mouse_at $point click "$button"
}
key() { xdotool key --clearmodifiers "$@"; }
type_text() { xdotool type --clearmodifiers "$1"; }

# picture FILE: waits until two pictures in a row are equal, so that nothing is caught half drawn. The mouse moves aside first:
# what lies under it looks different.
picture() {
  mouse_at 1279 1023
  import -window root "$1"
  for _ in $(seq 50); do
    mv "$1" "$1.before"
    import -window root "$1"
    if cmp -s "$1" "$1.before"; then break; fi
  done
  rm -f "$1.before"
}
