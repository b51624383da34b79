# shellcheck shell=bash disable=SC2086,SC2154
# The select-variables road.

dialog=' - PINTURA'

# Of the three pages: a row of both sides, a column of one side, a box. Names come in page order, whatever the order of clicks.
test_select_by_mouse() {
  open_editor "$project" --language "$language"
  choose_device 2 PINTURA
  show_variables
  until_control "$main_title" $IDC_CHOSEN ITEMS=0
  open_selection PINTURA
  show_tab "$dialog" $IDC_SELECTVAR_TAB 2 $IDC_HARMONIC_CAPTION
  click "$dialog" $((IDC_HARMONIC_CAPTION + 2))
  until_control "$dialog" $((IDC_HARMONIC_LOAD_BOX + 2 + 26)) checked
  show_tab "$dialog" $IDC_SELECTVAR_TAB 1 $IDC_POWER_LOAD_BOX
  click "$dialog" $((IDC_LOAD_COLUMN + 2))
  until_control "$dialog" $((IDC_POWER_LOAD_BOX + 3 + 4)) checked
  show_tab "$dialog" $IDC_SELECTVAR_TAB 0 $IDC_GENERAL_NET_BOX
  check_box "$dialog" $((IDC_GENERAL_NET_BOX + 1))
  snapshot selection
  close_dialog "$dialog" $IDOK
  until_control "$main_title" $IDC_CHOSEN ITEMS=11
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
  until_control "$main_title" $IDC_DEVICES focused
  key ctrl+3
  until_control "$main_title" $IDC_CHOSEN shown
  key Down Down
  until_control "$main_title" $IDC_PAGE_CAPTION TEXT=PINTURA
  key F5
  window "$dialog"
  until_control "$dialog" $IDC_SELECTVAR_TAB focused
  key Right
  until_control "$dialog" $IDC_POWER_NET_BOX shown
  tab_to "$dialog" $IDC_NET_COLUMN
  key space
  until_control "$dialog" $((IDC_POWER_NET_BOX + 11)) checked
  tab_to "$dialog" $((IDC_POWER_CAPTION + 3))
  walk_to "$dialog" $((IDC_POWER_LOAD_BOX + 3)) Right
  key space
  until_control "$dialog" $((IDC_POWER_LOAD_BOX + 3)) checked
  snapshot selection
  tab_to "$dialog" $IDOK
  key Return
  window_gone "$dialog"
  until_control "$main_title" $IDC_CHOSEN ITEMS=13
  save_project
  close_editor
  equal 'the chosen variables' "$(chosen zep-03)" \
    "$(lines PINTURA.{API{1,2,3}N,RPI{1,2,3}N,VAI{1,2,3}N,PFI{1,2,3}N,PFI1L})"
}

# A refused click leaves its box clear, and the list holds what fitted.
test_select_up_to_a_maximum() {
  editor --project "$project" --language "$language" select PINTURA --max 2
  window "$dialog"
  check_box "$dialog" $IDC_GENERAL_NET_BOX
  check_box "$dialog" $((IDC_GENERAL_NET_BOX + 1))
  click "$dialog" $((IDC_GENERAL_NET_BOX + 2))
  answer $IDOK ' 2 '
  until_control "$dialog" $((IDC_GENERAL_NET_BOX + 2)) unchecked
  click "$dialog" $IDOK
  command_result 0 'select: true' 'variable: PINTURA.VI1N' 'variable: PINTURA.HZIN'
}

# Cancel answers false and leaves the caller's list as it was.
test_cancel_a_selection() {
  editor --project "$project" --language "$language" select PINTURA --list PINTURA.VI3N,CPD.HZIN
  window "$dialog"
  until_control "$dialog" $((IDC_GENERAL_NET_BOX + 8)) disabled
  check_box "$dialog" $IDC_GENERAL_NET_BOX
  key Escape
  command_result 1 'select: false' 'variable: PINTURA.VI3N' 'variable: CPD.HZIN'
}

# The example of a host: a device that it describes itself, a list that it prints.
test_minimal_host() {
  WINEPATH=$(wine_path "$desktop_bin")
  export WINEPATH
  program "$build/examples/MinimalHost.exe" "$(wine_path "$desktop_bin/KZUsrZEP.dll")" "$(wine_path "$project")"
  window ' - TREN1'
  until_control ' - TREN1' $IDC_GENERAL_NET_BOX disabled
  check_box ' - TREN1' $((IDC_GENERAL_NET_BOX + 1))
  snapshot selection
  click ' - TREN1' $IDOK
  command_result 0 $'TREN1.HZIN\r'
}
