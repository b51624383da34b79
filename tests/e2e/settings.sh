# shellcheck shell=bash disable=SC2086,SC2154
# The road to the device settings: from the main window through the options hub to the device's document.

settings_of_train() {
  equal 'the settings' "$(changes devices/zep-01.xml)" "$(lines \
    '-<mode>9</mode>' '-<filters>55</filters>' '+<mode>11</mode>' '+<filters>63</filters>' \
    '-<minCurrent>25</minCurrent>' '+<minCurrent>150</minCurrent>' '-<numZEP>4</numZEP>' '+<numZEP>6</numZEP>')"
  unchanged main.xml devices/zep-02.xml
}

test_settings_by_mouse() {
  open_editor "$project" --language "$language"
  choose_device 0 TREN1
  click "$main_title" $id_options
  window ' - TREN1'
  snapshot hub
  open_section $id_section_device $id_minimum_current
  until_control '' $id_ok "VALUE=$(in_language OK Aceptar)"
  check_box '' $((id_mode + 1))
  check_box '' $((id_filter + 3))
  fill $id_minimum_current 201
  click '' $id_ok
  answer $id_ok "$(in_language 'between 0 and 200' 'entre 0 y 200')"
  fill $id_minimum_current 150
  fill $id_number_of_units 9
  click '' $id_ok
  snapshot refused
  answer $id_ok "$(in_language 'between 1 and 8' 'entre 1 y 8')"
  fill $id_number_of_units 6
  snapshot settings
  click '' $id_ok
  until_control "$message_title" $id_yes shown
  snapshot question
  answer $id_no
  unchanged devices/zep-01.xml
  click '' $id_ok
  answer $id_yes
  close_dialog ' - TREN1' $id_ok
  snapshot plant
  click_close_box "$main_title"
  editor_ended
  settings_of_train
}

test_settings_by_keyboard() {
  open_editor "$project" --language "$language"
  until_control "$main_title" $id_devices focused
  key F4
  window ' - TREN1'
  press_key_on $id_section_device space
  until_control '' $id_minimum_current shown
  press_key_on $((id_mode + 1)) space
  press_key_on $((id_filter + 3)) space
  enter $id_minimum_current 150
  enter $id_number_of_units 6
  snapshot settings
  key Return
  until_control "$message_title" $id_yes focused
  key Return
  window ' - TREN1'
  press_key_on $id_ok Return
  window_gone ' - TREN1'
  close_editor
  settings_of_train
}
