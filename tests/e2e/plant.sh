# shellcheck shell=bash disable=SC2086,SC2154
# Building up a plant and looking after it: devices, what was changed, findings, history. Where the items of a menu are cannot
# be asked of another program, so menus of the bar are opened, and items of all taken, by their access keys here too.

new_plant=$desktop_folder/new/plant
copy=$desktop_folder/copy

# names: of the new plant's devices, one per line
names() {
  python3 - "$new_plant/main.xml" <<'END'
import sys, xml.etree.ElementTree as tree
for device in tree.parse(sys.argv[1]).find("devices"):
    print(device.findtext("name"))
END
}

# devices N: so many are in the list
devices() { until_control "$main_title" $IDC_DEVICES ITEMS="$1"; }

# to_list: the focus goes to the list of devices, by keys
to_list() {
  key ctrl+f
  until_control "$main_title" $IDC_FIND focused
  key Down
  until_control "$main_title" $IDC_DEVICES focused
}

# A plant of three filters is made: one added, two like it, one of them called otherwise, one taken out and brought back.
test_build_a_plant_by_mouse() {
  mkdir -p "$desktop_folder/new"
  open_editor "$project" --language "$language"
  key alt+a n
  until_control '' $IDC_FOLDER_PATH shown
  fill $IDC_FOLDER_PATH "$(wine_path "$new_plant")"
  click '' $IDOK
  devices 0
  key alt+e a
  until_control '' $IDC_ADD_NAME shown
  fill $IDC_ADD_NAME HORNO1
  fill $IDC_ADD_RATIO 1000
  snapshot add
  click '' $IDOK
  devices 1
  until_unsaved
  key alt+e d
  until_control '' $IDC_DUPLICATE_COUNT shown
  fill $IDC_DUPLICATE_COUNT 2
  until_control '' $IDC_DUPLICATE_DEVICES ITEMS=2
  snapshot duplicate
  click '' $IDOK
  devices 3
  click_for_menu "$main_title" $IDC_DEVICES 1
  key n
  until_control '' $IDC_RENAME_NAME shown
  fill $IDC_RENAME_NAME CALDERA
  snapshot rename
  click '' $IDOK
  until_control "$main_title" $IDC_PAGE_CAPTION TEXT=CALDERA
  key alt+e u
  until_control '' $IDC_REMOVE_DEVICES ITEMS=1
  snapshot remove
  click '' $IDOK
  devices 2
  key alt+d d
  devices 3
  key alt+a g
  answer $IDYES
  until_saved
  click_close_box "$main_title"
  editor_ended
  equal 'the devices' "$(names)" "$(lines HORNO1 CALDERA HORNO3)"
  equal 'the documents' "$(find "$new_plant/devices" -name '*.xml' | wc -l)" 3
}

test_build_a_plant_by_keyboard() {
  mkdir -p "$desktop_folder/new"
  open_editor "$project" --language "$language"
  key ctrl+n
  until_control '' $IDC_FOLDER_PATH focused
  type_text "$(wine_path "$new_plant")"
  key Return
  devices 0
  key Insert
  until_control '' $IDC_ADD_NAME shown
  enter $IDC_ADD_NAME HORNO1
  enter $IDC_ADD_RATIO 1000
  key Return
  devices 1
  until_unsaved
  key ctrl+shift+d
  until_control '' $IDC_DUPLICATE_COUNT shown
  enter $IDC_DUPLICATE_COUNT 2
  until_control '' $IDC_DUPLICATE_DEVICES ITEMS=2
  key Return
  devices 3
  to_list
  key ctrl+Down
  until_control "$main_title" $IDC_PAGE_CAPTION TEXT=HORNO2
  key shift+F10
  until_menu
  key n
  until_control '' $IDC_RENAME_NAME shown
  enter $IDC_RENAME_NAME CALDERA
  key Return
  until_control "$main_title" $IDC_PAGE_CAPTION TEXT=CALDERA
  key Delete
  until_control '' $IDC_REMOVE_DEVICES ITEMS=1
  press_key_on $IDOK Return
  devices 2
  key ctrl+z
  devices 3
  key ctrl+s
  until_control "$message_title" $IDYES focused
  key Return
  until_saved
  close_editor
  equal 'the devices' "$(names)" "$(lines HORNO1 CALDERA HORNO3)"
  equal 'the documents' "$(find "$new_plant/devices" -name '*.xml' | wc -l)" 3
}

# What is wrong is found; a change is taken back; a saved one goes with the history; modules, version, another language.
test_look_after_a_plant_by_mouse() {
  open_editor "$project" --language "$language"
  key alt+p c
  until_control "$main_title" $IDC_FINDINGS_LABEL 'TEXT=Findings (1)'
  click "$main_title" $IDC_FINDINGS 0
  key alt+p n
  until_control "$main_title" $IDC_PAGE_CAPTION 'TEXT=LAB ENSAYOS'
  click "$main_title" $IDC_FINDINGS_CLOSE
  choose_device 0 TREN1
  key alt+d n
  until_control '' $IDC_RENAME_NAME shown
  fill $IDC_RENAME_NAME TREN9
  click '' $IDOK
  until_unsaved
  key alt+e c
  until_control '' $IDC_REVIEW_ALL shown
  click '' $IDC_REVIEW_ALL
  snapshot review
  click '' $IDOK
  until_control "$main_title" $IDC_PAGE_CAPTION TEXT=TREN1
  until_saved
  unchanged main.xml
  key alt+d n
  until_control '' $IDC_RENAME_NAME shown
  fill $IDC_RENAME_NAME TREN9
  click '' $IDOK
  save_project
  key alt+f h
  until_control '' $IDC_HISTORY_SAVES ITEMS=1
  snapshot history
  click '' $IDOK
  answer $IDYES
  until_control "$main_title" $IDC_PAGE_CAPTION TEXT=TREN1
  unchanged main.xml
  key alt+h m
  until_control '' $IDC_MODULES_LIST ITEMS=1
  click '' $IDCANCEL
  key alt+h a
  until_control '' $IDC_ABOUT_DETAILS shown
  click '' $IDCANCEL
  key alt+v l s
  until_control "$main_title" $IDC_SELECT 'TEXT=Seleccionar'
  click_close_box "$main_title"
  editor_ended
}

