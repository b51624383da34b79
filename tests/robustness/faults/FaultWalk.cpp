#include "FaultWalk.h"

#include <algorithm>
#include <cstdio>

#include "Endurance.h"
#include "GuiResources.h"
#include "MemoryFaults.h"
#include "ScriptedUser.h"
#include "SelectionModel.h"

namespace {

constexpr std::size_t MostFindings = 10;
constexpr const char* Configuration =
    "<unitSetups><unitSetup><driverId>zep1</driverId><unit><name>RP</name><decimals>0</decimals></unit></unitSetup>"
    "</unitSetups>";

struct Outcome {
    Traces traces;
    bool answer;
    bool dirty;
    std::vector<std::wstring> messages;
    long allocations;
    long balance;
    std::size_t windows;
};

std::size_t CountWindows()
{
    std::size_t count = 0;
    const auto add = [](HWND, LPARAM parameter) -> BOOL {
        ++*reinterpret_cast<std::size_t*>(parameter);
        return TRUE;
    };
    ::EnumThreadWindows(::GetCurrentThreadId(), add, reinterpret_cast<LPARAM>(&count));
    return count;
}

class Walk {
public:
    Walk(const FaultyCall& call, EventLog& log) : m_call(call), m_log(log) {}

    std::vector<std::string> Run();

private:
    Outcome Call(long failing);
    long Pass(long last, long stride);
    void Judge(long failing, const Outcome& outcome);
    [[nodiscard]] bool IsTold(const Outcome& outcome) const;
    void Find(long failing, const std::string& what);
    [[nodiscard]] bool AreNamesInOrder(const Outcome& outcome) const;

    const FaultyCall& m_call;
    EventLog& m_log;
    ZepProject m_project;
    MemoryFaults m_memory{{L"KZUsrZEP.dll", L"KZHost.dll", L"KZMfc.dll"}};
    Traces m_before;
    Outcome m_undisturbed{};
    std::vector<std::string> m_findings;
};

Outcome Walk::Call(long failing)
{
    Plant::Configure(Configuration);
    m_project.plant.WriteDevice(ZepProject::Record);
    std::list<KZBasicString> names{L"DEV1.HZIN", L"DEV2.HZIN"};
    m_before = {Plant::Configuration(), m_project.plant.DeviceText(), Texts(names)};
    m_log.Add(m_call.name.c_str(), 0, failing);
    Outcome outcome{};
    const ScriptedUser user(m_call.section, m_call.confirms);
    AfxGetApp()->OnIdle(0);
    MemoryFaults::Arm(failing);
    outcome.answer = m_call.run(m_project, names);
    AfxGetApp()->OnIdle(0);
    MemoryFaults::Disarm();
    outcome.messages = user.Messages();
    outcome.dirty = Plant::IsDirty();
    outcome.allocations = MemoryFaults::Count();
    outcome.windows = CountWindows();
    outcome.traces = {Plant::Configuration(), m_project.plant.DeviceText(), Texts(names)};
    // What the documents and the list have grown by is no leak.
    MemoryFaults::Resume();
    Plant::Configure(Configuration);
    names.clear();
    MemoryFaults::Disarm();
    outcome.balance = MemoryFaults::Balance();
    return outcome;
}

std::vector<std::string> Walk::Run()
{
    // What is made once and kept, such as window classes and pictures, is made now; that of message boxes too.
    Call(1);
    for (int warmUp = 0; warmUp < 3; ++warmUp)
        m_undisturbed = Call(0);
    const long last = m_undisturbed.allocations;
    const long samples = std::max(1L, endurance::Rounds(m_call.shortSamples, last));
    const long stride = std::max(1L, last / samples);
    const long calls = Pass(last, stride);
    // Failures make things of their own that stay, such as the icons of their messages. What comes again is a leak.
    const auto first = kztest::CountGuiResources();
    Pass(last, std::max(stride, last / m_call.shortSamples));
    const auto second = kztest::CountGuiResources();
    // Menus are left out: Wine keeps the system menu of a window whose creation a hook refuses.
    if (second.windows != first.windows || second.gdiObjects != first.gdiObjects)
        Find(0, "left behind: " + testing::PrintToString(second) + " instead of " + testing::PrintToString(first));
    std::printf("%s: %ld calls, every %ld. of %ld allocations failing\n", m_call.name.c_str(), calls, stride, last);
    return m_findings;
}

// Returns the number of calls. The last is one beyond, which nothing disturbs.
long Walk::Pass(long last, long stride)
{
    long calls = 0;
    for (long failing = 1; failing <= last + stride && m_findings.size() < MostFindings; failing += stride, ++calls)
        Judge(failing, Call(failing));
    return calls;
}

bool Walk::AreNamesInOrder(const Outcome& outcome) const
{
    const std::vector<std::wstring>& names = outcome.traces.names;
    if (names == m_before.names || !outcome.answer)
        return names == m_before.names;
    // A page that could not be made is missing, and the user takes from the next what he would have taken from it.
    return SelectionModel(L"DEV1", {}, 0).Offers(names);
}

// Whether the user read something that an undisturbed call does not say.
bool Walk::IsTold(const Outcome& outcome) const
{
    if (m_call.answerTells && !outcome.answer)
        return true;
    const auto& usual = m_undisturbed.messages;
    return std::any_of(outcome.messages.begin(), outcome.messages.end(), [&](const std::wstring& message) {
        return std::find(usual.begin(), usual.end(), message) == usual.end();
    });
}

void Walk::Judge(long failing, const Outcome& outcome)
{
    const Traces& traces = outcome.traces;
    if (traces.configuration != m_before.configuration && traces.configuration != m_undisturbed.traces.configuration)
        Find(failing, "the configuration is half changed: " + traces.configuration);
    if (traces.device != m_before.device && traces.device != m_undisturbed.traces.device)
        Find(failing, "the device's document is half changed: " + traces.device);
    if (!AreNamesInOrder(outcome))
        Find(failing, "the host's list is neither the old one nor the new one");
    const bool isAsUndisturbed = traces == m_undisturbed.traces && outcome.answer == m_undisturbed.answer;
    if (!isAsUndisturbed && traces.names == m_before.names && !IsTold(outcome))
        Find(failing, "it failed and nobody was told");
    if (outcome.balance != m_undisturbed.balance)
        Find(failing, std::to_string(outcome.balance - m_undisturbed.balance) + " blocks are left");
    if (outcome.windows != m_undisturbed.windows)
        Find(failing, "windows are left");
}

void Walk::Find(long failing, const std::string& what)
{
    if (m_findings.size() < MostFindings)
        m_findings.push_back(m_call.name + ", allocation " + std::to_string(failing) + ": " + what);
}

}  // namespace

std::vector<std::string> WalkFaults(const FaultyCall& call, EventLog& log)
{
    return Walk(call, log).Run();
}
