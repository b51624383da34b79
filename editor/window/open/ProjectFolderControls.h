// Resource ids of the dialog that asks for the folder of a project.
#pragma once

#define IDD_PROJECT_FOLDER 221

#define IDC_FOLDER_LABEL_PATH 4210
#define IDC_FOLDER_PATH 4211
#define IDC_FOLDER_BROWSE 4212
#define IDC_FOLDER_LABEL_RECENT 4213
#define IDC_FOLDER_RECENT 4214