test_look_after_a_plant_by_keyboard() {
  open_editor "$project" --language "$language"
  key F7
  until_control "$main_title" $IDC_FINDINGS_LABEL 'TEXT=Hallazgos (1)'
  key F8
  until_control "$main_title" $IDC_PAGE_CAPTION 'TEXT=LAB ENSAYOS'
  key ctrl+5
  until_control "$main_title" $IDC_FINDINGS focused
  key Return
  until_control "$main_title" $IDC_VALUES focused
  to_list
  key Home
  until_control "$main_title" $IDC_PAGE_CAPTION TEXT=TREN1
  key F2
  until_control '' $IDC_RENAME_NAME shown
  enter $IDC_RENAME_NAME TREN9
  key Return
  until_unsaved
  key ctrl+r
  until_control '' $IDC_REVIEW_ALL shown
  press_key_on $IDC_REVIEW_ALL space
  press_key_on $IDOK space
  until_control "$main_title" $IDC_PAGE_CAPTION TEXT=TREN1
  until_saved
  unchanged main.xml
  to_list
  key F2
  until_control '' $IDC_RENAME_NAME shown
  enter $IDC_RENAME_NAME TREN9
  key Return
  save_project
  key alt+a h
  until_control '' $IDC_HISTORY_SAVES ITEMS=1
  press_key_on $IDOK space
  tab_to "$message_title" $IDYES
  key space
  until_control "$main_title" $IDC_PAGE_CAPTION TEXT=TREN1
  unchanged main.xml
  key alt+y m
  until_control '' $IDC_MODULES_LIST ITEMS=1
  key Escape
  key alt+y a
  until_control '' $IDC_ABOUT_DETAILS shown
  key Escape
  window "$main_title"
  key alt+v i e
  until_control "$main_title" $IDC_SELECT 'TEXT=Select'
  close_editor
}

# The editor without a project: one is opened, copied with what is unsaved, left for the copy and come back to.
test_move_between_projects_by_mouse() {
  editor --language "$language"
  until_control '' $IDC_OPEN shown
  snapshot start
  click '' $IDC_OPEN
  until_control '' $IDC_FOLDER_PATH shown
  fill $IDC_FOLDER_PATH "$(wine_path "$project")"
  click '' $IDOK
  devices 6
  show_variables
  click "$main_title" $IDC_CHOSEN
  until_control "$main_title" $IDC_CHOSEN focused
  key Home
  click "$main_title" $IDC_REMOVE
  until_unsaved
  key alt+f c
  until_control '' $IDC_FOLDER_PATH shown
  fill $IDC_FOLDER_PATH "$(wine_path "$copy")"
  click '' $IDOK
  until_unsaved
  key alt+f o
  until_control '' $IDC_FOLDER_RECENT ITEMS=1
  fill $IDC_FOLDER_PATH "$(wine_path "$copy")"
  snapshot open
  click '' $IDOK
  answer $IDNO
  window '=KZEditor – copy'
  key alt+f r 2
  until_saved
  devices 6
  click_close_box "$main_title"
  editor_ended
  unchanged main.xml
  equal 'the variables in the copy' "$(project=$copy chosen zep-01 | wc -l)" $(($(chosen zep-01 | wc -l) - 1))
}

test_move_between_projects_by_keyboard() {
  editor --language "$language"
  until_control '' $IDC_OPEN shown
  key ctrl+o
  until_control '' $IDC_FOLDER_PATH focused
  type_text "$(wine_path "$project")"
  key Return
  devices 6
  key ctrl+3
  until_control "$main_title" $IDC_CHOSEN shown
  key F6 F6
  until_control "$main_title" $IDC_CHOSEN focused
  key Home Delete
  until_unsaved
  key alt+a c
  until_control '' $IDC_FOLDER_PATH focused
  type_text "$(wine_path "$copy")"
  key Return
  until_unsaved
  key ctrl+o
  until_control '' $IDC_FOLDER_PATH focused
  type_text "$(wine_path "$copy")"
  key Return
  tab_to "$message_title" $IDNO
  key space
  window '=KZEditor – copy'
  key ctrl+o
  until_control '' $IDC_FOLDER_RECENT ITEMS=2
  tab_to '' $IDC_FOLDER_RECENT
  key Down Return
  until_saved
  devices 6
  close_editor
  unchanged main.xml
  equal 'the variables in the copy' "$(project=$copy chosen zep-01 | wc -l)" $(($(chosen zep-01 | wc -l) - 1))
}
