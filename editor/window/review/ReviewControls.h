// Resource ids of the list of unsaved changes.
#pragma once

#define IDD_REVIEW 222

#define IDC_REVIEW_LABEL_CHANGES 4220
#define IDC_REVIEW_CHANGES 4221
#define IDC_REVIEW_ALL 4222
#define IDC_REVIEW_NONE 4223
