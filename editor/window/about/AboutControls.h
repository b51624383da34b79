// Resource ids of the box that says what program this is.
#pragma once

#define IDD_ABOUT 211

#define IDC_ABOUT_ICON 4110
#define IDC_ABOUT_VERSION 4111
#define IDC_ABOUT_PURPOSE 4112
#define IDC_ABOUT_LABEL_DETAILS 4113
#define IDC_ABOUT_DETAILS 4114
#define IDC_ABOUT_COPY 4115
