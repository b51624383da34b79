// A device, a host list and both languages for tests of the selection dialog.
#pragma once

#include <gtest/gtest.h>

#include <list>
#include <string>
#include <vector>

#include "KZDriverDeviceZEP.h"
#include "KZLoadString.h"
#include "KZQuorvelantaSetup.h"
#include "SelectVarMessages.h"
#include "SelectionTables.h"
#include "TestSelection.h"

inline std::wstring HostText(unsigned id)
{
    return std::wstring(KZLoadString(id).View());
}

// The messages of a page, as TestSelection notes them.
inline TestSelection::Note Select(WPARAM count, LRESULT answer = 1)
{
    return {WM_SELECTVAR_SELECT, count, 0, answer};
}
inline TestSelection::Note Unselect(WPARAM count)
{
    return {WM_SELECTVAR_UNSELECT, count, 0, 1};
}

template <class Test>
void ForEachLanguage(Test test)
{
    for (const KZLanguage language : {KZLanguage::English, KZLanguage::Spanish}) {
        KZQuorvelantaSetup::Get()->SetLanguage(language);
        test();
    }
    KZQuorvelantaSetup::Get()->SetLanguage(KZLanguage::English);
}

class SelectionTest : public testing::Test {
protected:
    [[nodiscard]] std::vector<std::wstring> Names() const
    {
        std::vector<std::wstring> names;
        for (const KZBasicString& name : m_names)
            names.emplace_back(name.View());
        return names;
    }

    KZDriverDeviceZEP m_device{{L"zep-1", L"DEV1", 1, L"ZEP", L"", KZVariableGroups(0x74)}};
    std::list<KZBasicString> m_names;
};
