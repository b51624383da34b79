// The ids of what the plant has to say. The application has the sentences, in each language.
#pragma once

#define IDS_PLANT_FILE_MISSING 3001     // %s: the file
#define IDS_PLANT_FILE_DENIED 3002      // %s %s: the file, the reason
#define IDS_PLANT_FILE_FULL 3003        // %s %s: the file, the reason
#define IDS_PLANT_FILE_IN_USE 3004      // %s: the file
#define IDS_PLANT_FILE_LONG_PATH 3005   // %s: the file
#define IDS_PLANT_FILE_READ_ONLY 3006   // %s: the file
#define IDS_PLANT_FILE_IS_FOLDER 3007   // %s: the file
#define IDS_PLANT_FILE_FAILED 3008      // %s %s: the file, the reason
#define IDS_PLANT_LOCKED 3009           // %s: the lock file
#define IDS_PLANT_DAMAGED 3010          // %s: the file
#define IDS_PLANT_STRANGE_NAME 3011     // %s %s: the file, the name in it
#define IDS_PLANT_HALF_DONE 3012        // %s: the journal
#define IDS_PLANT_FOREIGN_CHANGES 3013  // %s: the documents
#define IDS_PLANT_NO_MEMORY 3014

#define IDS_PLANT_HISTORY_EMPTY 3020     // %s: the folder of the history
#define IDS_PLANT_HISTORY_NO_ENTRY 3021  // %s %s %s: the number asked for, the lowest and the highest that there is
#define IDS_PLANT_HISTORY_CHANGED 3022   // %s: the kept document that is not what it was
#define IDS_PLANT_NOT_A_FOLDER 3023      // %s: the link or file in the place of a folder
#define IDS_PLANT_DOCUMENT_IS_LINK 3024  // %s: the document
#define IDS_PLANT_HISTORY_BROKEN 3025    // %s: the number of the save

#define IDS_PLANT_RECOVERY_TOO_LARGE 3030  // %s: the project's folder

#define IDS_PLANT_NO_FOLDER 3040                // %s: the folder
#define IDS_PLANT_NO_MAIN 3041                  // %s: the file
#define IDS_PLANT_BROKEN_DOCUMENT 3042          // %s: the file and what is wrong with it
#define IDS_PLANT_NO_DEVICE 3043                // %s %s %s: the name, the file, the names that there are
#define IDS_PLANT_DEVICE_VALUE_MISSING 3044     // %s %s %s: the file, the device, the value
#define IDS_PLANT_DEVICE_BAD_DRIVER_ID 3045     // %s %s %s: the file, the device, the id
#define IDS_PLANT_DEVICE_DOUBLE_DRIVER_ID 3046  // %s %s %s: the file, the device, the id
#define IDS_PLANT_DEVICE_BAD_NAME 3047          // %s %s %s: the file, the device, the value
#define IDS_PLANT_DEVICE_DOUBLE_NAME 3048       // %s %s %s: the file, the device, the name
#define IDS_PLANT_DEVICE_BAD_NUMBER 3049        // %s %s %s: the file, the device, the text
#define IDS_PLANT_DEVICE_BAD_GROUPS 3050        // %s %s %s: the file, the device, the text
#define IDS_PLANT_DEVICE_NO_FIELDS 3052         // %s %s: the device, its type
#define IDS_PLANT_NO_FIELD 3053                 // %s: the key
#define IDS_PLANT_SAVE_UNFINISHED 3051          // %s: the folder of the project

#define IDS_PLANT_FIELD_NOT_WHOLE 3060
#define IDS_PLANT_FIELD_NO_CHOICE 3061  // %s: the names, with "|" between them
#define IDS_PLANT_FIELD_NO_SET 3062     // %s: the names, with "|" between them
#define IDS_PLANT_FIELD_READ_ONLY 3063
#define IDS_PLANT_FIELD_TWICE 3064

