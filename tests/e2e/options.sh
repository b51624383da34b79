# shellcheck shell=bash disable=SC2086,SC2154
# The options hub and its sections.

# Settings, units and limits of a filter, and what the documents hold afterwards.
test_set_up_a_filter() {
  editor --project "$project" --language "$language" options TREN1
  window ' - TREN1'

  open_section $id_section_device $id_minimum_current
  fill $id_minimum_current 201
  click '' $id_ok
  answer $id_ok ' 200'
  fill $id_minimum_current 150
  click '' $id_ok
  answer $id_yes
  window ' - TREN1'

  open_section $id_section_units $id_apparent_three_decimals
  click '' $id_apparent_plain
  click '' $id_apparent_three_decimals
  click '' $id_ok
  window ' - TREN1'

  open_section $id_section_limits $id_limits_tab
  fill $id_active_power_outer 95
  click '' $id_ok
  window ' - TREN1'

  click ' - TREN1' $id_ok
  command_result 0 'options: true'
  equal 'the minimum current' "$(grep -o '<minCurrent>[^<]*' "$project/devices/zep-01.xml")" '<minCurrent>150'
  equal 'the decimals' "$(record unitSetups zep-01 decimals | cut -d' ' -f1)" 3
  equal 'the factors' "$(record unitSetups zep-01 factor | cut -d' ' -f1)" 0
}

test_leave_the_options_as_they_are() {
  editor --project "$project" --language "$language" options TREN1
  window ' - TREN1'
  key Escape
  command_result 1 'options: false'
  diff -r "$root/examples/plant" "$project"
}
