#include <gtest/gtest.h>

#include <climits>
#include <random>
#include <string>

#include "InformationRecord.h"
#include "KZStringIds.h"

namespace {

using namespace zep;

using Failure = std::optional<InformationFailure>;

// Entries that pass.
InformationEntries Good()
{
    return {0, 0, L"200", L"50", L"3"};
}

Failure Check(const InformationEntries& entries)
{
    InformationSettings settings;
    return CheckInformation(entries, settings);
}

Failure CheckCurrent(const wchar_t* text)
{
    auto entries = Good();
    entries.minimumCurrent = text;
    return Check(entries);
}

Failure CheckUnits(const wchar_t* text)
{
    auto entries = Good();
    entries.unitCount = text;
    return Check(entries);
}

Failure CheckRatio(const wchar_t* text)
{
    auto entries = Good();
    entries.transformerRatio = text;
    return Check(entries);
}

const Failure NoFailure;
const Failure CurrentRange{{InformationField::MinimumCurrent, KZS_OUT_OF_RANGE, InformationBounds{0, 200}}};
const Failure UnitsRange{{InformationField::UnitCount, KZS_OUT_OF_RANGE, InformationBounds{1, 8}}};

Failure Empty(InformationField field)
{
    return InformationFailure{field, KZS_FIELD_EMPTY, {}};
}

TEST(InformationRules, AcceptGoodEntriesAndTurnThemIntoSettings)
{
    InformationSettings settings;
    EXPECT_EQ(CheckInformation({0b1001, 0x123, L"400", L"007", L"8"}, settings), NoFailure);
    EXPECT_EQ(settings, (InformationSettings{0b1001, 0x123, 400, 7, 8}));
}

TEST(InformationRules, RefuseAnEmptyRatioAlthoughItCannotBeEdited)
{
    EXPECT_EQ(CheckRatio(L""), Empty(InformationField::TransformerRatio));
}

TEST(InformationRules, HoldTheRatioToNoRange)
{
    for (const auto* text : {L"0", L"-1", L"9999", L"x", L" ", L"99999999999"})
        EXPECT_EQ(CheckRatio(text), NoFailure);
}

TEST(InformationRules, HoldTheMinimumCurrentTo200AtMost)
{
    EXPECT_EQ(CheckCurrent(L"0"), NoFailure);
    EXPECT_EQ(CheckCurrent(L"199"), NoFailure);
    EXPECT_EQ(CheckCurrent(L"200"), NoFailure);
    EXPECT_EQ(CheckCurrent(L"201"), CurrentRange);
    EXPECT_EQ(CheckCurrent(L"99999999999"), CurrentRange);
    EXPECT_EQ(CheckCurrent(L""), Empty(InformationField::MinimumCurrent));
}

TEST(InformationRules, LetNegativeAndNonNumericMinimumCurrentsPass)
{
    EXPECT_EQ(CheckCurrent(L"-5"), NoFailure);
    EXPECT_EQ(CheckCurrent(L"-99999999999"), NoFailure);
    EXPECT_EQ(CheckCurrent(L"x"), NoFailure);
}

TEST(InformationRules, HoldTheNumberOfUnitsBetween1And8)
{
    for (const auto* text : {L"1", L"2", L"7", L"8"})
        EXPECT_EQ(CheckUnits(text), NoFailure);
    for (const auto* text : {L"0", L"9", L"-1", L"x", L" ", L"99999999999", L"-99999999999"})
        EXPECT_EQ(CheckUnits(text), UnitsRange);
    EXPECT_EQ(CheckUnits(L""), Empty(InformationField::UnitCount));
}

TEST(InformationRules, CheckRatioThenCurrentThenUnits)
{
    EXPECT_EQ(Check({0, 0, L"", L"", L""}), Empty(InformationField::TransformerRatio));
    EXPECT_EQ(Check({0, 0, L"1", L"", L""}), Empty(InformationField::MinimumCurrent));
    EXPECT_EQ(Check({0, 0, L"1", L"201", L"9"}), CurrentRange);
    EXPECT_EQ(Check({0, 0, L"1", L"1", L"9"}), UnitsRange);
}

TEST(InformationRules, KeepOnlyTheBitsThatTheRecordHas)
{
    InformationSettings settings;
    auto entries = Good();
    entries.modes = entries.filters = -1;
    EXPECT_EQ(CheckInformation(entries, settings), NoFailure);
    EXPECT_EQ(settings.modes, 15);
    EXPECT_EQ(settings.filters, 4095);
}

TEST(InformationRules, FindNoChangeWhenTheSameNumberIsWrittenDifferently)
{
    XmlDocument document(L"device");
    ASSERT_TRUE(document.Parse("<device><information><mode>255</mode><transRatio>0200</transRatio>"
                               "<minCurrent>007</minCurrent><numZEP>2x</numZEP></information></device>"));
    const InformationRecord record(*document.Root());
    InformationSettings settings;
    ASSERT_EQ(CheckInformation({15, 0, L"0200", L" 7 ", L"2"}, settings), NoFailure);
    EXPECT_EQ(settings, record.Settings());
}

TEST(InformationRules, FindAChangeInEverySetting)
{
    const InformationSettings initial{1, 2, 3, 4, 5};
    EXPECT_NE((InformationSettings{0, 2, 3, 4, 5}), initial);
    EXPECT_NE((InformationSettings{1, 0, 3, 4, 5}), initial);
    EXPECT_NE((InformationSettings{1, 2, 0, 4, 5}), initial);
    EXPECT_NE((InformationSettings{1, 2, 3, 0, 5}), initial);
    EXPECT_NE((InformationSettings{1, 2, 3, 4, 0}), initial);
}

TEST(InformationRules, TellRefusalsApart)
{
    EXPECT_NE((InformationBounds{0, 200}), (InformationBounds{1, 200}));
    EXPECT_NE((InformationBounds{0, 200}), (InformationBounds{0, 8}));
    const InformationFailure failure{InformationField::UnitCount, KZS_OUT_OF_RANGE, InformationBounds{1, 8}};
    EXPECT_NE((InformationFailure{InformationField::MinimumCurrent, KZS_OUT_OF_RANGE, failure.bounds}), failure);
    EXPECT_NE((InformationFailure{InformationField::UnitCount, KZS_FIELD_EMPTY, failure.bounds}), failure);
    EXPECT_NE((InformationFailure{InformationField::UnitCount, KZS_OUT_OF_RANGE, std::nullopt}), failure);
}

// The rules once more, as one list of conditions.
Failure Expected(const std::wstring& ratio, const std::wstring& current, const std::wstring& units)
{
    const auto number = [](const std::wstring& text) {
        try {
            return std::stoll(text);
        } catch (const std::exception&) {
            return 0LL;
        }
    };
    if (ratio.empty())
        return Empty(InformationField::TransformerRatio);
    if (current.empty())
        return Empty(InformationField::MinimumCurrent);
    if (number(current) > 200)
        return CurrentRange;
    if (units.empty())
        return Empty(InformationField::UnitCount);
    if (number(units) > 8 || number(units) < 1)
        return UnitsRange;
    return std::nullopt;
}

TEST(InformationRules, AgreeWithTheConditionsOnRandomEntries)
{
    std::mt19937 random(20240611);
    const auto text = [&](int length) {
        static constexpr std::wstring_view alphabet = L"0123456789 0123456789-+x";
        std::wstring made;
        for (int i = std::uniform_int_distribution(0, length)(random); i > 0; --i)
            made += alphabet[std::uniform_int_distribution<std::size_t>(0, alphabet.size() - 1)(random)];
        return made;
    };
    int failures = 0;
    for (int round = 0; round < 10000; ++round) {
        const std::wstring ratio = text(6);
        const std::wstring current = text(4);
        const std::wstring units = text(2);
        const auto found = Check({0, 0, ratio, current, units});
        ASSERT_EQ(found, Expected(ratio, current, units)) << round;
        failures += found ? 1 : 0;
    }
    EXPECT_GT(failures, 1000);
    EXPECT_LT(failures, 9000);
}

}  // namespace
