# shellcheck shell=bash disable=SC2086,SC2154
# The select-variables road.

dialog=' - PINTURA'

# Of the three pages: a row of both sides, a column of one side, a box. Names come in page order, whatever the order of clicks.
test_select_by_mouse() {
  open_editor "$project" --language "$language"
  choose_device 2 PINTURA
  until_control "$main_title" $id_chosen ITEMS=0
  open_selection PINTURA
  show_tab "$dialog" $id_select_tab 2 $id_harmonic_caption
  click "$dialog" $((id_harmonic_caption + 2))
  until_control "$dialog" $((id_harmonic_load_box + 2 + 26)) checked
  show_tab "$dialog" $id_select_tab 1 $id_power_load_box
  click "$dialog" $((id_load_column + 2))
  until_control "$dialog" $((id_power_load_box + 3 + 4)) checked
  show_tab "$dialog" $id_select_tab 0 $id_general_net_box
  check_box "$dialog" $((id_general_net_box + 1))
  snapshot selection
  close_dialog "$dialog" $id_ok
  until_control "$main_title" $id_chosen ITEMS=11
  save_project
  snapshot plant
  click_close_box "$main_title"
  editor_ended
  equal 'the chosen variables' "$(chosen zep-03)" "$(lines PINTURA.{HZIN,API2L,RPI2L,VAI2L,PFI2L,ARM5A{1,2,3}N,ARM5A{1,2,3}L})"
}

# The same road without the mouse: arrows choose the device, F5 opens the dialog, arrows change the page, Tab and Space do the
# rest, Return is OK and Ctrl+S saves.
test_select_by_keyboard() {
  open_editor "$project" --language "$language"
  until_control "$main_title" $id_devices focused
  key Down Down
  until_control "$main_title" $id_pane_label TEXT=PINTURA
  key F5
  window "$dialog"
  until_control "$dialog" $id_select_tab focused
  key Right
  until_control "$dialog" $id_power_net_box shown
  tab_to "$dialog" $id_net_column
  key space
  until_control "$dialog" $((id_power_net_box + 11)) checked
  tab_to "$dialog" $((id_power_load_box + 3))
  key space
  until_control "$dialog" $((id_power_load_box + 3)) checked
  snapshot selection
  tab_to "$dialog" $id_ok
  key Return
  window_gone "$dialog"
  until_control "$main_title" $id_chosen ITEMS=13
  save_by_key
  close_editor
  equal 'the chosen variables' "$(chosen zep-03)" \
    "$(lines PINTURA.{API{1,2,3}N,RPI{1,2,3}N,VAI{1,2,3}N,PFI{1,2,3}N,PFI1L})"
}

# A refused click leaves its box clear, and the list holds what fitted.
test_select_up_to_a_maximum() {
  editor --project "$project" --language "$language" select PINTURA --max 2
  window "$dialog"
  check_box "$dialog" $id_general_net_box
  check_box "$dialog" $((id_general_net_box + 1))
  click "$dialog" $((id_general_net_box + 2))
  answer $id_ok ' 2 '
  until_control "$dialog" $((id_general_net_box + 2)) unchecked
  click "$dialog" $id_ok
  command_result 0 'select: true' 'variable: PINTURA.VI1N' 'variable: PINTURA.HZIN'
}

# Cancel answers false and leaves the caller's list as it was.
test_cancel_a_selection() {
  editor --project "$project" --language "$language" select PINTURA --list PINTURA.VI3N,CPD.HZIN
  window "$dialog"
  until_control "$dialog" $((id_general_net_box + 8)) disabled
  check_box "$dialog" $id_general_net_box
  key Escape
  command_result 1 'select: false' 'variable: PINTURA.VI3N' 'variable: CPD.HZIN'
}

# The example of a host: a device that it describes itself, a list that it prints.
test_minimal_host() {
  WINEPATH=$(wine_path "$desktop_bin")
  export WINEPATH
  program "$build/examples/MinimalHost.exe" "$(wine_path "$desktop_bin/KZUsrZEP.dll")" "$(wine_path "$project")"
  window ' - TREN1'
  until_control ' - TREN1' $id_general_net_box disabled
  check_box ' - TREN1' $((id_general_net_box + 1))
  snapshot selection
  click ' - TREN1' $id_ok
  command_result 0 $'TREN1.HZIN\r'
}
