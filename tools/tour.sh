#!/usr/bin/env bash
# The guided tour: opens the editor on a copy of examples/plant on a private virtual display, walks the roads through the
# module with real clicks and keys, and leaves one picture per step under build/tour. A step that does not come true ends it.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
desktop_bin=$root/build/windows/bin
desktop_probe=$root/build/windows/tools/WindowProbe.exe
. "$root/tools/desktop.sh"
. "$root/tools/roads.sh"

tour=$root/build/tour
project=$tour/project
dialog=' - TREN1'

# One row per step: its function, which is also the picture's name, and what is to be seen.
steps=(
  "open_plant            The editor lists the plant's devices"
  "choose_filter         A filter is chosen: its options are embedded in the window"
  "open_select           Select variables: those chosen earlier are checked and disabled"
  "pick_general          General: single boxes of voltage and current"
  "pick_power            Power: a whole row of the load side with one button"
  "pick_harmonics        Harmonics, with the keyboard: the fifth order on the net side"
  "accept_selection      OK: the new variables are in the list"
  "open_hub              The options hub of the filter"
  "save_plant            Saved"
)

open_plant() { open_editor "$project"; }
choose_filter() {
  choose_device 0
  until_control "$main_title" $id_select enabled
}
open_select() { open_selection TREN1; }
pick_general() {
  check_box "$dialog" $((id_general_net_box + 4))
  check_box "$dialog" $((id_general_net_box + 2))
}
pick_power() {
  show_tab "$dialog" 1
  until_control "$dialog" $((id_power_net_box)) enabled
  click "$dialog" $id_power_load_row
}
pick_harmonics() { show_tab "$dialog" 2; }
accept_selection() { close_dialog "$dialog" $id_ok; }
open_hub() { click "$main_title" $id_options; }
save_plant() { save_project; }

rm -rf "$tour"
mkdir -p "$tour"
cp -r "$root/examples/plant" "$project"
desktop_start
number=0
for step in "${steps[@]}"; do
  read -r action caption <<< "$step"
  number=$((number + 1))
  printf '%2d  %s\n' "$number" "$caption"
  "$action"
  picture "$(printf '%s/%02d-%s.png' "$tour" "$number" "$action")"
done
close_editor
