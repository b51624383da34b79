#include "KZDriverServices.h"

#include <map>

#include "../dialogs/ExceptionGuard.h"

namespace {

// A map, because Find hands out pointers that must outlast later registrations.
using Registry = std::map<const CRuntimeClass*, KZDriverCallbacks>;

Registry& TheRegistry() noexcept
{
    static Registry registry;
    return registry;
}

KZDriverCallbacks* FindCallbacks(const CRuntimeClass* deviceClass) noexcept
{
    const auto found = TheRegistry().find(deviceClass);
    return found == TheRegistry().end() ? nullptr : &found->second;
}

}  // namespace

bool KZDriverServices::Add(const CRuntimeClass* deviceClass, KZDriverDialogCallback options,
                           KZSelectVariablesCallback selectVariables, KZDriverDialogCallback third)
{
    if (!deviceClass || !options || !selectVariables || !third)
        return false;
    return Succeeds([&] {
        return TheRegistry().try_emplace(deviceClass, KZDriverCallbacks{options, selectVariables, third}).second;
    });
}

bool KZDriverServices::AddCreateChildOptionsDlg(const CRuntimeClass* deviceClass, KZChildOptionsFactory factory)
{
    KZDriverCallbacks* callbacks = FindCallbacks(deviceClass);
    if (!callbacks || !factory || callbacks->createChildOptions)
        return false;
    callbacks->createChildOptions = factory;
    return true;
}

const KZDriverCallbacks* KZDriverServices::Find(const CRuntimeClass* deviceClass) noexcept
{
    return FindCallbacks(deviceClass);
}

void KZDriverServices::Remove(const CRuntimeClass* deviceClass) noexcept
{
    TheRegistry().erase(deviceClass);
}
