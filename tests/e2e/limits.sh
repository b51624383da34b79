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
  click "$main_title" $IDC_OPTIONS
  window ' - TREN1'
  open_section $KZ_IDC_OPTIONS_LIMITS $IDC_LIMITS_TAB
  snapshot powers
  fill $IDC_AP_MAXD 2000
  click '' $IDOK
  until_control "$message_title" $IDOK shown
  snapshot refused
  answer $IDOK "$(in_language '0 % and 100 %' '0 % y 100 %')"
  fill $IDC_AP_MAXD "$(in_language 97.5 97,5)"
  show_tab '' $IDC_LIMITS_TAB 1 $IDC_HARMONIC_NOMINAL
  fill $((IDC_HARMONIC_NOMINAL + 2)) "$(in_language 7.25 7,25)"
  snapshot net
  show_tab '' $IDC_LIMITS_TAB 2 $IDC_HARMONIC_MAXD
  fill $((IDC_HARMONIC_MAXD + 3)) 50
  snapshot load
  click '' $IDOK
  window ' - TREN1'
  close_dialog ' - TREN1' $IDOK
  save_project
  snapshot plant
  click_close_box "$main_title"
  editor_ended
  limits_of_train
}

test_limits_by_keyboard() {
  open_editor "$project" --language "$language"
  until_control "$main_title" $IDC_DEVICES focused
  key F4
  window ' - TREN1'
  press_key_on $KZ_IDC_OPTIONS_LIMITS space
  until_control '' $IDC_AP_MAXD shown
  enter $IDC_AP_MAXD "$(in_language 97.5 97,5)"
  press_key_on $IDC_LIMITS_TAB Right
  until_control '' $IDC_HARMONIC_NOMINAL shown
  enter $((IDC_HARMONIC_NOMINAL + 2)) "$(in_language 7.25 7,25)"
  press_key_on $IDC_LIMITS_TAB Right
  enter $((IDC_HARMONIC_MAXD + 3)) 50
  snapshot load
  key Return
  until_control ' - TREN1' $KZ_IDC_OPTIONS_LIMITS focused
  press_key_on $IDOK Return
  window_gone ' - TREN1'
  save_project
  close_editor
  limits_of_train
}
