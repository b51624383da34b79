#include "InitializeUsrDriver.h"

#include "DriverCallbacks.h"
#include "EdgeGuard.h"
#include "KZDriverDeviceZEP.h"

extern "C" __declspec(dllexport) bool InitializeUsrDriver_ZEP()
{
    return zep::AtEdge(
        [] {
            if (!KZDriverServices::Add(KZDriverDeviceZEP::GetThisClass(), &zep::ShowOptions, &zep::SelectVariables,
                                       &zep::NothingToShow))
                return false;
            // The driver works without an embedded options pane, so a host that refuses the factory still has the rest.
            KZDriverServices::AddCreateChildOptionsDlg(KZDriverDeviceZEP::GetThisClass(), &zep::CreateChildOptions);
            return true;
        },
        false);
}
