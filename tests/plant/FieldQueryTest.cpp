#include "fields/FieldQuery.h"

#include <gmock/gmock.h>

#include "PlantOfFilters.h"
#include "RefusalOf.h"

namespace plant {

namespace {

using kztest::RefusalOf;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using testing::Pointee;
using testing::SizeIs;

class FieldQuery : public kztest::PlantOfFilters {
protected:
    std::vector<std::size_t> Named(const std::vector<std::wstring>& names) { return DevicesNamed(Opened(), names); }
    const FieldTable& m_table = *FieldsOfType(L"ZEP");
};

TEST_F(FieldQuery, TakesEveryDeviceWithATableUnlessSomeAreNamed)
{
    EXPECT_THAT(Named({}), ElementsAre(0, 2));
    WriteDevices({});
    EXPECT_THAT(Named({}), IsEmpty());
}

TEST_F(FieldQuery, TakesNamedDevicesOnceInThatOrder)
{
    EXPECT_THAT(Named({L"zep-3", L"Feeder 1", L"Feeder 3", L"zep-1"}), ElementsAre(2, 0));
}

TEST_F(FieldQuery, RefusesDevicesThatAreUnknownOrHaveNoTable)
{
    EXPECT_EQ(RefusalOf([this] { return Named({L"Feeder 9"}); }).text, IDS_PLANT_NO_DEVICE);
    const Message message = RefusalOf([this] { return Named({L"Feeder 1", L"xyz-2"}); });
    EXPECT_EQ(message.text, IDS_PLANT_DEVICE_NO_FIELDS);
    EXPECT_THAT(message.arguments, ElementsAre(L"Meter 2", L"XYZ"));
}

TEST_F(FieldQuery, TakesEveryFieldUnlessSomeAreNamed)
{
    EXPECT_THAT(FieldsNamed(m_table, {}), SizeIs(m_table.size()));
    EXPECT_THAT(FieldsNamed(m_table, {"units.RP.scale", "device.mode", "units.RP.scale"}),
                ElementsAre(&FieldNamed(m_table, "units.RP.scale"), &FieldNamed(m_table, "device.mode")));
}

TEST_F(FieldQuery, RefusesAKeyThatIsNone)
{
    for (const char* key : {"device.colour", "", "device.Mode", "device.mode "}) {
        const Message message = RefusalOf([&] { return FieldsNamed(m_table, {"device.mode", key}); });
        EXPECT_EQ(message.text, IDS_PLANT_NO_FIELD) << key;
        EXPECT_EQ(RefusalOf([&] { return &FieldNamed(m_table, key); }), message) << key;
    }
}

}  // namespace

}  // namespace plant
