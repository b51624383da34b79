#include "project/GroupMask.h"

#include <gtest/gtest.h>

namespace plant {

TEST(GroupMask, ReadsHexadecimalWithAndWithoutPrefixInEitherCase)
{
    EXPECT_EQ(ParseGroupMask(L"0x74"), KZVariableGroups{0x74});
    EXPECT_EQ(ParseGroupMask(L"0X8b"), KZVariableGroups{0x8B});
    EXPECT_EQ(ParseGroupMask(L"Ff"), KZVariableGroups{0xFF});
    EXPECT_EQ(ParseGroupMask(L"0"), KZVariableGroups{});
}

TEST(GroupMask, TakesAll34BitsAndNotOneMore)
{
    EXPECT_EQ(ParseGroupMask(L"0x3FFFFFFFF"), AllGroups());
    EXPECT_FALSE(ParseGroupMask(L"0x400000000"));
    EXPECT_FALSE(ParseGroupMask(L"0x10000000000000000000000001"));
    EXPECT_EQ(ParseGroupMask(L"0x00000000000000000000000001"), KZVariableGroups{1});
}

TEST(GroupMask, RefusesWhatIsNoMask)
{
    for (const wchar_t* text : {L"", L"0x", L"0xG", L"7 4", L"-1", L" 74", L"74 ", L"0x0x1"})
        EXPECT_FALSE(ParseGroupMask(text)) << text;
}

TEST(GroupMask, WritesWhatItReads)
{
    for (const wchar_t* text : {L"0x0", L"0x1", L"0x74", L"0x8B", L"0x3FFFFFFFF"})
        EXPECT_EQ(FormatGroupMask(*ParseGroupMask(text)), text);
}

}  // namespace plant
