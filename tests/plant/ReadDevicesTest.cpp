#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "RefusalOf.h"
#include "project/DeviceList.h"

namespace plant {

namespace {

using kztest::RefusalOf;
using testing::ElementsAre;

std::string Device(const std::string& driverId, const std::string& name)
{
    return "<device><driverId>" + driverId + "</driverId><name>" + name + "</name></device>";
}

// Many others, with ids and names of their own.
std::string Others(int first, int last)
{
    std::string devices;
    for (int number = first; number <= last; ++number)
        devices += Device("zep-" + std::to_string(number), "Filter " + std::to_string(number));
    return devices;
}

Message Refused(const std::string& devices)
{
    XmlDocument document(L"configuration");
    EXPECT_TRUE(document.Parse("<configuration><devices>" + devices + "</devices></configuration>"));
    return RefusalOf([&] { return ReadDevices(document, L"main.xml"); });
}

}  // namespace

TEST(ReadDevices, TakesManyThatDiffer)
{
    EXPECT_EQ(Refused(Others(1, 2000)).text, 0U);
}

TEST(ReadDevices, NamesTheFirstThatHasTheIdentifierOfAnother)
{
    const Message refused = Refused(Device("a", "one") + Others(1, 500) + Device("A", "two") +
                                    Device("zep-7", "three") + Others(501, 1000) + Device("a", "four"));
    EXPECT_EQ(refused.text, unsigned{IDS_PLANT_DEVICE_DOUBLE_DRIVER_ID});
    EXPECT_THAT(refused.arguments, ElementsAre(L"main.xml", L"two", L"A"));
}

TEST(ReadDevices, NamesTheFirstThatHasTheNameOfAnother)
{
    const Message refused = Refused(Others(1, 300) + Device("b", "Filter 300") + Device("c", "Filter 1"));
    EXPECT_EQ(refused.text, unsigned{IDS_PLANT_DEVICE_DOUBLE_NAME});
    EXPECT_THAT(refused.arguments, ElementsAre(L"main.xml", L"Filter 300", L"Filter 300"));
}

TEST(ReadDevices, TakesNamesThatDifferInCase)
{
    EXPECT_EQ(Refused(Device("a", "Filter") + Device("b", "FILTER")).text, 0U);
}

}  // namespace plant
