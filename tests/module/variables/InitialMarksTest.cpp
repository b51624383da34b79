#include "InitialMarks.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

namespace zep {
namespace {

InitialMarks MarksOf(const KZBasicString& device, std::initializer_list<std::wstring> fullNames)
{
    return InitialMarks({fullNames.begin(), fullNames.end()}, device);
}

std::size_t CountAll(const InitialMarks& marks)
{
    return marks.Of(Family::General).count() + marks.Of(Family::Power).count() + marks.Of(Family::Harmonic).count();
}

TEST(InitialMarks, PutEachNameOnItsFamily)
{
    const InitialMarks marks = MarksOf(L"DEV1", {L"DEV1.ARM5A2L", L"DEV1.HZIN", L"DEV1.PFI1L"});
    EXPECT_TRUE(marks.Of(Family::Harmonic).test(PositionIndex({2, 1, Side::Load})));
    EXPECT_TRUE(marks.Of(Family::General).test(PositionIndex({FrequencyRow, 0, Side::Net})));
    EXPECT_TRUE(marks.Of(Family::Power).test(PositionIndex({3, 0, Side::Load})));
    EXPECT_EQ(CountAll(marks), 3U);
}

TEST(InitialMarks, SkipOtherDevices)
{
    EXPECT_EQ(CountAll(MarksOf(L"DEV1", {L"DEV2.HZIN", L"DEV10.HZIN", L"DEV.HZIN", L"dev1.HZIN", L".HZIN"})), 0U);
}

TEST(InitialMarks, SkipNamesThatMatchNoRule)
{
    EXPECT_EQ(CountAll(MarksOf(L"DEV1", {L"DEV1.", L"DEV1.ARM27A1N", L"DEV1.XYZ", L"DEV1", L"", L"HZIN", L"."})), 0U);
}

TEST(InitialMarks, CountADoubledNameOnce)
{
    EXPECT_EQ(CountAll(MarksOf(L"DEV1", {L"DEV1.VI1N", L"DEV1.VI1N"})), 1U);
}

TEST(InitialMarks, FindDevicesWhoseNamesHoldDotsAndBlanks)
{
    const InitialMarks marks =
        MarksOf(L"Hall 3.Line A", {L"Hall 3.Line A.AI2L", L"Hall 3.AI1L", L"Hall 3.Line B.AI3L"});
    EXPECT_TRUE(marks.Of(Family::General).test(PositionIndex({2, 1, Side::Load})));
    EXPECT_EQ(CountAll(marks), 1U);
}

TEST(InitialMarks, DoNotTakeADottedDeviceForTheOneBeforeItsDot)
{
    EXPECT_EQ(CountAll(MarksOf(L"Hall", {L"Hall.3.AI1L"})), 0U);
}

TEST(InitialMarks, FindLongAndNonAsciiDeviceNames)
{
    const std::wstring longName(300, L'x');
    const std::wstring accents = L"Ca\u00f1\u00f3n \u4e2d \U0001F50C";
    EXPECT_EQ(CountAll(MarksOf(longName, {longName + L".API1N", longName + L"x.API2N"})), 1U);
    EXPECT_EQ(CountAll(MarksOf(accents, {accents + L".API1N", L"Canon.API2N"})), 1U);
}

TEST(InitialMarks, AnUnnamedDeviceTakesOnlyNamesWithADot)
{
    EXPECT_EQ(CountAll(MarksOf(L"", {L".HZIN", L"HZIN"})), 1U);
}

}  // namespace
}  // namespace zep
