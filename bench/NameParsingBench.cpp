// Parsing variable names, and marking from a long host list, each beside the least that any code would have to do.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <list>
#include <string>
#include <vector>

#include "InitialMarks.h"
#include "KZDriverVariable.h"
#include "KZWideChar.h"
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

void ParseHarmonic_Floor(benchmark::State& state)
{
    const auto names = HarmonicNames();
    for (auto _ : state) {
        int sum = 0;
        for (const std::wstring& name : names)
            sum += ParseHarmonicByHand(name.c_str());
        benchmark::DoNotOptimize(sum);
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(names.size()));
}
BENCHMARK(ParseHarmonic_Floor);

void ParseHarmonic(benchmark::State& state)
{
    const auto names = HarmonicNames();
    for (auto _ : state) {
        int sum = 0;
        for (const std::wstring& name : names) {
            const auto position = ParseVariableName(Family::Harmonic, name);
            sum += position ? static_cast<int>(PositionIndex(*position)) : -1;
        }
        benchmark::DoNotOptimize(sum);
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(names.size()));
}
BENCHMARK(ParseHarmonic);

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

constexpr std::int64_t ListLength = 1'000'000;

void MarkFromHostList_Floor(benchmark::State& state)
{
    const auto list = HostList(static_cast<std::size_t>(state.range(0)));
    const KZBasicString wanted = L"Rolling mill 1";
    for (auto _ : state) {
        KZBasicString device;
        KZBasicString variable;
        std::size_t found = 0;
        for (const KZBasicString& name : list) {
            SplitDriverVariable(name, device, variable, false);
            found += KZWideChar::Compare(device.c_str(), wanted.c_str()) == 0 ? 1U : 0U;
        }
        benchmark::DoNotOptimize(found);
    }
}
BENCHMARK(MarkFromHostList_Floor)->Arg(ListLength)->Unit(benchmark::kMillisecond);

void MarkFromHostList(benchmark::State& state)
{
    const auto list = HostList(static_cast<std::size_t>(state.range(0)));
    const KZBasicString device = L"Rolling mill 1";
    for (auto _ : state)
        benchmark::DoNotOptimize(InitialMarks(list, device));
}
BENCHMARK(MarkFromHostList)->Arg(ListLength)->Unit(benchmark::kMillisecond);

}  // namespace
