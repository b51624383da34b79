# shellcheck shell=bash disable=SC2086,SC2154
# The road to the limits: from the main window through the options hub to the main configuration. The user's own decimal
# separator is read, the documents keep the point.

limits_of_train() {
  equal 'the limits' "$(changes main.xml)" "$(lines \
    '-<maxD>95.000000</maxD>' '+<maxD>97.500000</maxD>' \
    '-<nominal>6.600000</nominal>' '+<nominal>7.250000</nominal>' \
    '-<maxD>45.000000</maxD>' '+<maxD>50.000000</maxD>')"
}

test_limits_by_mouse() {
  open_editor "$project" --language "$language"
  choose_device 0 TREN1
  click "$main_title" $id_options
  window ' - TREN1'
  open_section $id_section_limits $id_limits_tab
  snapshot powers
  fill $id_active_power_outer 2000
  click '' $id_ok
  until_control "$message_title" $id_ok shown
  snapshot refused
  answer $id_ok "$(in_language '0 % and 100 %' '0 % y 100 %')"
  fill $id_active_power_outer "$(in_language 97.5 97,5)"
  show_tab '' $id_limits_tab 1 $id_harmonic_nominal
  fill $((id_harmonic_nominal + 2)) "$(in_language 7.25 7,25)"
  snapshot net
  show_tab '' $id_limits_tab 2 $id_harmonic_outer
  fill $((id_harmonic_outer + 3)) 50
  snapshot load
  click '' $id_ok
  window ' - TREN1'
  close_dialog ' - TREN1' $id_ok
  save_project
  snapshot plant
  click_close_box "$main_title"
  editor_ended
  limits_of_train
}

test_limits_by_keyboard() {
  open_editor "$project" --language "$language"
  until_control "$main_title" $id_devices focused
  key F4
  window ' - TREN1'
  press_key_on $id_section_limits space
  until_control '' $id_active_power_outer shown
  enter $id_active_power_outer "$(in_language 97.5 97,5)"
  press_key_on $id_limits_tab Right
  until_control '' $id_harmonic_nominal shown
  enter $((id_harmonic_nominal + 2)) "$(in_language 7.25 7,25)"
  press_key_on $id_limits_tab Right
  enter $((id_harmonic_outer + 3)) 50
  snapshot load
  key Return
  window ' - TREN1'
  press_key_on $id_ok Return
  window_gone ' - TREN1'
  save_by_key
  close_editor
  limits_of_train
}
