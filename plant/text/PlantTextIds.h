// The ids of what the plant has to say. The application has the sentences, in each language.
#pragma once

#define IDS_PLANT_FILE_MISSING 3001    // %s: the file
#define IDS_PLANT_FILE_DENIED 3002     // %s %s: the file, the reason
#define IDS_PLANT_FILE_FULL 3003       // %s %s: the file, the reason
#define IDS_PLANT_FILE_IN_USE 3004     // %s %s: the file, the reason
#define IDS_PLANT_FILE_LONG_PATH 3005  // %s: the file
#define IDS_PLANT_FILE_READ_ONLY 3006  // %s: the file
#define IDS_PLANT_FILE_FAILED 3007     // %s %s: the file, the reason
#define IDS_PLANT_LOCKED 3008          // %s: the lock file
#define IDS_PLANT_DAMAGED 3009         // %s: the file
#define IDS_PLANT_STRANGE_NAME 3010    // %s %s: the file, the name in it
#define IDS_PLANT_HALF_DONE 3011       // %s: the journal
#define IDS_PLANT_FILE_IS_FOLDER 3012  // %s: the file

#define IDS_PLANT_HISTORY_EMPTY 3020     // %s: the folder of the history
#define IDS_PLANT_HISTORY_NO_ENTRY 3021  // %s %s %s: the number asked for, the lowest and the highest that there is
#define IDS_PLANT_HISTORY_CHANGED 3022   // %s: the kept document that is not what it was
#define IDS_PLANT_NOT_A_FOLDER 3023      // %s: the link or file in the place of a folder
#define IDS_PLANT_DOCUMENT_IS_LINK 3024  // %s: the document

#define IDS_PLANT_RECOVERY_TOO_LARGE 3030  // %s: the project's folder
