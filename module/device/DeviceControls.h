// Control ids of the device configuration dialog, for its template and its code alike.
#pragma once

// clang-format off

#define IDD_DEVICE_CONFIGURATION 3350

// Identity: labels and the values under them
#define IDC_IDENTITY_GROUP       5000
#define IDC_NUMBER_LABEL         5001
#define IDC_NUMBER               5002
#define IDC_IDENTIFIER_LABEL     5003
#define IDC_IDENTIFIER           5010
#define IDC_DESCRIPTION_LABEL    5004
#define IDC_DESCRIPTION          5005
#define IDC_MODEL_LABEL          5006
#define IDC_MODEL                5007
#define IDC_VERSION_LABEL        5008
#define IDC_VERSION              5009
#define IDC_SERIAL_NUMBER_LABEL  5011
#define IDC_SERIAL_NUMBER        5012
#define IDC_GAMMA_LABEL          5013
#define IDC_GAMMA                5014

// Shown, not edited
#define IDC_STATUS_GROUP         5078
#define IDC_STATUS               8111
#define IDC_ALGORITHM_GROUP      5075
#define IDC_ALGORITHM            8110
#define IDC_RATIO_GROUP          5058
#define IDC_RATIO                8080
#define IDC_RATIO_SECONDARY      8082

// Check boxes, one per bit of the record
#define IDC_MODE_GROUP           5059
#define IDC_MODE                 8094    // to 8097
#define IDC_FILTERS_GROUP        5060
#define IDC_FILTER               8098    // to 8109

#define IDC_CURRENT_GROUP        5061
#define IDC_CURRENT              5062
#define IDC_CURRENT_UNIT         5063
#define IDC_UNITS_GROUP          5076
#define IDC_UNITS                5077
