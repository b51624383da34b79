# shellcheck shell=bash disable=SC2034
# To be sourced after desktop.sh. What a user does on the roads through the module, one function per action, for the tour and
# the end-to-end tests. Controls are named by their ids, so the actions are the same in each language.

# The editor's main window
main_title='KZEditor'
id_options=1001
id_select=1002
id_save=1004
id_devices=1011
id_chosen=1013

# The buttons of every dialog
id_ok=1
id_cancel=2

# The options hub: the first of its section buttons
id_section=1200

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

open_editor() {
  editor --project "$@"
  window "$main_title"
  until_control "$main_title" $id_devices ITEMS=6
}

# choose_device ROW
choose_device() { click "$main_title" $id_devices "$1"; }

# open_selection NAME: with the mouse; the dialog's title ends with the device's name
open_selection() {
  click "$main_title" $id_select
  window " - $1"
}

# check_box TITLE ID: with the mouse; it must be clear before and checked after
check_box() {
  until_control "$1" "$2" unchecked
  click "$1" "$2"
  until_control "$1" "$2" checked
}

show_tab() { click "$1" $id_select_tab "$2"; }

# close_dialog TITLE ID: presses the button and waits until the dialog is gone and the main window takes input again
close_dialog() {
  click "$1" "$2"
  window_gone "$1"
}

save_project() {
  until_control "$main_title" $id_save enabled
  click "$main_title" $id_save
  until_control "$main_title" $id_save disabled
}

close_editor() {
  key alt+F4
  editor_result
}
