// Every field in the dialogs of the real module: what the commands set, the dialogs show, and what is entered there,
// the commands print.
#include <sstream>

#include "FieldControls.h"
#include "KZDlgOptions.h"
#include "KZUtf8.h"
#include "ProjectWindowFixture.h"
#include "device/DeviceControls.h"
#include "fields/Field.h"
#include "limits/LimitsControls.h"
#include "options/UnitsControls.h"

namespace {

using editor_tests::EnterInto;
using editor_tests::FieldControl;
using editor_tests::FieldControls;
using editor_tests::LimitsPage;
using editor_tests::Press;
using editor_tests::ShownIn;
using editor_tests::WaitUntil;

using Values = std::map<std::string, std::string>;  // by key

constexpr std::size_t FieldCount = 106;
constexpr std::size_t WritableCount = 100;

// What the document holds of a value that can only be read, nothing when it lacks it; what the dialog shows; what the
// commands print.
struct Stored {
    const char* key;
    const char* text;
    const char* shown;
    const char* value;
};
using StoredValues = std::array<Stored, 6>;
constexpr StoredValues Identities[] = {
    {{{"device.version", "2.4.1", "2.4.1", "2.4.1"},
      {"device.serialNum", "S 17 ñ", "S 17 ñ", "S 17 ñ"},
      {"device.gamma", nullptr, "?", "?"},
      {"device.transRatio", "1000", "1000", "1000"},
      {"device.algorithm", "0", "standard", "standard"},
      {"device.status", "0", "stopped", "stopped"}}},
    {{{"device.version", nullptr, "?", "?"},
      {"device.serialNum", "", "", ""},
      {"device.gamma", "ZEP 300 A", "ZEP 300 A", "ZEP 300 A"},
      {"device.transRatio", "0200", "0200", "200"},
      {"device.algorithm", "1", "selective", "selective"},
      {"device.status", "1", "running", "running"}}},
    {{{"device.version", "", "", ""},
      {"device.serialNum", nullptr, "?", "?"},
      {"device.gamma", "007", "007", "007"},
      {"device.transRatio", "12x", "12x", "12"},
      {"device.algorithm", "2", "fast", "fast"},
      {"device.status", "2", "", "2"}}},
    {{{"device.version", "3", "3", "3"},
      {"device.serialNum", "?", "?", "?"},
      {"device.gamma", "60 A", "60 A", "60 A"},
      {"device.transRatio", "-5", "-5", "-5"},
      {"device.algorithm", "3", "", "3"},
      {"device.status", nullptr, "", ""}}},
};
constexpr int Rounds = 4;  // as many as it takes to have each box, radio button and item in both states
static_assert(std::size(Identities) == Rounds);

// The members whose place, counted from one, has the bit of this round: no two boxes are alike in all rounds.
std::string SetOf(const plant::Field& field, int round)
{
    std::string members;
    for (std::size_t i = 0; i < field.choices.size(); ++i)
        if ((i + 1) >> round & 1)
            members.append(members.empty() ? "" : "+").append(field.choices[i].name);
    return members.empty() ? "none" : members;
}

std::string WholeNumberOf(const plant::Field& field, int round)
{
    int lowest = 0;
    int highest = 0;
    EXPECT_EQ(std::sscanf(field.values.c_str(), "%d..%d", &lowest, &highest), 2) << field.key;
    return std::to_string(lowest + (53 * round + static_cast<int>(field.row)) % (highest - lowest + 1));
}

// No two limits have the same value, and each variable keeps its rules.
std::string LimitOf(const plant::Field& field, int round)
{
    constexpr const char* powerFactor[Rounds][5] = {{"1", "0.95", "-0.98", "0.9", "0.8"},
                                                    {"0", "0.96", "0.97", "0.85", "0.75"},
                                                    {"1", "-0.99", "-0.9", "0.93", "0.83"},
                                                    {"0", "0.94", "1", "0.91", "0.81"}};
    constexpr int firstOf[] = {0, 0, 30};
    constexpr const char* decimals[] = {".5", ".25", ".125"};
    if (field.part == 0)
        return powerFactor[round][field.item];
    return std::to_string(firstOf[field.item] + 10 * round + static_cast<int>(field.part)) + decimals[field.item];
}

std::string ValueOf(const plant::Field& field, int round)
{
    switch (field.kind) {
    case plant::FieldKind::Set:
        return SetOf(field, round);
    case plant::FieldKind::Choice:
        return field.choices[(field.part + static_cast<std::size_t>(round)) % field.choices.size()].name;
    case plant::FieldKind::WholeNumber:
        return WholeNumberOf(field, round);
    default:
        return LimitOf(field, round);
    }
}

// A value for each field that can be set.
Values ValuesOf(int round)
{
    Values values;
    for (const plant::Field& field : *plant::FieldsOfType(L"ZEP"))
        if (field.isWritable)
            values[field.key] = ValueOf(field, round);
    return values;
}

class FieldDialogs : public editor_tests::ProjectWindowTest {
protected:
    FieldDialogs() { m_program.AddRealModule(); }

