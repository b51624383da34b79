// Full variable names: the device's name, ".", the variable's name.
#pragma once

#include "KZBasicString.h"

// Splits a full name into its device part and its variable part.
//   fullName          the name to split
//   device, variable  receive the parts; their storage is reused, so a loop over many names hardly allocates
//   atFirstDot        false: at the last ".", so that device names may hold dots; true: at the first, for drivers whose
//                     variable names hold dots
// Returns false when the name has no "."; device is then empty and variable holds the whole name.
KZ_API bool SplitDriverVariable(const KZBasicString& fullName, KZBasicString& device, KZBasicString& variable,
                                bool atFirstDot);
