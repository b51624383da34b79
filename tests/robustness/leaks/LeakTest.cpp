// Dialogs that are opened and closed again and again leave nothing behind.
#include <gtest/gtest.h>

#include <functional>

#include "EventLog.h"
#include "MemoryFaults.h"
#include "Repetition.h"
#include "ScriptedUser.h"
#include "ZepProject.h"

namespace {

class RepeatedDialog : public testing::Test {
protected:
    void Repeat(const std::function<void(std::list<KZBasicString>&)>& openAndClose, OptionalSection section = {})
    {
        m_repetition.Repeat([&] { return Round(openAndClose, section); });
    }
    void RepeatOptions(OptionalSection section = {})
    {
        Repeat([&](auto&) { m_project.Options(); }, section);
    }

    Repetition m_repetition;
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
