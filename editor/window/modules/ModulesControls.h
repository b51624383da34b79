// Resource ids of the list of modules.
#pragma once

#define IDD_MODULES 210

#define IDC_MODULES_LABEL_LIST 4100
#define IDC_MODULES_LIST 4101
#define IDC_MODULES_LABEL_STATE 4102
#define IDC_MODULES_STATE 4103
#define IDC_MODULES_COPY 4104
