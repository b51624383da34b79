// The module's one exported entry.
#pragma once

// Registers the driver's callbacks with the host. Called once, after the module has been attached.
// Returns false when the host refuses them.
extern "C" __declspec(dllexport) bool InitializeUsrDriver_ZEP();
