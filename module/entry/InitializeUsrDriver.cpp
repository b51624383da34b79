#include "InitializeUsrDriver.h"

#include "DriverCallbacks.h"
#include "EdgeGuard.h"
#include "KZDriverDeviceZEP.h"

namespace {

bool AddCallbacks()
{
    return KZDriverServices::Add(KZDriverDeviceZEP::GetThisClass(), &zep::ShowOptions, &zep::SelectVariables,
                                 &zep::NothingToShow);
}

bool AddChildFactory()
{
    return KZDriverServices::AddCreateChildOptionsDlg(KZDriverDeviceZEP::GetThisClass(), &zep::CreateChildOptions);
}

}  // namespace

extern "C" __declspec(dllexport) bool InitializeUsrDriver_ZEP()
{
    if (!zep::AtEdge(nullptr, &AddCallbacks, false))
        return false;
    // The driver works without an embedded options pane: a host that cannot take the factory still has the rest.
    zep::AtEdge(nullptr, &AddChildFactory, false);
    return true;
}
