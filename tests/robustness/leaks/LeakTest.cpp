// Dialogs that are opened and closed again and again leave nothing behind.
#include <gtest/gtest.h>

#include <functional>

#include "Endurance.h"
#include "EventLog.h"
#include "MemoryFaults.h"
#include "ProcessState.h"
#include "ScriptedUser.h"
#include "StaticControls.h"
#include "ZepProject.h"

namespace {

class RepeatedDialog : public testing::Test {
protected:
    // Opens and closes a dialog in the usual number of rounds, after some that make what stays.
    void Repeat(const std::function<void(std::list<KZBasicString>&)>& openAndClose, OptionalSection section = {})
    {
        constexpr long WarmUp = 12;
        const long rounds = endurance::Rounds(25, 1000);
        for (long round = 0; round < WarmUp; ++round)
            Round(openAndClose, section);
        const StaticControlCount statics;
        const ProcessState before = CountProcessState();
        const long long bytesBefore = CountHeapBytes();
        long blocks = 0;
        for (long round = 0; round < rounds; ++round)
            blocks += Round(openAndClose, section);
        const long long bytes = CountHeapBytes() - bytesBefore;
        const long long systems = StaticControlCount::Count() * m_bytesPerStatic;
        EXPECT_EQ(CountProcessState(), before);
        EXPECT_EQ(blocks, 0) << "blocks that the product's own DLLs and the C++ library have left";
        EXPECT_LT(bytes - systems, 1024) << "bytes by which all heaps of the process have grown";
        std::printf("%ld rounds: %ld blocks of the product left; the process has grown by %lld bytes, up to %lld of "
                    "them Wine's "
                    "own for %ld static controls\n",
                    rounds, blocks, bytes, systems, StaticControlCount::Count());
    }
    void RepeatOptions(OptionalSection section = {})
    {
        Repeat([&](auto&) { m_project.Options(); }, section);
    }

    long long m_bytesPerStatic = BytesLeftByAStaticControl();
    EventLog m_log{0};
    ZepProject m_project;

private:
    // Returns how many blocks it has left.
    long Round(const std::function<void(std::list<KZBasicString>&)>& openAndClose, OptionalSection section)
    {
        Plant::Configure("");
        m_project.plant.WriteDevice(ZepProject::Record);
        std::list<KZBasicString> names;
        const ScriptedUser user(section);
        AfxGetApp()->OnIdle(0);
        m_log.Add("open and close");
        MemoryFaults::Arm(0);
        openAndClose(names);
        AfxGetApp()->OnIdle(0);
        names.clear();
        Plant::Configure("");
        MemoryFaults::Disarm();
        return MemoryFaults::Balance();
    }

    MemoryFaults m_memory{{L"KZUsrZEP.dll", L"KZHost.dll", L"KZMfc.dll"}};
};

TEST_F(RepeatedDialog, OfTheOptionsLeavesNothing)
{
    RepeatOptions();
}

TEST_F(RepeatedDialog, OfTheDeviceLeavesNothing)
{
    RepeatOptions(KZSectionDevice);
}

TEST_F(RepeatedDialog, OfTheLimitsLeavesNothing)
{
    RepeatOptions(KZSectionLimits);
}

TEST_F(RepeatedDialog, OfTheUnitsLeavesNothing)
{
    RepeatOptions(KZSectionUnits);
}

TEST_F(RepeatedDialog, OfTheSelectionLeavesNothing)
{
    Repeat([&](auto& names) { m_project.Select(names); });
}

TEST_F(RepeatedDialog, AsAChildLeavesNothing)
{
    CWnd parent;
    ASSERT_TRUE(parent.CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPEDWINDOW, 0, 0, 800, 600, nullptr, nullptr));
    Repeat([&](auto&) {
        CDialog* const child = ZepProject::Callbacks().createChildOptions(&parent, &m_project.device);
        ASSERT_TRUE(child);
        child->DestroyWindow();
        delete child;
    });
    parent.DestroyWindow();
}

}  // namespace
