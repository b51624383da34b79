// Parsing variable names, and marking from a long host list, each beside the least that any code would have to do.
#include <benchmark/benchmark.h>

#include <list>
#include <string>
#include <vector>

#include "InitialMarks.h"
#include "KZDriverVariable.h"
#include "KZWideChar.h"
#include "PairedRuns.h"
#include "SelectionTables.h"
#include "VariableName.h"

namespace {

using namespace zep;

std::vector<std::wstring> OfferedNames()
{
    std::vector<std::wstring> names;
    for (const Family family : {Family::General, Family::Power, Family::Harmonic}) {
        const SelectionTable& table = TableOf(family);
        for (int row = 0; row < table.RowCount(); ++row) {
            for (const Side side : Sides) {
                for (int phase = 0; phase < PhaseCount; ++phase) {
                    if (table.HasBox({row, phase, side}))
                        AppendVariableName(names.emplace_back(), family, {row, phase, side});
                }
            }
        }
    }
    return names;
}

std::vector<std::wstring> HarmonicNames()
{
    std::vector<std::wstring> names;
    for (int row = 0; row < HarmonicRowCount; ++row) {
        for (const Side side : Sides) {
            for (int phase = 0; phase < PhaseCount; ++phase)
                AppendVariableName(names.emplace_back(), Family::Harmonic, {row, phase, side});
        }
    }
    return names;
}

// The floor: the harmonic rule as one hand-written pass over the characters. Returns the position's index or -1.
int ParseHarmonicByHand(const wchar_t* name) noexcept
{
    if (name[0] != L'A' || name[1] != L'R' || name[2] != L'M')
        return -1;
    unsigned order = static_cast<unsigned>(name[3] - L'0');
    if (order > 9)
        return -1;
    const wchar_t* next = name + 4;
    if (const unsigned digit = static_cast<unsigned>(*next - L'0'); digit <= 9) {
        order = 10 * order + digit;
        ++next;
    }
    const unsigned row = order == 0 ? 0 : (order - 1) / 2;
    if (row > 12 || next[0] != L'A')
        return -1;
    const unsigned phase = static_cast<unsigned>(next[1] - L'1');
    if (phase > 2 || (next[2] != L'N' && next[2] != L'L'))
        return -1;
    return static_cast<int>((2 * row + (next[2] == L'L' ? 1U : 0U)) * 3 + phase);
}

// Long enough to be timed, and the same for both.
constexpr int Rounds = 5'000;

template <class Parse>
int SumOver(const std::vector<std::wstring>& names, Parse parse)
{
    int sum = 0;
    for (int round = 0; round < Rounds; ++round) {
        for (const std::wstring& name : names)
            sum += parse(name);
        benchmark::DoNotOptimize(sum);
    }
    return sum;
}

bool CompareParsing()
{
    const auto names = HarmonicNames();
    return kzbench::Compare(
        "parse 390,000 names / hand-written loop", 101, 1.30, [] {},
        [&] {
            benchmark::DoNotOptimize(SumOver(names, [](const std::wstring& name) {
                const auto position = ParseVariableName(Family::Harmonic, name);
                return position ? static_cast<int>(PositionIndex(*position)) : -1;
            }));
        },
        [&] {
            benchmark::DoNotOptimize(
                SumOver(names, [](const std::wstring& name) { return ParseHarmonicByHand(name.c_str()); }));
        });
}

// A project's list: this device's names among those of others.
std::list<KZBasicString> HostList(std::size_t count)
{
    const auto names = OfferedNames();
    std::list<KZBasicString> list;
    for (std::size_t index = 0; index < count; ++index) {
        const wchar_t* device = index % 4 == 0 ? L"Rolling mill 1." : L"Rolling mill 2.";
        list.emplace_back(std::wstring(device) + names[index % names.size()]);
    }
    return list;
}

bool CompareMarking(std::size_t length)
{
    const auto list = HostList(length);
    const KZBasicString wanted = L"Rolling mill 1";
    const std::string figure = "mark from " + std::to_string(length) + " names / split and compare";
    return kzbench::Compare(
        figure.c_str(), 31, 1.50, [] {}, [&] { benchmark::DoNotOptimize(InitialMarks(list, wanted)); },
        [&] {
            KZBasicString device;
            KZBasicString variable;
            std::size_t found = 0;
            for (const KZBasicString& name : list) {
                SplitDriverVariable(name, device, variable, false);
                found += KZWideChar::Compare(device.c_str(), wanted.c_str()) == 0 ? 1U : 0U;
            }
            benchmark::DoNotOptimize(found);
        });
}

}  // namespace

int main()
{
    kzbench::PrintHeading();
    bool within = CompareParsing();
    for (const std::size_t length : {1'000U, 10'000U, 100'000U, 1'000'000U})
        within = CompareMarking(length) && within;
    return within ? 0 : 1;
}
