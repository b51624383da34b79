# shellcheck shell=bash disable=SC2086,SC2154
# What the editor asks about the project's files: changes that were left unsaved, changes of other programs.

# the_units FACTOR: TREN1's only change in main.xml is the unit of its active power
the_units() {
  equal 'the units' "$(changes main.xml)" "$(lines '-<factor>3</factor>' "+<factor>$1</factor>")"
}

# leftovers N: so many files with unsaved changes are in the project
leftovers() {
  equal 'the files with unsaved changes' "$(find "$project" -name '*.kzrecovery' | wc -l)" "$1"
}

# plain_watts: in the embedded options
plain_watts() {
  show_options
  click "$main_title" $KZ_IDC_OPTIONS_UNITS
  until_control '' $IDC_APPARENT_PLAIN shown
  click '' $IDC_APPARENT_PLAIN
  click '' $IDOK
  until_unsaved
}

test_recover_by_mouse() {
  open_editor "$project" --language "$language"
  plain_watts
  leftovers 1
  kill_editor
  unchanged main.xml
  editor --project "$project" --language "$language"
  until_control "$message_title" $IDYES shown
  snapshot offer
  answer $IDYES 'main.xml'
  until_unsaved
  unchanged main.xml
  save_project
  leftovers 0
  the_units 0
  click_close_box "$main_title"
  editor_ended
}

test_recover_by_keyboard() {
  open_editor "$project" --language "$language"
  plain_watts
  kill_editor
  editor --project "$project" --language "$language"
  until_control "$message_title" $IDYES focused
  key Return
  until_unsaved
  kill_editor
  editor --project "$project" --language "$language"
  until_control "$message_title" $IDYES focused
  tab_to "$message_title" $IDNO
  key space
  window_gone "$message_title"
  close_editor
  leftovers 0
  unchanged main.xml
}

test_foreign_changes_by_mouse() {
  open_editor "$project" --language "$language"
  other_program 's/Sagunto/Puçol/'
  until_control "$message_title" $IDYES shown
  snapshot notice
  answer $IDYES 'main.xml'
  plain_watts
  other_program 's/Puçol/Sagunto/'
  until_control "$message_title" $IDNO shown
  snapshot notice_with_changes
  answer $IDNO
  key ctrl+s
  until_control "$message_title" $IDCANCEL shown
  snapshot question
  answer $IDCANCEL
  unchanged main.xml
  key ctrl+s
  answer $IDYES 'main.xml'
  until_saved
  grep -q Puçol "$project/main.xml"
  close_editor
}

test_foreign_changes_by_keyboard() {
  open_editor "$project" --language "$language"
  plain_watts
  sed -i 's/Sagunto/Puçol/' "$project/main.xml"
  until_unsaved
  key ctrl+s
  until_control "$message_title" $IDCANCEL focused
  key Escape
  window_gone "$message_title"
  until_unsaved
  key ctrl+s
  until_control "$message_title" $IDCANCEL focused
  tab_to "$message_title" $IDNO
  key Return
  until_saved
  close_editor
  leftovers 0
  grep -q Puçol "$project/main.xml"
}
