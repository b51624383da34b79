// A random user of the options: the hub and the device, units and limits dialogs behind it.
#include <gtest/gtest.h>

#include <algorithm>

#include "DialogUser.h"
#include "Endurance.h"
#include "ProjectRules.h"
#include "StepLoop.h"
#include "ZepProject.h"

namespace {

constexpr std::size_t Closing = 40;

// One visit to the hub of at most so many actions.
void Visit(ZepProject& project, DialogUser& user, EventLog& log, long actions)
{
    StepLoop* running = nullptr;
    StepLoop loop([&] {
        const HWND top = TopDialogOfThread();
        if (!top)
            return;
        if (IsMessageBox(top))
            user.Answer(top);
        else if (actions-- > 0)
            user.Act(top);
        else
            ::PostMessageW(top, WM_COMMAND, IDCANCEL, 0);
        running->Continue();
    });
    running = &loop;
    log.Add("open the options");
    project.Options();
}

TEST(RandomUser, LeavesDocumentsInOrderWhateverHeDoesInTheOptions)
{
    const long events = endurance::Rounds(2500, 500'000);
    const std::uint64_t seed = endurance::Seed();
    ZepProject project;
    Random random(seed);
    EventLog log(seed);
    DialogUser user(random, log, Closing);
    long visits = 0;
    long changes = 0;
    std::string before = Plant::Configuration() + project.plant.DeviceText();
    while (log.Count() < events) {
        Visit(project, user, log, std::min(400L, events - log.Count()));
        const std::string configuration = Plant::Configuration();
        const std::string device = project.plant.DeviceText();
        ASSERT_EQ(BrokenRuleOfConfiguration(configuration), "") << configuration << log.Describe();
        ASSERT_EQ(BrokenRuleOfDevice(device), "") << device << log.Describe();
        AfxGetApp()->OnIdle(0);
        changes += std::exchange(before, configuration + device) != configuration + device ? 1 : 0;
        ++visits;
    }
    // A user who never brings a change to its end would prove little.
    EXPECT_GT(changes, 0);
    std::printf("%ld events in %ld visits, %ld with changes; the slowest took %ld ms; seed %llu\n", log.Count(), visits,
                changes, log.SlowestMilliseconds(), static_cast<unsigned long long>(seed));
}

}  // namespace
