// Values as text: what a stored text reads as, which values are taken, and why others are not.
#include <gtest/gtest.h>

#include "KZStringIds.h"
#include "fields/FieldValue.h"

namespace {

using plant::Field;
using plant::Message;

const Field& Row(const std::string& key)
{
    return *plant::FindField(*plant::FieldsOfType(L"ZEP"), key);
}

std::string Shown(const char* key, const wchar_t* text)
{
    std::string value;
    plant::AppendValue(value, Row(key), text);
    return value;
}

// What the value is once it is stored, or why it is refused.
std::string Taken(const char* key, const std::string& value)
{
    double number = 0.0;
    const auto reason = plant::ReadValue(Row(key), value, number);
    return reason ? "refused " + std::to_string(reason->text) : plant::ValueOfNumber(Row(key), number);
}

std::string Refused(unsigned text)
{
    return "refused " + std::to_string(text);
}

TEST(StoredValues, AreTheTextsThemselvesWhereNothingIsCounted)
{
    EXPECT_EQ(Shown("device.version", L"2.10 \u00DF"), "2.10 \xC3\x9F");
    EXPECT_EQ(Shown("device.serialNum", L"?"), "?");
    EXPECT_EQ(Shown("device.gamma", L""), "");
}

TEST(StoredValues, OfWholeNumbersAreTheirLeadingDigits)
{
    EXPECT_EQ(Shown("device.minCurrent", L"007"), "7");
    EXPECT_EQ(Shown("device.minCurrent", L" -3x"), "-3");
    EXPECT_EQ(Shown("device.minCurrent", L"much"), "0");
    EXPECT_EQ(Shown("device.minCurrent", L""), "");
    EXPECT_EQ(Shown("device.numZEP", L"99"), "99");
    EXPECT_EQ(Shown("units.RP.decimals", L"7"), "7");
}

TEST(StoredValues, OfChoicesAreTheirNamesOrTheNumberThatHasNone)
{
    EXPECT_EQ(Shown("device.algorithm", L"0"), "standard");
    EXPECT_EQ(Shown("device.algorithm", L"1"), "selective");
    EXPECT_EQ(Shown("device.algorithm", L"2"), "fast");
    EXPECT_EQ(Shown("device.algorithm", L"3"), "3");
    EXPECT_EQ(Shown("device.algorithm", L"-1"), "-1");
    EXPECT_EQ(Shown("device.status", L"0"), "stopped");
    EXPECT_EQ(Shown("device.status", L"1"), "running");
    EXPECT_EQ(Shown("device.status", L"2"), "2");
    EXPECT_EQ(Shown("device.status", L""), "");
}

TEST(StoredValues, OfScalesArePlainForAZeroAlone)
{
    EXPECT_EQ(Shown("units.RP.scale", L"0"), "plain");
    for (const wchar_t* factor : {L"3", L"1", L"00", L""})
        EXPECT_EQ(Shown("units.RP.scale", factor), "kilo");
}

TEST(StoredValues, OfSetsAreTheBitsThatCount)
{
    EXPECT_EQ(Shown("device.mode", L"10"), "reactive+neutral");
    EXPECT_EQ(Shown("device.mode", L"16"), "none");
    EXPECT_EQ(Shown("device.mode", L""), "none");
    EXPECT_EQ(Shown("device.filters", L"2049"), "3+25");
    EXPECT_EQ(Shown("device.filters", L"4096"), "none");
}

TEST(StoredValues, OfDecimalsAreAsShortAsTheyReadBack)
{
    EXPECT_EQ(Shown("limits.PF.maxW", L"0.950000"), "0.95");
    EXPECT_EQ(Shown("limits.AP.nominal", L"1250.000000"), "1250");
    EXPECT_EQ(Shown("limits.AP.nominal", L"1e3"), "1000");
    EXPECT_EQ(Shown("limits.AP.nominal", L"0.0000001"), "0.0000001");
    EXPECT_EQ(Shown("limits.AP.nominal", L"-0.000000"), "0");
    EXPECT_EQ(Shown("limits.AP.nominal", L"high"), "0");
}

struct Bounds {
    const char* key;
    const char* lowest;
    const char* highest;
    const char* below;
    const char* above;
};

TEST(Values, KeepTheBoundsOfTheirField)
{
    for (const Bounds& bounds :
         {Bounds{"device.minCurrent", "0", "200", "-1", "201"}, Bounds{"device.numZEP", "1", "8", "0", "9"},
          Bounds{"units.AP-VA.decimals", "0", "3", "-1", "4"}, Bounds{"units.RP.decimals", "0", "3", "-1", "4"}}) {
        EXPECT_EQ(Taken(bounds.key, bounds.lowest), bounds.lowest);
        EXPECT_EQ(Taken(bounds.key, bounds.highest), bounds.highest);
        EXPECT_EQ(Taken(bounds.key, bounds.below), Refused(KZS_OUT_OF_RANGE));
        EXPECT_EQ(Taken(bounds.key, bounds.above), Refused(KZS_OUT_OF_RANGE));
    }
    EXPECT_EQ(Taken("device.minCurrent", "99999999999999999999"), Refused(KZS_OUT_OF_RANGE));
    EXPECT_EQ(Taken("device.minCurrent", "-99999999999999999999"), Refused(KZS_OUT_OF_RANGE));
}

TEST(Values, ThatAreOutOfRangeNameTheBounds)
{
    double number = 5.0;
    EXPECT_EQ(plant::ReadValue(Row("device.minCurrent"), "201", number), (Message{KZS_OUT_OF_RANGE, {}, {0, 200}}));
    EXPECT_EQ(plant::ReadValue(Row("device.numZEP"), "0", number), (Message{KZS_OUT_OF_RANGE, {}, {1, 8}}));
    EXPECT_EQ(plant::ReadValue(Row("units.RP.decimals"), "4", number), (Message{KZS_OUT_OF_RANGE, {}, {0, 3}}));
    EXPECT_EQ(number, 5.0);
}

TEST(Values, OfWholeNumbersAreReadWhole)
{
    EXPECT_EQ(Taken("device.minCurrent", "007"), "7");
    EXPECT_EQ(Taken("device.minCurrent", "-0"), "0");
    for (const char* value : {"+7", " 7", "7 ", "7.0", "7.", "1e1", "0x1", "seven", "-", "1,0", "7\n"})
        EXPECT_EQ(Taken("device.minCurrent", value), Refused(IDS_PLANT_FIELD_NOT_WHOLE)) << value;
}

TEST(Values, OfDecimalsAreReadWhole)
{
    EXPECT_EQ(Taken("limits.AP.nominal", "1250"), "1250");
    EXPECT_EQ(Taken("limits.AP.nominal", "-12.50"), "-12.5");
    EXPECT_EQ(Taken("limits.AP.nominal", "-0"), "0");
    EXPECT_EQ(Taken("limits.AP.nominal", "0.1234567"), "0.123457");
    for (const char* value : {"+7", " 7", "7 ", "1e1", "0x1", "inf", "nan", "-", ".", "1,5", "1.5.1", "--1"})
        EXPECT_EQ(Taken("limits.AP.nominal", value), Refused(KZS_NOT_A_NUMBER)) << value;
    EXPECT_EQ(Taken("limits.AP.nominal", "1" + std::string(400, '0')), Refused(KZS_NOT_A_NUMBER));
}

TEST(Values, OfChoicesAreNames)
{
    EXPECT_EQ(Taken("units.RP.scale", "kilo"), "kilo");
    EXPECT_EQ(Taken("units.RP.scale", "plain"), "plain");
    for (const char* value : {"Kilo", "0", "kilo ", "kilo|plain", "none"})
        EXPECT_EQ(Taken("units.RP.scale", value), Refused(IDS_PLANT_FIELD_NO_CHOICE)) << value;
    double number = 0.0;
    EXPECT_EQ(plant::ReadValue(Row("units.RP.scale"), "mega", number),
              (Message{IDS_PLANT_FIELD_NO_CHOICE, {L"kilo|plain"}}));
}

TEST(Values, OfSetsAreNamesInAnyOrderEachOnce)
{
    EXPECT_EQ(Taken("device.mode", "neutral+harmonics"), "harmonics+neutral");
    EXPECT_EQ(Taken("device.mode", "none"), "none");
    EXPECT_EQ(Taken("device.filters", "3+5+7+9+11+13+15+17+19+21+23+25"), "3+5+7+9+11+13+15+17+19+21+23+25");
    for (const char* value : {"harmonics+", "+harmonics", "harmonics++neutral", "harmonics+harmonics", "none+neutral",
                              "harmonics, neutral", "1", "+"})
        EXPECT_EQ(Taken("device.mode", value), Refused(IDS_PLANT_FIELD_NO_SET)) << value;
    EXPECT_EQ(Taken("device.filters", "1"), Refused(IDS_PLANT_FIELD_NO_SET));
    EXPECT_EQ(Taken("device.filters", "27"), Refused(IDS_PLANT_FIELD_NO_SET));
}

TEST(Values, ThatAreEmptyAreRefused)
{
    for (const char* key :
         {"device.mode", "device.minCurrent", "units.RP.scale", "units.RP.decimals", "limits.PF.maxW"})
        EXPECT_EQ(Taken(key, ""), Refused(KZS_FIELD_EMPTY)) << key;
}

}  // namespace
