// Ids of every text in the host's string table; also read by the resource compiler. What modules use is in
// KZStringIds.h; here are the host's own texts.
#pragma once

#include "KZStringIds.h"

// Names of device models
#define KZ_IDS_MODEL_ZEP 40000

// The options hub
#define KZ_IDS_OPTIONS_TITLE 40100  // %s %s: the model, the device
// The captions of the sections have access keys, which the window around the hub must leave to them.
#define KZ_IDS_OPTIONS_DRIVER 40101
#define KZ_IDS_OPTIONS_DEVICE 40102
#define KZ_IDS_OPTIONS_LIMITS 40103
#define KZ_IDS_OPTIONS_UNITS 40104
#define KZ_IDS_OPTIONS_INPUTS_OUTPUTS 40105
#define KZ_IDS_OPTIONS_GENERIC1 40106
#define KZ_IDS_OPTIONS_GENERIC2 40107
#define KZ_IDS_OPTIONS_GENERIC3 40108
#define KZ_IDS_OPTIONS_NOTHING_TO_SET_UP 40109  // %s %s: the model, the section
#define KZ_IDS_OPTIONS_SECTION_FAILED 40110

// Device documents
#define KZ_IDS_DEVICE_NOT_READ 40111         // %s: the reason
#define KZ_IDS_DEVICE_NOT_SAVED 40112        // %s: the reason
#define KZ_IDS_DEVICE_NOT_OVERWRITTEN 40113  // %s: the reason it was not read for
#define KZ_IDS_DEVICE_NO_PROJECT 40114
#define KZ_IDS_DEVICE_NOT_OPENED 40115
