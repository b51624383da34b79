// Random saves, restores, foreign changes, ended processes and limits, beside a model that remembers every state.
#include <gtest/gtest.h>

#include <algorithm>

#include "FaultyDisk.h"
#include "HistoryProject.h"
#include "Random.h"
#include "RefusalOf.h"

namespace {

using kztest::FaultyDisk;
using kztest::RefusalOf;
using kztest::State;
using plant::Change;

class HistoryUser {
public:
    explicit HistoryUser(std::uint64_t seed) : m_random(seed)
    {
        for (const char* name : {"main.xml", "devices/a.xml", "devices/b.xml", "devices/c.xml"})
            m_project.Write(name, Text());
    }

    void Step()
    {
        switch (m_random.Below(8)) {
        case 0:
        case 1:
        case 2:
            return Save(AnyChange());
        case 3:
            return ActAsAnotherProgram();
        case 4:
            return Restore();
        case 5:
            return DieBeforeTheSave();
        case 6:
            return DieWhilePruning();
        default:
            return LetTimePass();
        }
    }

    // Every entry that there should be is there and brings back what was.
    void Check()
    {
        ASSERT_EQ(Entries().size(), m_states.size());
        for (const auto& [number, state] : m_states)
            ASSERT_EQ(m_project.Before(number), state) << "entry " << number;
    }

private:
    static constexpr plant::HistoryLimits Limits{5, 4000};

    // Few contents, some of the same size, so that they come back.
    std::string Text()
    {
        const std::size_t kind = m_random.Below(12);
        return std::string(kind < 10 ? 5 : kind * 30, static_cast<char>('a' + kind % 6));
    }
    std::string Name()
    {
        static constexpr const char* Names[] = {"main.xml", "devices/a.xml", "devices/b.xml", "devices/c.xml",
                                                "devices/d.xml"};
        return m_random.Pick(Names);
    }
    std::vector<plant::HistoryEntry> Entries() const { return m_project.History().Entries(); }

    // Only what differs from the files, as the plant finds out.
    Change AnyChange()
    {
        Change change;
        const State live = m_project.Now();
        for (int document = m_random.Between(1, 3); document > 0; --document) {
            const std::string name = Name();
            const auto old = live.find(name);
            if (m_random.OneIn(4) && old != live.end())
                change[name] = std::nullopt;
            else if (const std::string text = Text(); old == live.end() || text != old->second)
                change[name] = text;
        }
        return change;
    }

    void Save(const Change& change)
    {
        if (change.empty())
            return;
        const State before = m_project.Now();
        const int number = m_project.Save(change);
        ASSERT_EQ(number, ++m_last);
        m_states.emplace(number, before);
        ForgetWhatThereIsNoMore();
        ASSERT_LE(m_states.size(), Limits.entries);
    }

    // The oldest may be gone, in their order, and never the newest.
    void ForgetWhatThereIsNoMore()
    {
        const auto entries = Entries();
        ASSERT_FALSE(entries.empty());
        ASSERT_EQ(entries.back().number, m_last);
        m_states.erase(m_states.begin(), m_states.lower_bound(entries.front().number));
        std::uint64_t bytes = 0;
        for (const auto& [name, content] : m_project.Tree("history"))
            bytes += content.size();
        ASSERT_TRUE(bytes <= Limits.bytes || entries.size() == 1) << bytes;
    }

    void ActAsAnotherProgram()
    {
        const std::string name = Name();
        if (m_random.OneIn(4))
            m_project.Remove(name);
        else
            m_project.Write(name, Text());
    }

    void Restore()
    {
        if (m_states.empty())
            return;
        const auto [number, state] = m_random.Pick(m_states);
        const Change change = m_project.History().Restoring(number);
        Save(change);
        ASSERT_EQ(m_project.Now(), state);
    }

    void DieBeforeTheSave()
    {
        const Change change = AnyChange();
        const State before = m_project.Now();
        FaultyDisk disk(plant::RealDisk());
        disk.DieAt(m_random.Between(1, 60));
        plant::History history = m_project.History(disk);
        static_cast<void>(RefusalOf([&] { return history.Keep("window", change); }));
        ASSERT_EQ(m_project.Now(), before);
    }

    void DieWhilePruning()
    {
        if (m_states.empty())
            return;
        FaultyDisk disk(plant::RealDisk());
        disk.DieAt(m_random.Between(1, 60));
        plant::HistoryLimits limits = Limits;
        limits.entries = m_random.Below(5);
        plant::History history(disk, m_project.Path(), limits);
        static_cast<void>(RefusalOf([&] { return history.Prune(), 0; }));
        const auto entries = Entries();
        ASSERT_EQ(entries.back().number, m_last);
        m_states.erase(m_states.begin(), m_states.lower_bound(entries.front().number));
    }

    void LetTimePass()
    {
        for (const auto& [name, bytes] : m_project.Now()) {
            if (m_random.OneIn(2))
                m_project.Age(name, std::chrono::hours(1));
        }
    }

    Random m_random;
    kztest::HistoryProject m_project{Limits};
    std::map<int, State> m_states;
    int m_last = 0;
};

TEST(HistoryModel, RemembersEveryStateThatTheHistoryDoes)
{
    for (std::uint64_t seed = 1; seed <= 2; ++seed) {
        HistoryUser user(seed);
        for (int step = 0; step < 120; ++step) {
            user.Step();
            user.Check();
            ASSERT_FALSE(testing::Test::HasFatalFailure()) << "seed " << seed << ", step " << step;
        }
    }
}

}  // namespace
