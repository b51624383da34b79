// Resource ids of the dialog that renames a device.
#pragma once

#define IDD_RENAME_DEVICE 201

#define IDC_RENAME_LABEL_NUMBER 4020
#define IDC_RENAME_NUMBER 4021
#define IDC_RENAME_LABEL_NAME 4022
#define IDC_RENAME_NAME 4023
#define IDC_RENAME_LABEL_DESCRIPTION 4024
#define IDC_RENAME_DESCRIPTION 4025
