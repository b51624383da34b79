// Every call that the host makes into the module, when memory runs out at any moment of it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "FaultWalk.h"
#include "MemoryFaults.h"

namespace {

using testing::IsEmpty;

class MemoryRunningOut : public testing::Test {
protected:
    void Walk(const FaultyCall& call) { EXPECT_THAT(WalkFaults(call, m_log), IsEmpty()) << m_log.Describe(); }
    void WalkOptions(const std::string& name, OptionalSection section = {}, bool confirms = true)
    {
        Walk({name, [](ZepProject& project, auto&) { return project.Options(); }, confirms ? 8 : 4, section, confirms});
    }

private:
    EventLog m_log{0};
};

TEST_F(MemoryRunningOut, LeavesTheOptionsHubWhole)
{
    WalkOptions("options");
}

TEST_F(MemoryRunningOut, LeavesTheDevicesRecordWhole)
{
    WalkOptions("device", KZSectionDevice);
    WalkOptions("device given up", KZSectionDevice, false);
}

TEST_F(MemoryRunningOut, LeavesTheUnitsWhole)
{
    WalkOptions("units", KZSectionUnits);
    WalkOptions("units given up", KZSectionUnits, false);
}

TEST_F(MemoryRunningOut, LeavesTheLimitsWhole)
{
    WalkOptions("limits", KZSectionLimits);
    WalkOptions("limits given up", KZSectionLimits, false);
}

TEST_F(MemoryRunningOut, LeavesTheHostsListWhole)
{
    const auto select = [](ZepProject& project, auto& names) { return project.Select(names); };
    Walk({"selection", select, 8});
    Walk({"selection given up", select, 8, {}, false});
}

TEST_F(MemoryRunningOut, StillSaysThatTheDeviceLacksTheVariables)
{
    Walk(
        {"selection without groups", [](ZepProject& project, auto& names) { return project.Select(names, 0, 1); }, 20});
}

TEST_F(MemoryRunningOut, LeavesNoHalfMadeChildDialog)
{
    CWnd parent;
    ASSERT_TRUE(parent.CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPEDWINDOW, 0, 0, 800, 600, nullptr, nullptr));
    const auto embed = [&](ZepProject& project, auto&) {
        CDialog* const child = ZepProject::Callbacks().createChildOptions(&parent, &project.device);
        if (child)
            child->DestroyWindow();
        delete child;
        return child != nullptr;
    };
    Walk({"child options", embed, 40, {}, true, true});
    parent.DestroyWindow();
}

TEST_F(MemoryRunningOut, LeavesTheDriverRegisteredOrNotAtAll)
{
    const auto registerAgain = [](ZepProject& project, auto&) {
        KZDriverServices::Remove(KZDriverDeviceZEP::GetThisClass());
        const bool registered = project.Register();
        KZDriverServices::Remove(KZDriverDeviceZEP::GetThisClass());
        const MemoryFaults::Pause pause;
        EXPECT_TRUE(project.Register());  // for the next round
        return registered;
    };
    Walk({"registration", registerAgain, 40, {}, true, true});
}

}  // namespace
