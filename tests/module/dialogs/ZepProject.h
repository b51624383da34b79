// The module's DLL, loaded and registered, with a project and a ZEP device around it: what the host has when it calls.
#pragma once

#include <afxwin.h>

#include <list>
#include <stdexcept>
#include <string>
#include <vector>

#include "KZDriverDeviceZEP.h"
#include "KZDriverServices.h"
#include "Plant.h"

class ZepProject {
public:
    // A record that passes the device dialog's validation.
    static constexpr const char* Record =
        "<information><version>1.04</version><serialNum>00731</serialNum><gamma>60 A</gamma><mode>10</mode>"
        "<filters>2049</filters><transRatio>0200</transRatio><minCurrent>007</minCurrent><algorithm>1</algorithm>"
        "<numZEP>3</numZEP><status>1</status></information>";

    ZepProject() : m_module(::LoadLibraryW(L"KZUsrZEP.dll"))
    {
        if (!Register())
            throw std::runtime_error("KZUsrZEP.dll cannot be used");
        plant.WriteDevice(Record);
    }
    ~ZepProject()
    {
        KZDriverServices::Remove(KZDriverDeviceZEP::GetThisClass());
        ::FreeLibrary(m_module);
    }
    ZepProject(const ZepProject&) = delete;
    ZepProject& operator=(const ZepProject&) = delete;

    // Calls the module's entry.
    [[nodiscard]] bool Register() const
    {
        using Entry = bool (*)();
        const auto entry =
            reinterpret_cast<Entry>(reinterpret_cast<void*>(::GetProcAddress(m_module, "InitializeUsrDriver_ZEP")));
        return entry && entry();
    }
    [[nodiscard]] static const KZDriverCallbacks& Callbacks()
    {
        return *KZDriverServices::Find(KZDriverDeviceZEP::GetThisClass());
    }
    bool Options(CWnd* parent = nullptr) { return Callbacks().options(parent, &device); }
    bool Select(std::list<KZBasicString>& names, int maximum = 0, unsigned long long groups = 0x74)
    {
        return Callbacks().selectVariables(nullptr, &device, names, KZVariableGroups(groups), maximum, nullptr);
    }
    [[nodiscard]] HMODULE Module() const noexcept { return m_module; }

    Plant plant;
    KZDriverDeviceZEP device{{L"zep1", L"DEV1", 7, L"ZEP", L"Main hall, feeder 3", KZVariableGroups(0x74)}};

private:
    HMODULE m_module;
};

[[nodiscard]] inline std::vector<std::wstring> Texts(const std::list<KZBasicString>& names)
{
    std::vector<std::wstring> texts;
    for (const KZBasicString& name : names)
        texts.emplace_back(name.View());
    return texts;
}
