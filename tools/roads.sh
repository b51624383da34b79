# shellcheck shell=bash disable=SC2034,SC2086,SC2154 # ids are numbers; the scripts that source this use and set the rest
# To be sourced after desktop.sh. What a user does on the roads through the module, one function per action, for the tour and
# the end-to-end tests. Controls are named by their ids, so the actions are the same in each language.

# The editor's main window, whose title ends with the name of the project's folder, and its message boxes
main_title=' plant'
message_title='=KZEditor'

# The controls have the names that the product's own headers give them: $IDC_DEVICES, $IDC_UNITS… Where a header says
# "to N", the following controls of the row or block have the following numbers. Windows names the buttons of messages.
IDOK=1 IDCANCEL=2 IDYES=6 IDNO=7 IDC_MESSAGE_TEXT=65535
roads_ids=$(sed -nE 's/^#define ((KZ_)?IDC_[A-Z0-9_]+) +([0-9]+).*/\1=\3/p' \
  "$root"/editor/resources/EditorIds.h "$root"/editor/window/*/*Controls.h "$root"/host/dialogs/*Ids.h "$root"/module/*/*Controls.h)
eval "$roads_ids"

open_editor() {
  editor --project "$@"
  window "$main_title"
  until_control "$main_title" $IDC_DEVICES ITEMS=6
}

# choose_device ROW NAME: with the mouse
choose_device() {
  click "$main_title" $IDC_DEVICES "$1"
  until_control "$main_title" $IDC_PAGE_CAPTION "TEXT=$2"
}

# open_selection NAME: with the mouse; the dialog's title ends with the device's name
open_selection() {
  click "$main_title" $IDC_SELECT
  window " - $1"
}

# open_section ID CONTROL: presses a section button of the hub and waits for a control of the section's dialog
open_section() {
  click ' - ' "$1"
  until_control '' "$2" shown
}

# check_box TITLE ID: with the mouse; it must be clear before and checked after
check_box() {
  until_control "$1" "$2" unchecked
  click "$1" "$2"
  until_control "$1" "$2" checked
}

# show_tab TITLE TAB_ID INDEX CONTROL: with the mouse, until the control of its page is shown
show_tab() {
  click "$1" "$2" "$3"
  until_control "$1" "$4" shown
}

# tab_to TITLE ID: presses Tab until the control has the focus
tab_to() { walk_to "$1" "$2" Tab; }

# walk_to TITLE ID KEY: presses the key until the control has the focus. A key that was not seen to arrive is not pressed
# again, or the focus could go past the control on a busy machine.
walk_to() {
  local focus before _
  focus=$(probe focus)
  for _ in $(seq 60); do
    if [ "$focus" = "$2" ]; then return; fi
    before=$focus
    key "$3"
    for _ in $(seq 1000); do
      focus=$(probe focus)
      if [ "$focus" != "$before" ]; then break; fi
    done
  done
  desktop_die "$3 does not reach control $2 of \"$1\""
}

# fill ID TEXT: puts the text into an edit box of the dialog that takes input
fill() {
  click '' "$1"
  until_control '' "$1" focused
  key Home shift+End
  type_text "$2"
  until_control '' "$1" "VALUE=$2"
}

# answer BUTTON_ID [TEXT]: presses the button of the message box; its text must contain TEXT
answer() {
  if [ $# -gt 1 ]; then until_control "$message_title" $IDC_MESSAGE_TEXT "TEXT=$2"; fi
  click "$message_title" "$1"
  window_gone "$message_title"
}

# close_dialog TITLE ID: presses the button and waits until no window of that title is left
close_dialog() {
  click "$1" "$2"
  window_gone "$1"
}

# until_unsaved, until_saved: the main window's title tells
until_unsaved() { window "$main_title *"; }
until_saved() { window "=KZEditor –$main_title"; }

save_project() {
  until_unsaved
  key ctrl+s
  until_saved
}

# show_variables, show_options: the pages of the main window, with the mouse
show_variables() { show_tab "$main_title" $IDC_PAGES 1 $IDC_CHOSEN; }
show_options() { show_tab "$main_title" $IDC_PAGES 2 $IDC_PANE; }

# enter ID TEXT: the same from the keyboard, in a dialog in which the Tab key reaches the box, which marks its text
enter() {
  tab_to '' "$1"
  type_text "$2"
  until_control '' "$1" "VALUE=$2"
}

# press_key_on ID KEY: brings the focus to the control of the dialog that takes input, then presses the key
press_key_on() {
  tab_to '' "$1"
  key "$2"
}

# click_close_box TITLE: the middle of the close box is 12 and 13 pixels inside the frame's top right corner
click_close_box() {
  local x y width title
  while read -r x y width _ _ title; do
    if [[ $title == *"$1"* ]]; then
      mouse_at $((x + width - 12)) $((y + 13)) click 1
      return
    fi
  done < <(probe windows)
  desktop_die "no window to close: $1"
}

# kill_editor: as a failure of the computer would
kill_editor() {
  pkill -KILL -P "$desktop_editor"
  { wait "$desktop_editor" || true; } 2> /dev/null  # bash would report the kill
  window_gone "$main_title"
}

# other_program SED_SCRIPT: another program comes to the front, changes main.xml, and gives way to the editor again
other_program() {
  "${wine_pin[@]}" wine "$desktop_bin/KZEditor.exe" --project "$project" options TREN1 > "$desktop_folder/other" 2>&1 &
  local other=$!
  window ' - TREN1'
  sed -i "$1" "$project/main.xml"
  click ' - TREN1' $IDCANCEL
  wait "$other" || true
}

close_editor() {
  key alt+F4
  editor_ended
}

editor_ended() {
  editor_end
  [ "$editor_status" = 0 ] || desktop_die "the editor ended with $editor_status"
}
