// Resource ids of the list of saves.
#pragma once

#define IDD_HISTORY 220

#define IDC_HISTORY_LABEL_SAVES 4200
#define IDC_HISTORY_SAVES 4201
#define IDC_HISTORY_LABEL_DOCUMENTS 4202
#define IDC_HISTORY_DOCUMENTS 4203
