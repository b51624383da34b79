// Each line of the input is a variable name.
#include <list>

#include "Fuzzing.h"
#include "InitialMarks.h"
#include "KZDriverVariable.h"
#include "PlainNames.h"

namespace {

using namespace zep;
using fuzzing::Require;

constexpr std::array Families{Family::General, Family::Power, Family::Harmonic};

// There is one frequency: its name tells neither phase nor side.
VariablePosition AsNamed(Family family, const VariablePosition& position)
{
    const bool isFrequency = family == Family::General && position.row == FrequencyRow;
    return isFrequency ? VariablePosition{FrequencyRow, 0, Side::Net} : position;
}

void CheckBuilding(Family family, const VariablePosition& position)
{
    std::wstring name = L"before ";
    AppendVariableName(name, family, position);
    Require(name.starts_with(L"before "), "a name is appended to what is there");
    const auto again = ParseVariableName(family, std::wstring_view(name).substr(7));
    Require(again == AsNamed(family, position), "a name that was built stands for the variable it was built from");
}

void CheckName(std::wstring_view name)
{
    std::optional<Variable> variable;
    for (const Family family : Families) {
        const auto position = ParseVariableName(family, name);
        Require(position == fuzzing::ReadName(family, name), "both parsers read the same");
        if (!position)
            continue;
        Require(!variable, "no name belongs to two families");
        variable = Variable{family, *position};
        CheckBuilding(family, *position);
    }
    Require(ParseVariableName(name) == variable, "a name of any family is one of its own family");
}

void CheckMarks(const std::wstring& name)
{
    const InitialMarks marks({KZBasicString(L"DEV." + name), KZBasicString(L"OTHER." + name)}, L"DEV");
    KZBasicString device;
    KZBasicString variable;
    const bool own = SplitDriverVariable(L"DEV." + name, device, variable, false) && device == KZBasicString(L"DEV");
    const auto parsed = own ? ParseVariableName(variable.View()) : std::nullopt;
    for (const Family family : Families) {
        const bool marked = parsed && parsed->family == family;
        Require(marks.Of(family).count() == (marked ? 1U : 0U), "a name of the device marks one position");
        Require(!marked || marks.Of(family).test(PositionIndex(parsed->position)), "the mark is where the name says");
    }
}

void CheckSplitting(const std::wstring& name, bool atFirstDot)
{
    KZBasicString device;
    KZBasicString variable;
    const bool split = SplitDriverVariable(name, device, variable, atFirstDot);
    Require(split == (name.find(L'.') != std::wstring::npos), "what has a point is split");
    const std::wstring joined = split ? device.c_str() + (L"." + std::wstring(variable.View())) : variable.c_str();
    Require(joined == name, "the parts make the whole");
    const KZBasicString& whole = atFirstDot ? device : variable;
    Require(!split || whole.View().find(L'.') == std::wstring_view::npos, "it is split at the right point");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    for (fuzzing::Input input(data, size); !input.Rest().empty();) {
        const std::wstring name = fuzzing::Wide(input.TakeLine());
        CheckName(name);
        CheckMarks(name);
        CheckSplitting(name, false);
        CheckSplitting(name, true);
    }
    return 0;
}