#define IDS_PLANT_TABLE_EMPTY 3080         // %s: the file
#define IDS_PLANT_TABLE_EMPTY_LINE 3081    // %s %s %s: the file, the row, the column
#define IDS_PLANT_TABLE_LINE_END 3082      // %s %s %s: the file, the row, the column
#define IDS_PLANT_TABLE_STRAY_QUOTE 3083   // %s %s %s: the file, the row, the column
#define IDS_PLANT_TABLE_BEHIND_QUOTE 3084  // %s %s %s: the file, the row, the column
#define IDS_PLANT_TABLE_OPEN_QUOTE 3085    // %s %s %s: the file, the row, the column
#define IDS_PLANT_TABLE_NOT_UTF8 3086      // %s %s %s: the file, the row, the column
#define IDS_PLANT_TABLE_ZERO_BYTE 3087     // %s %s %s: the file, the row, the column
#define IDS_PLANT_TABLE_ROW_SHORT 3088     // %s %s %s: the file, the row, the first column that is missing
#define IDS_PLANT_TABLE_ROW_LONG 3089      // %s %s %s: the file, the row, the first column that the header lacks
#define IDS_PLANT_TABLE_MISSING 3090       // %s: the file
#define IDS_PLANT_TABLE_NO_DEVICES 3091    // %s %s %s: the file, the row, the column
#define IDS_PLANT_TABLE_NO_FIELD 3092      // %s %s %s %s: the file, the row, the column, the key
#define IDS_PLANT_TABLE_SAME_COLUMN 3093   // %s %s %s %s: the file, the row, the column, its name
#define IDS_PLANT_TABLE_NO_DEVICE 3094     // %s %s %s %s: the file, the row, the column, the device
#define IDS_PLANT_TABLE_SAME_DEVICE 3095   // %s %s %s %s: the file, the row, the column, the device
#define IDS_PLANT_TABLE_NO_TYPE 3096       // %s %s %s %s: the file, the row, the column, the device

#define IDS_PLANT_CHECK_NO_DOCUMENT 3100  // %s: the file
#define IDS_PLANT_CHECK_STRAY_DOCUMENT 3101
#define IDS_PLANT_CHECK_UNKNOWN_TYPE 3102     // %s: the type
#define IDS_PLANT_CHECK_NO_WHOLE_NUMBER 3103  // %s: the stored text
#define IDS_PLANT_CHECK_NO_CHOICE 3104        // %s %s: the stored number, the names that there are
#define IDS_PLANT_CHECK_STRAY_SETUP 3105      // %s %s: the element, the driverId
#define IDS_PLANT_CHECK_DOUBLE_SETUP 3106     // %s %s: the element, the driverId
#define IDS_PLANT_CHECK_NO_VARIABLE 3107      // %s: the chosen name
#define IDS_PLANT_CHECK_OTHER_DEVICE 3108     // %s: the chosen name
#define IDS_PLANT_CHECK_DOUBLE_VARIABLE 3109  // %s: the chosen name
#define IDS_PLANT_CHECK_NO_GROUPS 3110        // %s: the device's groups

#define IDS_PLANT_NAME_USED 3120  // %s: the name
#define IDS_PLANT_NAME_UNFIT 3121
#define IDS_PLANT_NUMBER_UNFIT 3122
#define IDS_PLANT_NUMBER_USED 3123  // %s %s: the device that has it, the number
#define IDS_PLANT_GROUPS_UNFIT 3124
#define IDS_PLANT_RATIO_UNFIT 3125
#define IDS_PLANT_TEXT_UNFIT 3126
#define IDS_PLANT_PROJECT_EXISTS 3130     // %s: the folder
#define IDS_PLANT_PROJECT_READ_ONLY 3131  // %s: the folder
#define IDS_PLANT_CANNOT_COME_BACK 3132   // %s: the device

// What can be undone, as it stands behind "Undo".
#define IDS_PLANT_STEP_ADD 3140          // %s: the device
#define IDS_PLANT_STEP_DUPLICATE 3141    // %s: the device
#define IDS_PLANT_STEP_RENAME 3142       // %s: the device
#define IDS_PLANT_STEP_REMOVE 3143       // %s: the device
#define IDS_PLANT_STEP_REMOVE_MANY 3144  // %s: how many devices
#define IDS_PLANT_STEP_TAKE_BACK 3145
#define IDS_PLANT_STEP_VARIABLES 3146  // %s: the device
#define IDS_PLANT_STEP_OPTIONS 3147    // %s: the device
