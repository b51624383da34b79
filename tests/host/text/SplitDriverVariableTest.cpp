#include <gtest/gtest.h>

#include "KZDriverVariable.h"

namespace {

struct Parts {
    bool split;
    KZBasicString device;
    KZBasicString variable;

    bool operator==(const Parts&) const = default;
};

Parts Split(const wchar_t* fullName, bool atFirstDot)
{
    Parts parts{false, L"left over", L"left over"};
    parts.split = SplitDriverVariable(fullName, parts.device, parts.variable, atFirstDot);
    return parts;
}

TEST(SplitDriverVariable, SeparatesDeviceAndVariable)
{
    EXPECT_EQ(Split(L"DEV1.ARM3A2L", false), (Parts{true, L"DEV1", L"ARM3A2L"}));
    EXPECT_EQ(Split(L"DEV1.ARM3A2L", true), (Parts{true, L"DEV1", L"ARM3A2L"}));
}

TEST(SplitDriverVariable, LeavesDotsToTheDeviceOrToTheVariable)
{
    EXPECT_EQ(Split(L"Hall 2.Filter.HZIN", false), (Parts{true, L"Hall 2.Filter", L"HZIN"}));
    EXPECT_EQ(Split(L"Hall 2.Filter.HZIN", true), (Parts{true, L"Hall 2", L"Filter.HZIN"}));
}

TEST(SplitDriverVariable, TakesANameWithoutDotForAVariable)
{
    EXPECT_EQ(Split(L"HZIN", false), (Parts{false, L"", L"HZIN"}));
    EXPECT_EQ(Split(L"", false), (Parts{false, L"", L""}));
}

TEST(SplitDriverVariable, AllowsEmptyParts)
{
    EXPECT_EQ(Split(L".", false), (Parts{true, L"", L""}));
    EXPECT_EQ(Split(L".HZIN", false), (Parts{true, L"", L"HZIN"}));
    EXPECT_EQ(Split(L"DEV1.", false), (Parts{true, L"DEV1", L""}));
}

TEST(SplitDriverVariable, MayPutAPartInThePlaceOfTheWhole)
{
    KZBasicString name(L"A rather long device name.ARM25A3L");
    KZBasicString other;
    EXPECT_TRUE(SplitDriverVariable(name, name, other, false));
    EXPECT_EQ(name.View(), L"A rather long device name");
    EXPECT_EQ(other.View(), L"ARM25A3L");

    KZBasicString again(L"A rather long device name.ARM25A3L");
    EXPECT_TRUE(SplitDriverVariable(again, other, again, false));
    EXPECT_EQ(other.View(), L"A rather long device name");
    EXPECT_EQ(again.View(), L"ARM25A3L");
}

TEST(SplitDriverVariable, ReusesTheStorageOfItsResults)
{
    KZBasicString device(std::wstring(64, L'x'));
    KZBasicString variable(std::wstring(64, L'x'));
    const wchar_t* const deviceStorage = device.c_str();
    const wchar_t* const variableStorage = variable.c_str();
    SplitDriverVariable(L"A rather long device name.ARM25A3L", device, variable, false);
    EXPECT_EQ(device.c_str(), deviceStorage);
    EXPECT_EQ(variable.c_str(), variableStorage);
}

}  // namespace
