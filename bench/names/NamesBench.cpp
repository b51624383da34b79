// Parsing and building variable names, and marking those of a long host list, beside the least that any code would have
// to do and beside what the standard library has to offer.
#include <cstdio>
#include <cwchar>
#include <list>
#include <regex>
#include <string>
#include <vector>

#include "InitialMarks.h"
#include "KZDriverVariable.h"
#include "KZWideChar.h"
#include "NamesByHand.h"
#include "Report.h"
#include "SelectionTables.h"

namespace {

using namespace zep;
using kzbench::Keep;
using kzbench::Report;
using kzbench::RunInTurn;

std::vector<VariablePosition> PositionsOf(Family family)
{
    std::vector<VariablePosition> positions;
    const SelectionTable& table = TableOf(family);
    for (int row = 0; row < table.RowCount(); ++row)
        for (const Side side : Sides)
            for (int phase = 0; phase < PhaseCount; ++phase)
                if (const VariablePosition position{row, phase, side}; table.HasBox(position))
                    positions.push_back(position);
    return positions;
}

std::vector<std::wstring> NamesOf(std::initializer_list<Family> families)
{
    std::vector<std::wstring> names;
    for (const Family family : families)
        for (const VariablePosition& position : PositionsOf(family))
            AppendVariableName(names.emplace_back(), family, position);
    return names;
}

// Applies an operation to every harmonic: their names are the ones with the most in them.
template <class Operation>
auto OverAll(const auto& inputs, Operation operation)
{
    return [&inputs, operation] {
        int sum = 0;
        for (const auto& input : inputs)
            sum += operation(input);
        Keep(sum);
    };
}

void CompareParsing(Report& report)
{
    const auto names = NamesOf({Family::Harmonic});
    const int parts = static_cast<int>(names.size());
    const auto parse = OverAll(names, [](const std::wstring& name) {
        const auto position = ParseVariableName(Family::Harmonic, name);
        return position ? static_cast<int>(PositionIndex(*position)) : -1;
    });
    report.Add({"parse a name", "a loop written by hand", {}, parts},
               RunInTurn(parse, OverAll(names, kzbench::ParseByHand)));
    report.Add({"parse a name", "swscanf", {}, parts}, RunInTurn(parse, OverAll(names, kzbench::ParseByScanf)));
    report.Add({"parse a name", "std::wregex", {}, parts}, RunInTurn(parse, OverAll(names, kzbench::ParseByRegex)));
}

void CompareBuilding(Report& report)
{
    const auto positions = PositionsOf(Family::Harmonic);
    const int parts = static_cast<int>(positions.size());
    std::wstring name;
    const auto build = OverAll(positions, [&name](const VariablePosition& position) {
        name.clear();
        AppendVariableName(name, Family::Harmonic, position);
        Keep(name);
        return static_cast<int>(name.size());
    });
    wchar_t buffer[16];
    const auto with = [&buffer](auto print) {
        return [&buffer, print](const VariablePosition& position) {
            const int length = print(buffer, position);
            Keep(buffer);
            return length;
        };
    };
    report.Add({"build a name", "a loop written by hand", {}, parts},
               RunInTurn(build, OverAll(positions, with(kzbench::BuildByHand))));
    report.Add({"build a name", "swprintf", {}, parts},
               RunInTurn(build, OverAll(positions, with(kzbench::BuildByPrintf))));
}

// A project's list: this device's names among those of others.
std::list<KZBasicString> HostList(std::size_t count)
{
    const auto names = NamesOf({Family::General, Family::Power, Family::Harmonic});
    std::list<KZBasicString> list;
    for (std::size_t index = 0; index < count; ++index) {
        const wchar_t* device = index % 4 == 0 ? L"Rolling mill 1." : L"Rolling mill 2.";
        list.emplace_back(std::wstring(device) + names[index % names.size()]);
    }
    return list;
}

void CompareMarking(Report& report, std::size_t length, const char* shown, std::optional<double> limit = {})
{
    const auto list = HostList(length);
    const KZBasicString wanted = L"Rolling mill 1";
    report.Add({std::string("mark this device's names among ") + shown, "split and compare each", limit},
               RunInTurn([&] { Keep(InitialMarks(list, wanted)); },
                         [&] {
                             KZBasicString device;
                             KZBasicString variable;
                             std::size_t found = 0;
                             for (const KZBasicString& name : list) {
                                 SplitDriverVariable(name, device, variable, false);
                                 found += KZWideChar::Compare(device.c_str(), wanted.c_str()) == 0 ? 1U : 0U;
                             }
                             Keep(found);
                         }));
}

}  // namespace

int main()
{
    Report report;
    CompareParsing(report);
    CompareBuilding(report);
    CompareMarking(report, 1'000, "10³");
    CompareMarking(report, 10'000, "10⁴");
    CompareMarking(report, 100'000, "10⁵");
    CompareMarking(report, 1'000'000, "10⁶", 1.20);
    return report.ExitCode();
}
