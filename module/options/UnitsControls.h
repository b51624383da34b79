// Control ids of the units dialog, for its template and its code alike.
#pragma once

// clang-format off

#define IDD_UNITS                3352

// Active and apparent power
#define IDC_APPARENT_GROUP       8005
#define IDC_APPARENT_UNIT_LABEL  8015
#define IDC_APPARENT_KILO        8020
#define IDC_APPARENT_PLAIN       8027
#define IDC_APPARENT_DEC_LABEL   8039
#define IDC_APPARENT_DEC_0       8049
#define IDC_APPARENT_DEC_1       8059
#define IDC_APPARENT_DEC_2       8065
#define IDC_APPARENT_DEC_3       8071

// Reactive power
#define IDC_REACTIVE_GROUP       8006
#define IDC_REACTIVE_UNIT_LABEL  8016
#define IDC_REACTIVE_KILO        8021
#define IDC_REACTIVE_PLAIN       8028
#define IDC_REACTIVE_DEC_LABEL   8040
#define IDC_REACTIVE_DEC_0       8050
#define IDC_REACTIVE_DEC_1       8060
#define IDC_REACTIVE_DEC_2       8066
#define IDC_REACTIVE_DEC_3       8072
