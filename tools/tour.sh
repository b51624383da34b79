#!/usr/bin/env bash
# shellcheck disable=SC2086 # ids are numbers
# The guided tour: opens the editor on a copy of examples/plant on a private virtual display, walks the roads through the
# module with real clicks and keys, leaves one picture per step under build/tour, and prints what the roads have produced.
# A step that does not come true ends it with an error.
#   tour.sh [--docs] [BUILD_FOLDER [PICTURE_FOLDER]]
# With --docs it also renews the pictures of the documents, docs/images.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
docs=''
if [ "${1:-}" = --docs ]; then
  docs=$root/docs/images
  shift
fi
build=${1:-$root/build/windows}
tour=${2:-$root/build/tour}
desktop_bin=$build/bin
desktop_probe=$build/tools/WindowProbe.exe
. "$root/tools/desktop.sh"
. "$root/tools/roads.sh"

project=$tour/plant
device=TREN1
dialog=" - $device"

# One row per step: the function that takes it, which also names the picture, and what the picture shows.
steps=(
  "start             The editor without a project"
  "open              A project is opened by its folder"
  "plant             The editor with the devices of the plant and the values of the marked one"
  "found             Find: the filters that have every word, in whatever text of theirs"
  "several           All filters marked: what differs between them"
  "findings          F7 checks the project, F8 leads to the value that is wrong"
  "added             A filter is added"
  "duplicated        Three more are made like one, named by a pattern"
  "renamed           One of them is called otherwise"
  "removed           Another one is taken out again"
  "review            All that is not saved, to be taken back"
  "modules           The modules that serve the filters, and the state they are in"
  "selection         Select variables: what was chosen earlier is checked and disabled"
  "single_boxes      General page: frequency and a current, box by box"
  "whole_row         Power page: one button takes the whole row of the load side"
  "by_keyboard       Harmonics page, by keyboard: to the fifth harmonic, and Space"
  "chosen            OK: the new variables are in the list of the device"
  "undo              The menu says what can be undone"
  "hub               The options hub"
  "settings          Device settings: another minimum current, one more filtered harmonic"
  "confirmation      OK asks before it writes"
  "units             Units: plain watts with three decimals"
  "limits            Limits of the powers"
  "refused           A limit beyond the range is refused"
  "harmonic_limits   Limits of the harmonics of the net side"
  "saved             Back in the main window; everything is saved"
  "history           The saves of the project, to go back to"
  "unsaved           An editor that was ended before it saved: the next one offers the changes"
  "noticed           Another program has changed the project meanwhile"
  "foreign           Saving over that change asks"
  "maximum           Asked for two variables at most, the dialog refuses the third"
  "spanish           The same dialog in Spanish"
)

# The steps that the documents show, each with the picture's name there; it is the window that takes input.
declare -A documented=(
  [start]=start [added]=add-device [duplicated]=duplicate-device [review]=review [modules]=modules [history]=history
  [plant]=editor [found]=find [several]=several [findings]=findings [undo]=undo [hub]=options [settings]=device-settings [confirmation]=question [units]=units [limits]=limits-powers
  [refused]=refused [harmonic_limits]=limits-harmonics [single_boxes]=selection-general [whole_row]=selection-power
  [by_keyboard]=selection-harmonics [unsaved]=unsaved [noticed]=changed-elsewhere [foreign]=save-over
)

