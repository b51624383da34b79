# shellcheck shell=bash disable=SC2086,SC2154
# The options hub and its sections.

# Settings, units and limits of a filter, and what the documents hold afterwards.
test_set_up_a_filter() {
  editor --project "$project" --language "$language" options TREN1
  window ' - TREN1'

  open_section $KZ_IDC_OPTIONS_DEVICE $IDC_CURRENT
  fill $IDC_CURRENT 201
  click '' $IDOK
  answer $IDOK ' 200'
  fill $IDC_CURRENT 150
  click '' $IDOK
  answer $IDYES
  window ' - TREN1'

  open_section $KZ_IDC_OPTIONS_UNITS $IDC_APPARENT_DEC_3
  click '' $IDC_APPARENT_PLAIN
  click '' $IDC_APPARENT_DEC_3
  click '' $IDOK
  window ' - TREN1'

  open_section $KZ_IDC_OPTIONS_LIMITS $IDC_LIMITS_TAB
  fill $IDC_AP_MAXD 95
  click '' $IDOK
  window ' - TREN1'

  click ' - TREN1' $IDOK
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
