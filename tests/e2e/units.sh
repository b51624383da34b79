# shellcheck shell=bash disable=SC2086,SC2154
# The road to the units: from the main window, by the embedded options pane or the hub, to the main configuration.

# The first choice for a device makes its record, with both units.
test_units_by_mouse() {
  open_editor "$project" --language "$language"
  choose_device 2 PINTURA
  click "$main_title" $id_section_units
  until_control '' $id_apparent_kilo shown
  until_control '' $id_apparent_plain checked
  until_control '' $id_apparent_one_decimal checked
  click '' $id_apparent_kilo
  click '' $id_apparent_three_decimals
  click '' $id_reactive_two_decimals
  until_control '' $id_reactive_two_decimals checked
  snapshot units
  click '' $id_ok
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
  until_control "$main_title" $id_devices focused
  key F4
  window ' - TREN1'
  press_key_on $id_section_units space
  until_control '' $id_apparent_kilo shown
  press_key_on $id_apparent_kilo Down
  until_control '' $id_apparent_plain checked
  tab_to '' $id_apparent_one_decimal
  key Down Down
  until_control '' $id_apparent_three_decimals checked
  press_key_on $id_reactive_one_decimal Up
  until_control '' $id_reactive_no_decimals checked
  snapshot units
  key Return
  window ' - TREN1'
  press_key_on $id_ok Return
  window_gone ' - TREN1'
  save_by_key
  close_editor
  equal 'the units' "$(changes main.xml)" "$(lines \
    '-<decimals>1</decimals>' '-<factor>3</factor>' '+<decimals>3</decimals>' '+<factor>0</factor>' \
    '-<decimals>1</decimals>' '+<decimals>0</decimals>')"
}
