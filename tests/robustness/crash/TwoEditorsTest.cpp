// Two editors work on one project, and another program writes into it. Beside them a model knows what each of them has
// seen: what an editor saves may replace content that it has not seen only after it has asked about that document.
#include <gtest/gtest.h>

#include <memory>
#include <optional>

#include "Endurance.h"
#include "Random.h"
#include "TemporaryFolder.h"
#include "WindowlessEditor.h"

namespace {

using crash::DocumentNames;
using crash::Order;
using crash::Reply;
using crash::Values;
using crash::WindowlessEditor;

constexpr std::size_t Main = 0;
constexpr std::size_t Count = DocumentNames.size();
using Seen = std::array<std::optional<long>, Count>;
using Wanted = std::array<std::optional<long>, Count>;

struct Editor {
    std::unique_ptr<WindowlessEditor> process;
    Seen seen{};
    long main = 0;
    bool dirty = false;
};

class TwoEditors : public testing::Test {
protected:
    void Begin(std::uint64_t seed)
    {
        m_random = Random(seed);
        for (std::size_t document = 0; document + 1 < Count; ++document)
            WriteAsStranger(document);
        for (Editor& editor : m_editors)
            Start(editor);
    }

    void Act(Editor& editor, bool mayInterfere)
    {
        const std::size_t device = 1 + m_random.Below(Count - 1);
        switch (m_random.Below(20)) {
        case 0:
        case 1:
        case 2:
        case 3:
            return ChangeMain(editor);
        case 4:
        case 5:
        case 6:
            return ReadDevice(editor, device);
        case 7:
        case 8:
        case 9:
        case 10: {
            Wanted wanted{};
            wanted[device] = ++m_lastValue;
            return Write(editor, wanted, {Order::Kind::WriteDevice, device, m_lastValue}, mayInterfere);
        }
        case 11:
        case 12:
        case 13:
        case 14: {
            Wanted wanted{};
            if (editor.dirty)
                wanted[Main] = editor.main;
            return Write(editor, wanted, {Order::Kind::Save}, mayInterfere);
        }
        case 15:
            return Restore(editor);
        case 16:
            return FindForeign(editor, m_random.OneIn(2));
        case 17:
            return KillAndReopen(editor);
        case 18:
            return WriteAsStranger(m_random.Below(Count));
        default:
            RemoveAsStranger(device);
        }
    }

    void CheckFiles() const
    {
        for (std::size_t document = 0; document < Count; ++document)
            EXPECT_EQ(crash::ValueIn(m_folder.Path(), document), m_disk[document]) << DocumentNames[document];
    }

    Random m_random{0};
    std::array<Editor, 2> m_editors;
    long m_questions = 0;
    long m_kills = 0;
    long m_saves = 0;

private:
    void WriteAsStranger(std::size_t document)
    {
        m_disk[document] = ++m_lastValue;
        m_folder.Write(DocumentNames[document], crash::TextOf(document, m_lastValue));
    }
    void RemoveAsStranger(std::size_t document)
    {
        m_disk[document] = 0;
        std::filesystem::remove(m_folder.Path() / DocumentNames[document]);
    }

    static void CheckEditor(const Editor& editor, const Reply& reply, Reply::Kind kind)
    {
        EXPECT_EQ(static_cast<int>(reply.kind), static_cast<int>(kind));
        EXPECT_EQ(reply.dirty, editor.dirty);
        EXPECT_EQ(reply.main, editor.main);
    }

    // Opens the project; the content of what it reads later is not known to it.
    void Start(Editor& editor)
    {
        editor = {std::make_unique<WindowlessEditor>(m_folder.Path()), {}, m_disk[Main], false};
        editor.seen[Main] = m_disk[Main];
        CheckEditor(editor, editor.process->Opening(), Reply::Kind::Done);
    }

    void ChangeMain(Editor& editor)
    {
        editor.main = ++m_lastValue;
        editor.dirty = true;
        CheckEditor(editor, editor.process->Do({Order::Kind::ChangeMain, Main, m_lastValue}), Reply::Kind::Done);
    }

    void ReadDevice(Editor& editor, std::size_t device)
    {
        const Reply reply = editor.process->Do({Order::Kind::ReadDevice, device});
        CheckEditor(editor, reply, Reply::Kind::Done);
        EXPECT_EQ(reply.read, m_disk[device]);
        editor.seen[device] = m_disk[device];
    }

    // What the editor must ask about before it writes.
    unsigned Foreign(const Editor& editor, const Wanted& wanted, const Seen& agreed) const
    {
        unsigned foreign = 0;
        for (std::size_t document = 0; document < Count; ++document) {
            const long present = m_disk[document];
            const bool isKnown = editor.seen[document].value_or(0) == present || agreed[document] == present;
            if (wanted[document] && wanted[document] != present && !isKnown)
                foreign |= 1U << document;
        }
        return foreign;
    }

