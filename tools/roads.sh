# shellcheck shell=bash disable=SC2034,SC2154
# To be sourced after desktop.sh. What a user does on the roads through the module, one function per action, for the tour and
# the end-to-end tests. Controls are named by their ids, so the actions are the same in each language.

# The editor's main window, whose title ends with the name of the project's folder, and its message boxes
main_title=' plant'
message_title='=KZEditor'
id_options=1001
id_select=1002
id_save=1004
id_devices=1011
id_chosen=1013
id_pane_label=1014

# The buttons of every dialog and message
id_ok=1
id_cancel=2
id_yes=6
id_no=7
id_message_text=65535

# The options hub's section buttons
id_section_driver=1200
id_section_device=1201
id_section_limits=1202
id_section_units=1203

# The select-variables dialog. Boxes are first id + row + rows * phase.
id_select_tab=6697
id_net_column=6713
id_load_column=6767
id_general_net_box=6718
id_power_net_box=6922
id_power_load_box=6970
id_power_load_row=7078
id_harmonic_caption=7206
id_harmonic_net_box=7236
id_harmonic_load_box=7288

# The device settings; filter n is harmonic 2n + 3
id_minimum_current=5062
id_number_of_units=5077
id_mode=8094
id_filter=8098

# The units dialog
id_apparent_kilo=8020
id_apparent_plain=8027
id_apparent_one_decimal=8059
id_apparent_three_decimals=8071
id_reactive_kilo=8021
id_reactive_plain=8028
id_reactive_no_decimals=8050
id_reactive_one_decimal=8060
id_reactive_two_decimals=8066

# The limits dialog; harmonic rows are first id + row
id_limits_tab=5150
id_active_power_outer=5406
id_power_factor_inner=5392
id_harmonic_nominal=5461
id_harmonic_outer=5534

open_editor() {
  editor --project "$@"
  window "$main_title"
  until_control "$main_title" $id_devices ITEMS=6
}

# choose_device ROW NAME: with the mouse
choose_device() {
  click "$main_title" $id_devices "$1"
  until_control "$main_title" $id_pane_label "TEXT=$2"
}

# open_selection NAME: with the mouse; the dialog's title ends with the device's name
open_selection() {
  click "$main_title" $id_select
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
tab_to() {
  local _
  for _ in $(seq 60); do
    if [ "$(probe focus)" = "$2" ]; then return; fi
    key Tab
  done
  desktop_die "Tab does not reach control $2 of \"$1\""
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
  if [ $# -gt 1 ]; then until_control "$message_title" $id_message_text "TEXT=$2"; fi
  click "$message_title" "$1"
  window_gone "$message_title"
}

# close_dialog TITLE ID: presses the button and waits until no window of that title is left
close_dialog() {
  click "$1" "$2"
  window_gone "$1"
}

save_by_key() {
  until_control "$main_title" $id_save enabled
  key ctrl+s
  until_control "$main_title" $id_save disabled
}

save_project() {
  until_control "$main_title" $id_save enabled
  click "$main_title" $id_save
  until_control "$main_title" $id_save disabled
}

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
      xdotool mousemove --sync $((x + width - 12)) $((y + 13)) click 1
      return
    fi
  done < <(probe windows)
  desktop_die "no window to close: $1"
}

close_editor() {
  key alt+F4
  editor_ended
}

editor_ended() {
  editor_end
  [ "$editor_status" = 0 ] || desktop_die "the editor ended with $editor_status"
}
