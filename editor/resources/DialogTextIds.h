// Ids of the texts of the editor's dialogs; included by C++ and by the resource scripts.
#pragma once

// Lists
#define IDS_LIST_COPY 2208
#define IDS_LIST_MARK_ALL 2209
#define IDS_BUTTON_CLOSE 2210

// Modules
#define IDS_MODULES_TITLE 2211
#define IDS_MODULES_LIST 2212
#define IDS_MODULES_STATE 2213
#define IDS_MODULES_COPY 2214
#define IDS_MODULES_COLUMN_FILE 2215
#define IDS_MODULES_COLUMN_VERSION 2216
#define IDS_MODULES_COLUMN_STATE 2217
#define IDS_MODULES_SERVES 2218  // %s %s: the file, the model

// About
#define IDS_ABOUT_TITLE 2219
#define IDS_ABOUT_VERSION 2220  // %s: the version
#define IDS_ABOUT_PURPOSE 2221
#define IDS_ABOUT_DETAILS 2222
#define IDS_ABOUT_COPY 2223
