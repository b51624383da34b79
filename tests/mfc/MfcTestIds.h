// Ids of the test program's resources.
#pragma once

#define IDD_CONTROLS 4000
#define IDD_SHADOWED 4001
#define IDD_CHILD 4002
#define IDD_PLACED 4003

#define IDC_EDIT 101
#define IDC_CHECK 102
#define IDC_RADIO_FIRST 103
#define IDC_RADIO_SECOND 104
#define IDC_RADIO_THIRD 105
#define IDC_COMBO 106
#define IDC_LIST 107
#define IDC_LABEL 108
#define IDC_BUTTON 110
#define IDC_BUTTON_LAST 112
#define IDC_TAB 120
#define IDC_REPORT 121
#define IDC_AFTER_RADIOS 122

#define IDS_GREETING 4200
