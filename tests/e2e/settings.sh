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
  click "$main_title" $IDC_OPTIONS
  window ' - TREN1'
  snapshot hub
  open_section $KZ_IDC_OPTIONS_DEVICE $IDC_CURRENT
  until_control '' $IDOK "VALUE=$(in_language OK Aceptar)"
  check_box '' $((IDC_MODE + 1))
  check_box '' $((IDC_FILTER + 3))
  fill $IDC_CURRENT 201
  click '' $IDOK
  answer $IDOK "$(in_language 'between 0 and 200' 'entre 0 y 200')"
  fill $IDC_CURRENT 150
  fill $IDC_UNITS 9
  click '' $IDOK
  snapshot refused
  answer $IDOK "$(in_language 'between 1 and 8' 'entre 1 y 8')"
  fill $IDC_UNITS 6
  snapshot settings
  click '' $IDOK
  until_control "$message_title" $IDYES shown
  snapshot question
  answer $IDNO
  unchanged devices/zep-01.xml
  click '' $IDOK
  answer $IDYES
  close_dialog ' - TREN1' $IDOK
  snapshot plant
  click_close_box "$main_title"
  editor_ended
  settings_of_train
}

test_settings_by_keyboard() {
  open_editor "$project" --language "$language"
  until_control "$main_title" $IDC_DEVICES focused
  key F4
  window ' - TREN1'
  press_key_on $KZ_IDC_OPTIONS_DEVICE space
  until_control '' $IDC_CURRENT shown
  press_key_on $((IDC_MODE + 1)) space
  press_key_on $((IDC_FILTER + 3)) space
  enter $IDC_CURRENT 150
  enter $IDC_UNITS 6
  snapshot settings
  key Return
  until_control "$message_title" $IDYES focused
  key Return
  until_control ' - TREN1' $KZ_IDC_OPTIONS_DEVICE focused
  press_key_on $IDOK Return
  window_gone ' - TREN1'
  close_editor
  settings_of_train
}