    void Write(Editor& editor, Wanted wanted, const Order& order, bool mayInterfere)
    {
        Seen agreed{};
        Seen taken{};
        Reply reply = editor.process->Do(order);
        while (const unsigned foreign = Foreign(editor, wanted, agreed)) {
            ++m_questions;
            CheckEditor(editor, reply, Reply::Kind::Asks);
            ASSERT_EQ(reply.documents, foreign);
            const Values asked = m_disk;
            if (mayInterfere && m_random.OneIn(3))
                Act(m_editors[&editor == m_editors.data() ? 1 : 0], false);
            if (HasFailure())
                return;
            const std::size_t answer = m_random.Below(3);
            for (std::size_t document = 0; document < Count; ++document) {
                if (answer == 0 && (foreign >> document & 1))
                    agreed[document] = asked[document];
                if (answer == 1 && (foreign >> document & 1 || taken[document])) {
                    taken[document] = m_disk[document];
                    wanted[document].reset();
                }
            }
            reply = editor.process->Do({answer == 0   ? Order::Kind::Overwrite
                                        : answer == 1 ? Order::Kind::TakeTheirs
                                                      : Order::Kind::Cancel});
            if (answer == 2)
                return CheckEditor(editor, reply, Reply::Kind::Cancelled);
        }
        Replace(editor, wanted);
        for (std::size_t document = 0; document < Count; ++document) {
            if (taken[document])
                Take(editor, document, *taken[document]);
        }
        const bool tookTheirs = taken != Seen{};
        CheckEditor(editor, reply, tookTheirs ? Reply::Kind::TookTheirs : Reply::Kind::Done);
    }

    void Replace(Editor& editor, const Wanted& wanted)
    {
        Values now = m_disk;
        for (std::size_t document = 0; document < Count; ++document) {
            if (!wanted[document])
                continue;
            now[document] = *wanted[document];
            editor.seen[document] = now[document];
            editor.dirty = editor.dirty && document != Main;
        }
        Keep(now);
    }
    void Keep(const Values& now)
    {
        if (now == m_disk)
            return;
        ++m_saves;
        m_history.push_back(m_disk);
        m_disk = now;
    }
    static void Take(Editor& editor, std::size_t document, long value)
    {
        editor.seen[document] = value;
        if (document == Main) {
            editor.main = value;
            editor.dirty = false;
        }
    }

    // Not asked about: what it replaces is in the history.
    void Restore(Editor& editor)
    {
        if (m_history.empty())
            return;
        const std::size_t back = m_random.Below(std::min<std::size_t>(m_history.size(), 50));
        const std::size_t number = m_history.size() - back;
        const Values wanted = m_history[number - 1];
        const Reply reply = editor.process->Do({Order::Kind::Restore, Main, static_cast<long>(number)});
        for (std::size_t document = 0; document < Count; ++document) {
            if (wanted[document] != m_disk[document])
                editor.seen[document] = wanted[document];
        }
        Take(editor, Main, wanted[Main]);
        Keep(wanted);
        CheckEditor(editor, reply, Reply::Kind::Done);
    }

    void FindForeign(Editor& editor, bool takes)
    {
        const Reply reply = editor.process->Do({takes ? Order::Kind::TakeForeign : Order::Kind::FindForeign});
        unsigned foreign = 0;
        for (std::size_t document = 0; document < Count; ++document) {
            if (!editor.seen[document] || editor.seen[document] == m_disk[document])
                continue;
            foreign |= 1U << document;
            if (takes)
                Take(editor, document, m_disk[document]);
        }
        EXPECT_EQ(reply.documents, foreign);
        CheckEditor(editor, reply, Reply::Kind::Done);
    }

    void KillAndReopen(Editor& editor)
    {
        ++m_kills;
        editor.process.reset();
        const Editor before{nullptr, editor.seen, editor.main, editor.dirty};
        Start(editor);
        const Reply& opening = editor.process->Opening();
        ASSERT_EQ(opening.hasFound, before.dirty);
        if (!before.dirty)
            return;
        EXPECT_EQ(opening.found, before.main);
        EXPECT_EQ(opening.documents, before.seen[Main] == m_disk[Main] ? 0U : 1U);
        const bool recovers = !m_random.OneIn(4);
        if (recovers) {
            editor.main = before.main;
            editor.dirty = true;
        }
        CheckEditor(editor, editor.process->Do({recovers ? Order::Kind::Recover : Order::Kind::Decline}),
                    Reply::Kind::Done);
    }

    kztest::TemporaryFolder m_folder;
    Values m_disk{};
    std::vector<Values> m_history;  // the state before each save
    long m_lastValue = 0;
};

TEST_F(TwoEditors, LoseNoUpdateWithoutAQuestion)
{
    const long steps = endurance::Rounds(400, 20'000);
    const std::uint64_t seed = endurance::Seed();
    Begin(seed);
    for (long step = 0; step < steps; ++step) {
        Act(m_editors[m_random.Below(2)], true);
        CheckFiles();
        ASSERT_FALSE(HasFailure()) << "step " << step << ", seed " << seed;
    }
    EXPECT_GT(m_questions, 0);
    std::printf("%ld steps, %ld saves, %ld questions, %ld kills; seed %llu\n", steps, m_saves, m_questions, m_kills,
                static_cast<unsigned long long>(seed));
}

}  // namespace