step_start() {
  editor
  until_control '' $IDC_OPEN shown
  click '' $IDC_RECENT
}
step_open() {
  click '' $IDC_OPEN
  until_control '' $IDC_FOLDER_PATH shown
  fill $IDC_FOLDER_PATH "$(wine_path "$project")"
}
step_plant() {
  click '' $IDOK
  until_control "$main_title" $IDC_DEVICES ITEMS=6
  choose_device 0 $device
}
step_found() {
  key ctrl+f
  until_control "$main_title" $IDC_FIND focused
  type_text 'grua norte'
  until_control "$main_title" $IDC_FIND_COUNT 'TEXT=1 of 6'
}
step_several() {
  key Escape
  until_control "$main_title" $IDC_FIND_COUNT 'TEXT=6 of 6'
  key Down
  until_control "$main_title" $IDC_DEVICES focused
  key ctrl+a
  until_control "$main_title" $IDC_PAGE_CAPTION 'TEXT=6'
}
step_findings() {
  key F7
  until_control "$main_title" $IDC_FINDINGS_LABEL 'TEXT=Findings (1)'
  key F8
  until_control "$main_title" $IDC_PAGE_CAPTION 'TEXT=LAB ENSAYOS'
}
step_added() {
  click "$main_title" $IDC_FINDINGS_CLOSE
  until_control "$main_title" $IDC_DEVICES focused
  key Insert
  until_control '' $IDC_ADD_NAME shown
  fill $IDC_ADD_NAME HORNO
  fill $IDC_ADD_RATIO 1000
}
step_duplicated() {
  click '' $IDOK
  until_control "$main_title" $IDC_DEVICES ITEMS=7
  choose_device 0 $device
  key ctrl+shift+d
  until_control '' $IDC_DUPLICATE_COUNT shown
  fill $IDC_DUPLICATE_COUNT 3
  until_control '' $IDC_DUPLICATE_DEVICES ITEMS=3
}
step_renamed() {
  click '' $IDOK
  until_control "$main_title" $IDC_DEVICES ITEMS=10
  click_for_menu "$main_title" $IDC_DEVICES 7
  key n
  until_control '' $IDC_RENAME_NAME shown
  fill $IDC_RENAME_NAME CALDERA
}
step_removed() {
  click '' $IDOK
  until_control "$main_title" $IDC_PAGE_CAPTION TEXT=CALDERA
  click "$main_title" $IDC_DEVICES 8
  key Delete
  until_control '' $IDC_REMOVE_DEVICES ITEMS=1
}
step_review() {
  click '' $IDOK
  until_control "$main_title" $IDC_DEVICES ITEMS=9
  key ctrl+r
  until_control '' $IDC_REVIEW_ALL shown
  click '' $IDC_REVIEW_ALL
}
step_modules() {
  click '' $IDOK
  until_control "$main_title" $IDC_DEVICES ITEMS=6
  until_saved
  key alt+h m
  until_control '' $IDC_MODULES_LIST ITEMS=1
}
step_selection() {
  key Escape
  window "$main_title"
  choose_device 0 $device
  open_selection $device
}
step_single_boxes() {
  check_box "$dialog" $((IDC_GENERAL_NET_BOX + 1))
  check_box "$dialog" $((IDC_GENERAL_NET_BOX + 2))
}
step_whole_row() {
  show_tab "$dialog" $IDC_SELECTVAR_TAB 1 $IDC_POWER_LOAD_ROW
  click "$dialog" $IDC_POWER_LOAD_ROW
  until_control "$dialog" $((IDC_POWER_LOAD_BOX + 8)) checked
}
step_by_keyboard() {
  show_tab "$dialog" $IDC_SELECTVAR_TAB 2 $IDC_HARMONIC_CAPTION
  tab_to "$dialog" $((IDC_HARMONIC_CAPTION + 2))
  walk_to "$dialog" $((IDC_HARMONIC_NET_BOX + 2)) Right
  key space
  until_control "$dialog" $((IDC_HARMONIC_NET_BOX + 2)) checked
}
step_chosen() {
  close_dialog "$dialog" $IDOK
  show_variables
  until_control "$main_title" $IDC_CHOSEN ITEMS=11
}
step_undo() {
  key ctrl+z
  until_control "$main_title" $IDC_CHOSEN ITEMS=5
  key ctrl+y
  until_control "$main_title" $IDC_CHOSEN ITEMS=11
  key alt+e
}
step_hub() {
  key Escape Escape
  click "$main_title" $IDC_OPTIONS
  window "$dialog"
}
step_settings() {
  open_section $KZ_IDC_OPTIONS_DEVICE $IDC_CURRENT
  fill $IDC_CURRENT 150
  check_box '' $((IDC_FILTER + 3))
}
step_confirmation() {
  click '' $IDOK
  until_control "$message_title" $IDYES shown
}
step_units() {
  answer $IDYES
  window "$dialog"
  open_section $KZ_IDC_OPTIONS_UNITS $IDC_APPARENT_DEC_3
  click '' $IDC_APPARENT_PLAIN
  click '' $IDC_APPARENT_DEC_3
  until_control '' $IDC_APPARENT_DEC_3 checked
}
step_limits() {
  click '' $IDOK
  window "$dialog"
  open_section $KZ_IDC_OPTIONS_LIMITS $IDC_LIMITS_TAB
}
step_refused() {
  fill $IDC_AP_MAXD 2000
  click '' $IDOK
  window "$message_title"
}
step_harmonic_limits() {
  answer $IDOK
  fill $IDC_AP_MAXD 97
  show_tab '' $IDC_LIMITS_TAB 1 $IDC_HARMONIC_MAXD
}
step_saved() {
  click '' $IDOK
  window "$dialog"
  close_dialog "$dialog" $IDOK
  save_project
}
step_history() {
  key alt+f h
  until_control '' $IDC_HISTORY_SAVES ITEMS=2
}
remove_first_variable() {
  show_variables
  click "$main_title" $IDC_CHOSEN
  until_control "$main_title" $IDC_CHOSEN focused
  key Home Delete
}
step_unsaved() {
  key Escape
  window "$main_title"
  remove_first_variable
  until_control "$main_title" $IDC_CHOSEN ITEMS=10
  kill_editor
  editor --project "$project"
  until_control "$message_title" $IDYES shown
}
step_noticed() {
  answer $IDYES
  save_project
  other_program 's/Planta de Sagunto/Planta de Sagunto, nave norte/'
  until_control "$message_title" $IDYES shown
}
step_foreign() {
  answer $IDNO
  remove_first_variable
  until_control "$main_title" $IDC_CHOSEN ITEMS=9
  key ctrl+s
  until_control "$message_title" $IDCANCEL shown
}
step_maximum() {
  answer $IDNO
  until_control "$main_title" $IDC_CHOSEN ITEMS=10
  close_editor
  printed 'The exit status of the window' "$editor_status"
  open_command PINTURA select PINTURA --max 2
  click ' - PINTURA' $IDC_GENERAL_NET_BOX
  click ' - PINTURA' $((IDC_GENERAL_NET_BOX + 1))
  click ' - PINTURA' $((IDC_GENERAL_NET_BOX + 2))
  window "$message_title"
}
step_spanish() {
  answer $IDOK
  click ' - PINTURA' $IDOK
  editor_end
  printed 'select PINTURA --max 2' "$editor_output"
  open_command PINTURA --language es select PINTURA
}

