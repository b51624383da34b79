# shellcheck shell=bash disable=SC2154
# The select-variables road.

# Of the three pages: a box, a column of one side, a row of both sides. Names come in page order, whatever the order of clicks.
test_select_by_mouse() {
  local dialog=' - PINTURA' phase
  open_editor "$project" --language "$language"
  choose_device 2
  until_control "$main_title" $id_chosen ITEMS=0
  open_selection PINTURA
  show_tab "$dialog" 2
  click "$dialog" $((id_harmonic_caption + 2))
  until_control "$dialog" $((id_harmonic_load_box + 2 + 26)) checked
  show_tab "$dialog" 1
  click "$dialog" $((id_load_column + 2))
  until_control "$dialog" $((id_power_load_box + 3 + 4)) checked
  show_tab "$dialog" 0
  check_box "$dialog" $((id_general_net_box + 1))
  close_dialog "$dialog" $id_ok
  until_control "$main_title" $id_chosen ITEMS=11
  save_project
  close_editor
  local wanted=(HZIN API2L RPI2L VAI2L PFI2L)
  for phase in 1 2 3; do wanted+=("ARM5A${phase}N"); done
  for phase in 1 2 3; do wanted+=("ARM5A${phase}L"); done
  equal 'the chosen variables' "$(chosen zep-03)" "$(lines "${wanted[@]/#/PINTURA.}")"
}

# A refused click leaves its box clear, and the list holds what fitted.
test_select_up_to_a_maximum() {
  local dialog=' - PINTURA' status=0 printed
  editor --project "$project" --language "$language" select PINTURA --max 2
  window "$dialog"
  check_box "$dialog" $id_general_net_box
  check_box "$dialog" $((id_general_net_box + 1))
  click "$dialog" $((id_general_net_box + 2))
  window "$message_title"
  key Return
  window "$dialog"
  until_control "$dialog" $((id_general_net_box + 2)) unchecked
  click "$dialog" $id_ok
  printed=$(editor_result) || status=$?
  equal 'the exit status' "$status" 0
  equal 'the output' "$printed" "$(lines 'select: true' 'variable: PINTURA.VI1N' 'variable: PINTURA.HZIN')"
}

# Cancel answers false and leaves the caller's list as it was.
test_cancel_a_selection() {
  local dialog=' - PINTURA' status=0 printed
  editor --project "$project" --language "$language" select PINTURA --list PINTURA.VI3N,CPD.HZIN
  window "$dialog"
  until_control "$dialog" $((id_general_net_box + 8)) disabled
  check_box "$dialog" $id_general_net_box
  key Escape
  printed=$(editor_result) || status=$?
  equal 'the exit status' "$status" 1
  equal 'the output' "$printed" "$(lines 'select: false' 'variable: PINTURA.VI3N' 'variable: CPD.HZIN')"
}