    void Store(const StoredValues& identity) const
    {
        std::string children;
        for (const Stored& stored : identity) {
            const std::string name = std::string(stored.key).substr(std::string("device.").size());
            if (stored.text)
                children.append("<" + name + ">").append(stored.text).append("</" + name + ">");
        }
        m_folder.Write("plant/devices/zep-1.xml", "<device><information>" + children + "</information></device>");
    }

    void Set(const Values& values)
    {
        std::vector<std::string> arguments{"set", "zep-1"};
        for (const auto& [key, value] : values)
            arguments.push_back(key + "=" + value);
        EXPECT_EQ(Start(arguments).Wait(), 0) << m_editor->Errors();
    }

    Values Get()
    {
        EXPECT_EQ(Start({"get", "zep-1"}).Wait(), 0) << m_editor->Errors();
        Values values;
        std::istringstream lines(m_editor->Output());
        for (std::string device, key, value;
             std::getline(lines, device, '\t') && std::getline(lines, key, '\t') && std::getline(lines, value);)
            values[key] = value;
        return values;
    }

    [[nodiscard]] HWND WindowWith(int control) const
    {
        const HWND window = m_editor->WindowWith(control);
        if (!window)
            throw std::runtime_error("no window has the control " + std::to_string(control));
        return window;
    }

    // Opens a section of the options, works its dialog and presses OK.
    template <typename Work>
    void InSection(KZOptionsSection section, int control, Work work)
    {
        Press(WindowWith(KZSectionButtonBase + section), KZSectionButtonBase + section);
        const HWND dialog = WindowWith(control);
        work(dialog);
        Press(dialog, IDOK);
        if (section == KZSectionDevice)
            AnswerBox(IDYES);
        EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(dialog); })) << control;
    }

    // Looks at the controls, and enters what is given for their fields.
    void Walk(HWND dialog, const FieldControls& controls, const Values& shown, const Values& entered)
    {
        for (const auto& [key, control] : controls) {
            EXPECT_EQ(ShownIn(dialog, control), shown.at(key)) << key;
            m_walked.insert(key);
            if (const auto value = entered.find(key); value != entered.end())
                EnterInto(dialog, control, value->second);
        }
    }

    // The page of the limits dialog that is shown and is not the earlier one; waits for it.
    static HWND ShownPage(HWND dialog, int control, HWND earlier)
    {
        HWND page = nullptr;
        EXPECT_TRUE(WaitUntil([&] {
            page = nullptr;
            do
                page = ::FindWindowExW(dialog, page, L"#32770", nullptr);
            while (page && (page == earlier || !::IsWindowVisible(page) || !::GetDlgItem(page, control)));
            return page != nullptr;
        })) << control;
        return page;
    }

    void WalkLimits(HWND dialog, const Values& shown, const Values& entered)
    {
        HWND page = nullptr;
        for (const LimitsPage kind : {LimitsPage::Power, LimitsPage::Net, LimitsPage::Load}) {
            if (page)
                ::SendMessageW(::GetDlgItem(dialog, IDC_LIMITS_TAB), WM_KEYDOWN, VK_RIGHT, 0);
            page = ShownPage(dialog, kind == LimitsPage::Power ? IDC_PF_NOMINAL : IDC_HARMONIC_NOMINAL, page);
            Walk(page, LimitFieldControls(kind), shown, entered);
        }
    }

    void WalkAllDialogs(const Values& shown, const Values& entered)
    {
        Start({"options", "GRÚA.1"});
        InSection(KZSectionDevice, IDC_CURRENT,
                  [&](HWND dialog) { Walk(dialog, editor_tests::DeviceFieldControls(), shown, entered); });
        InSection(KZSectionUnits, IDC_APPARENT_KILO,
                  [&](HWND dialog) { Walk(dialog, editor_tests::UnitFieldControls(), shown, entered); });
        InSection(KZSectionLimits, IDC_LIMITS_TAB, [&](HWND dialog) { WalkLimits(dialog, shown, entered); });
        Press(WindowWith(KZSectionButtonBase), IDOK);
        EXPECT_EQ(m_editor->Wait(), 0) << m_editor->Errors();
    }

    std::set<std::string> m_walked;  // keys
};

}  // namespace

TEST_F(FieldDialogs, ShowWhatTheCommandsSetAndStoreWhatTheyPrint)
{
    for (int round = 0; round < Rounds; ++round) {
        SCOPED_TRACE(round);
        const Values set = ValuesOf(round);
        const Values entered = ValuesOf((round + 1) % Rounds);
        ASSERT_EQ(set.size(), WritableCount);
        Values shown = set;
        Values printed = entered;
        for (const Stored& stored : Identities[round]) {
            shown[stored.key] = stored.shown;
            printed[stored.key] = stored.value;
        }
        Store(Identities[round]);
        Set(set);
        WalkAllDialogs(shown, entered);
        Values got = Get();
        EXPECT_EQ(got.size(), FieldCount);
        for (const auto& [key, value] : printed)
            EXPECT_EQ(got[key], value) << key;
    }
    EXPECT_EQ(m_walked.size(), FieldCount);
}