# open_command NAME ARGUMENT...: runs a command of the editor, which opens a dialog with the device's name in its title
open_command() {
  editor --project "$project" "${@:2}"
  window " - $1"
}

# document NAME PICTURE: cuts the window that takes input out of the picture and stores it, small, for the documents
document() {
  local x y width height state title
  while read -r x y width height state title; do
    if [ "$state" = enabled ] && [ -n "$title" ]; then
      convert "$2" -crop "${width}x$height+$x+$y" +repage -strip -dither None -colors 128 "PNG8:$docs/$1.png"
      return
    fi
  done < <(probe windows)
  desktop_die "no window for the picture $1"
}

results=''
printed() { results+="$1: ${2//$'\n'/, }"$'\n'; }

finish() {
  key Escape
  editor_end
  printf '\n%s' "$results"
  printf '\nThe variables of %s, as main.xml has them:\n' $device
  sed -n "/<variables>$device/,/<\/variables>/p" "$project/main.xml" | sed 's/<[^>]*>//g; s/^ */  /'
  printf '\nWhat changed in the documents of the plant:\n'
  local changes
  changes=$(diff -r -U0 "$root/examples/plant" "$project" || true)
  [ -n "$changes" ] || desktop_die "nothing was saved"
  grep -E '^[-+]([^-+]|$)' <<< "$changes"
}

rm -rf "$tour"
mkdir -p "$tour"
cp -r "$root/examples/plant" "$project"
desktop_start
number=0
for step in "${steps[@]}"; do
  read -r name caption <<< "$step"
  number=$((number + 1))
  printf '%2d  %s\n' "$number" "$caption"
  "step_$name"
  file=$(printf '%s/%02d-%s.png' "$tour" "$number" "$name")
  picture "$file"
  if [ -n "$docs" ] && [ -n "${documented[$name]:-}" ]; then document "${documented[$name]}" "$file"; fi
done
finish
echo "The pictures are in $tour"
