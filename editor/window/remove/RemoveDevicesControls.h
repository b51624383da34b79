// Resource ids of the dialog that removes devices.
#pragma once

#define IDD_REMOVE_DEVICES 203

#define IDC_REMOVE_LABEL_DEVICES 4050
#define IDC_REMOVE_DEVICES 4051
#define IDC_REMOVE_HINT 4052
