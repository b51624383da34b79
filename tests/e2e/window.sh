# shellcheck shell=bash disable=SC2086,SC2154
# The main window: finding filters, undoing what was changed, another language.

# Two words find one filter; what is removed from its variables is undone, redone and saved.
test_window_by_mouse() {
  open_editor "$project" --language "$language"
  click "$main_title" $IDC_FIND
  type_text 'norte grua'
  until_control "$main_title" $IDC_FIND_COUNT "TEXT=1 $(in_language of de) 6"
  choose_device 0 GRUA.NORTE
  show_variables
  until_control "$main_title" $IDC_CHOSEN ITEMS=2
  click "$main_title" $IDC_CHOSEN
  until_control "$main_title" $IDC_CHOSEN focused
  key Home
  click "$main_title" $IDC_REMOVE
  until_control "$main_title" $IDC_CHOSEN ITEMS=1
  until_unsaved
  snapshot removed
  click "$main_title" $IDC_FIND_CLEAR
  until_control "$main_title" $IDC_FIND_COUNT 'TEXT=6 '
  click "$main_title" $IDC_DEVICES 3
  key ctrl+z
  until_control "$main_title" $IDC_CHOSEN ITEMS=2
  until_saved
  key ctrl+y
  until_control "$main_title" $IDC_CHOSEN ITEMS=1
  save_project
  click_close_box "$main_title"
  editor_ended
  equal 'the number of chosen variables' "$(chosen zep-04 | wc -l)" 1
}

# The same without the mouse, and the start without a project afterwards, which opens this one again.
test_window_by_keyboard() {
  open_editor "$project" --language "$language"
  key ctrl+f
  until_control "$main_title" $IDC_FIND focused
  type_text 'norte grua'
  until_control "$main_title" $IDC_FIND_COUNT "TEXT=1 $(in_language of de) 6"
  key Down
  until_control "$main_title" $IDC_PAGE_CAPTION TEXT=GRUA.NORTE
  key ctrl+3
  until_control "$main_title" $IDC_CHOSEN ITEMS=2
  key F6 F6
  until_control "$main_title" $IDC_CHOSEN focused
  key Home Delete
  until_control "$main_title" $IDC_CHOSEN ITEMS=1
  until_unsaved
  key ctrl+z
  until_control "$main_title" $IDC_CHOSEN ITEMS=2
  until_saved
  key ctrl+y
  save_project
  close_editor
  editor
  window "$main_title"
  until_control "$main_title" $IDC_DEVICES ITEMS=6
  close_editor
  equal 'the number of chosen variables' "$(chosen zep-04 | wc -l)" 1
}
