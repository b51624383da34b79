# shellcheck shell=bash disable=SC2086,SC2154
# The road to the units: from the main window, by the embedded options pane or the hub, to the main configuration.

# The first choice for a device makes its record, with both units.
test_units_by_mouse() {
  open_editor "$project" --language "$language"
  choose_device 2 PINTURA
  show_options
  click "$main_title" $KZ_IDC_OPTIONS_UNITS
  until_control '' $IDC_APPARENT_KILO shown
  until_control '' $IDC_APPARENT_PLAIN checked
  until_control '' $IDC_APPARENT_DEC_1 checked
  click '' $IDC_APPARENT_KILO
  click '' $IDC_APPARENT_DEC_3
  click '' $IDC_REACTIVE_DEC_2
  until_control '' $IDC_REACTIVE_DEC_2 checked
  snapshot units
  click '' $IDOK
  save_project
  snapshot plant
  click_close_box "$main_title"
  editor_ended
  equal 'the units' "$(changes main.xml)" "$(lines \
    +'<unitSetup>' +'<driverId>zep-03</driverId>' \
    +'<unit>' +'<name>AP-VA</name>' +'<decimals>3</decimals>' +'<factor>3</factor>' +'</unit>' \
    +'<unit>' +'<name>RP</name>' +'<decimals>2</decimals>' +'<factor>0</factor>' +'</unit>' +'</unitSetup>')"
}

test_units_by_keyboard() {
  open_editor "$project" --language "$language"
  until_control "$main_title" $IDC_DEVICES focused
  key F4
  window ' - TREN1'
  press_key_on $KZ_IDC_OPTIONS_UNITS space
  until_control '' $IDC_APPARENT_KILO shown
  press_key_on $IDC_APPARENT_KILO Down
  until_control '' $IDC_APPARENT_PLAIN checked
  tab_to '' $IDC_APPARENT_DEC_1
  key Down Down
  until_control '' $IDC_APPARENT_DEC_3 checked
  press_key_on $IDC_REACTIVE_DEC_1 Up
  until_control '' $IDC_REACTIVE_DEC_0 checked
  snapshot units
  key Return
  until_control ' - TREN1' $KZ_IDC_OPTIONS_UNITS focused
  press_key_on $IDOK Return
  window_gone ' - TREN1'
  save_project
  close_editor
  equal 'the units' "$(changes main.xml)" "$(lines \
    '-<decimals>1</decimals>' '-<factor>3</factor>' '+<decimals>3</decimals>' '+<factor>0</factor>' \
    '-<decimals>1</decimals>' '+<decimals>0</decimals>')"
}
