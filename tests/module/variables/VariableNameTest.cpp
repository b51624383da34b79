#include "VariableName.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "SelectionTables.h"

namespace zep {

// Prints a position in a failure message. In the class's own namespace, where GoogleTest looks for it.
void PrintTo(const VariablePosition& position, std::ostream* out)
{
    *out << "row " << position.row << ", phase " << position.phase << (position.side == Side::Net ? ", net" : ", load");
}

namespace {

std::wstring NameOf(Family family, const VariablePosition& position)
{
    std::wstring name;
    AppendVariableName(name, family, position);
    return name;
}

constexpr std::array Families{Family::General, Family::Power, Family::Harmonic};

template <class Visitor>
void ForEachVariable(Visitor visit)
{
    for (const Family family : Families) {
        const SelectionTable& table = TableOf(family);
        for (int row = 0; row < table.RowCount(); ++row) {
            for (const Side side : Sides) {
                for (int phase = 0; phase < PhaseCount; ++phase) {
                    if (table.HasBox({row, phase, side}))
                        visit(family, VariablePosition{row, phase, side});
                }
            }
        }
    }
}

std::wstring AllNames(Family wanted)
{
    std::wstring names;
    ForEachVariable([&](Family family, const VariablePosition& position) {
        if (family == wanted)
            names += NameOf(family, position) + L' ';
    });
    return names;
}

TEST(VariableName, NamesEachWorkedExample)
{
    EXPECT_EQ(NameOf(Family::Harmonic, {0, 0, Side::Net}), L"ARM1A1N");
    EXPECT_EQ(NameOf(Family::Harmonic, {12, 2, Side::Load}), L"ARM25A3L");
    EXPECT_EQ(NameOf(Family::Harmonic, {4, 1, Side::Net}), L"ARM9A2N");
    EXPECT_EQ(NameOf(Family::Harmonic, {5, 1, Side::Net}), L"ARM11A2N");
    EXPECT_EQ(NameOf(Family::General, {0, 1, Side::Net}), L"VI2N");
    EXPECT_EQ(NameOf(Family::General, {1, 0, Side::Net}), L"HZIN");
    EXPECT_EQ(NameOf(Family::General, {3, 2, Side::Load}), L"DAI3L");
    EXPECT_EQ(NameOf(Family::Power, {3, 0, Side::Load}), L"PFI1L");
}

TEST(VariableName, GeneralPageOffersSixteenNamesInRowSidePhaseOrder)
{
    EXPECT_EQ(AllNames(Family::General), L"VI1N VI2N VI3N HZIN AI1N AI2N AI3N AI1L AI2L AI3L "
                                         L"DAI1N DAI2N DAI3N DAI1L DAI2L DAI3L ");
}

TEST(VariableName, PowerPageOffersTwentyFourNames)
{
    EXPECT_EQ(AllNames(Family::Power), L"API1N API2N API3N API1L API2L API3L RPI1N RPI2N RPI3N RPI1L RPI2L RPI3L "
                                       L"VAI1N VAI2N VAI3N VAI1L VAI2L VAI3L PFI1N PFI2N PFI3N PFI1L PFI2L PFI3L ");
}

TEST(VariableName, HarmonicPageOffersEveryOddOrderPhaseAndSide)
{
    std::wstring expected;
    for (int order = 1; order <= 25; order += 2) {
        for (const wchar_t side : {L'N', L'L'}) {
            for (int phase = 1; phase <= 3; ++phase)
                expected += L"ARM" + std::to_wstring(order) + L'A' + std::to_wstring(phase) + side + L' ';
        }
    }
    EXPECT_EQ(AllNames(Family::Harmonic), expected);
}

TEST(VariableName, EachOfThe118NamesIsUniqueAndParsesBackOntoItsOwnBox)
{
    std::set<std::wstring> names;
    ForEachVariable([&](Family family, const VariablePosition& position) {
        const std::wstring name = NameOf(family, position);
        EXPECT_TRUE(names.insert(name).second);
        EXPECT_EQ(ParseVariableName(family, name), position);
        EXPECT_EQ(ParseVariableName(name), (Variable{family, position}));
    });
    EXPECT_EQ(names.size(), 118U);
}

TEST(VariableName, BelongsToNoOtherFamily)
{
    ForEachVariable([](Family family, const VariablePosition& position) {
        for (const Family other : Families) {
            if (other != family) {
                EXPECT_FALSE(ParseVariableName(other, NameOf(family, position)));
            }
        }
    });
}

TEST(VariableName, AppendsBehindWhatTheTextHolds)
{
    std::wstring text = L"DEV1.";
    AppendVariableName(text, Family::Harmonic, {1, 1, Side::Load});
    EXPECT_EQ(text, L"DEV1.ARM3A2L");
}

TEST(HarmonicName, ReadsOneAndTwoDigitOrders)
{
    EXPECT_EQ(ParseVariableName(Family::Harmonic, L"ARM13A2N"), (VariablePosition{6, 1, Side::Net}));
    EXPECT_EQ(ParseVariableName(Family::Harmonic, L"ARM3A2L"), (VariablePosition{1, 1, Side::Load}));
    EXPECT_EQ(ParseVariableName(Family::Harmonic, L"ARM05A1N"), (VariablePosition{2, 0, Side::Net}));
    EXPECT_FALSE(ParseVariableName(Family::Harmonic, L"ARM013A2N"));
}

TEST(HarmonicName, EvenOrderFallsOntoTheOddOrderBelow)
{
    EXPECT_EQ(ParseVariableName(Family::Harmonic, L"ARM2A1N"), (VariablePosition{0, 0, Side::Net}));
    EXPECT_EQ(ParseVariableName(Family::Harmonic, L"ARM4A1N"), (VariablePosition{1, 0, Side::Net}));
    EXPECT_EQ(ParseVariableName(Family::Harmonic, L"ARM26A3L"), (VariablePosition{12, 2, Side::Load}));
}

TEST(HarmonicName, OrderZeroFallsOntoTheFundamental)
{
    EXPECT_EQ(ParseVariableName(Family::Harmonic, L"ARM0A1N"), (VariablePosition{0, 0, Side::Net}));
    EXPECT_EQ(ParseVariableName(Family::Harmonic, L"ARM00A1N"), (VariablePosition{0, 0, Side::Net}));
}

TEST(HarmonicName, OrderAboveTheLastRowIsIgnored)
{
    EXPECT_TRUE(ParseVariableName(Family::Harmonic, L"ARM25A1N"));
    EXPECT_FALSE(ParseVariableName(Family::Harmonic, L"ARM27A1N"));
    EXPECT_FALSE(ParseVariableName(Family::Harmonic, L"ARM99A1N"));
}

TEST(HarmonicName, PhaseAndSideMustBeValid)
{
    for (const wchar_t* name : {L"ARM3A4N", L"ARM3A0N", L"ARM3A2X", L"ARM3A2n", L"ARM3A2", L"ARM3A", L"ARM3", L"ARM",
                                L"ARMA1N", L"ARM:A1N", L"ARM/A1N", L"ARM1:A1N", L"ARM3B2N", L"arm3A2N", L"AR", L""})
        EXPECT_FALSE(ParseVariableName(Family::Harmonic, name)) << name;
}

TEST(HarmonicName, WhatFollowsTheSideIsNotExamined)
{
    EXPECT_EQ(ParseVariableName(Family::Harmonic, L"ARM3A2LX"), (VariablePosition{1, 1, Side::Load}));
}

TEST(GeneralName, FrequencyNeedsNeitherPhaseNorSide)
{
    constexpr VariablePosition frequency{FrequencyRow, 0, Side::Net};
    for (const wchar_t* name : {L"HZIN", L"HZIL", L"HZI", L"HZI1N", L"HZI1", L"HZIX", L"HZI0N", L"HZI4N"})
        EXPECT_EQ(ParseVariableName(Family::General, name), frequency) << name;
}

TEST(GeneralName, FrequencyWithAPhaseOrLoadSideNamesThatPosition)
{
    EXPECT_EQ(ParseVariableName(Family::General, L"HZI2N"), (VariablePosition{FrequencyRow, 1, Side::Net}));
    EXPECT_EQ(ParseVariableName(Family::General, L"HZI1L"), (VariablePosition{FrequencyRow, 0, Side::Load}));
    EXPECT_EQ(ParseVariableName(Family::General, L"HZINL"), (VariablePosition{FrequencyRow, 0, Side::Load}));
}

TEST(GeneralName, LoadVoltageParsesThoughNoBoxStandsForIt)
{
    EXPECT_EQ(ParseVariableName(Family::General, L"VI2L"), (VariablePosition{0, 1, Side::Load}));
    EXPECT_FALSE(TableOf(Family::General).HasBox({0, 1, Side::Load}));
}

TEST(GeneralName, CodePhaseAndSideMustBeValid)
{
    for (const wchar_t* name : {L"VI4N", L"VI0N", L"VIN", L"VI1", L"VI1X", L"V1N", L"VPNI1N", L"AI4L", L"DI1N", L"DAI1",
                                L"DA1N", L"HI1N", L"HZN", L"ZI1N", L"I1N", L"V", L"D", L"H", L""})
        EXPECT_FALSE(ParseVariableName(Family::General, name)) << name;
}

TEST(PowerName, CodePhaseAndSideMustBeValid)
{
    for (const wchar_t* name : {L"API4N", L"API0N", L"APIN", L"API1", L"API1X", L"AP1N", L"PAI1N", L"VPI1N", L"RPJ1N",
                                L"RPIN", L"PFIL", L"RPI", L"PF", L"P", L""})
        EXPECT_FALSE(ParseVariableName(Family::Power, name)) << name;
}

TEST(PowerName, EachCodePicksItsRow)
{
    EXPECT_EQ(ParseVariableName(Family::Power, L"API1N"), (VariablePosition{0, 0, Side::Net}));
    EXPECT_EQ(ParseVariableName(Family::Power, L"RPI2L"), (VariablePosition{1, 1, Side::Load}));
    EXPECT_EQ(ParseVariableName(Family::Power, L"VAI3N"), (VariablePosition{2, 2, Side::Net}));
    EXPECT_EQ(ParseVariableName(Family::Power, L"PFI1L"), (VariablePosition{3, 0, Side::Load}));
}

TEST(VariablePosition, DiffersInEachCoordinate)
{
    const VariablePosition position{3, 1, Side::Net};
    EXPECT_EQ(position, (VariablePosition{3, 1, Side::Net}));
    EXPECT_NE(position, (VariablePosition{4, 1, Side::Net}));
    EXPECT_NE(position, (VariablePosition{3, 2, Side::Net}));
    EXPECT_NE(position, (VariablePosition{3, 1, Side::Load}));
    EXPECT_EQ((Variable{Family::Power, position}), (Variable{Family::Power, position}));
    EXPECT_NE((Variable{Family::Power, position}), (Variable{Family::General, position}));
    EXPECT_NE((Variable{Family::Power, position}), (Variable{Family::Power, {3, 2, Side::Net}}));
}

}  // namespace
}  // namespace zep
