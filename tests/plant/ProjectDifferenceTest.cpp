#include "fields/ProjectDifference.h"

#include <gmock/gmock.h>

#include "PlantOfFilters.h"
#include "RefusalOf.h"

namespace plant {

namespace {

using kztest::Refused;
using testing::ElementsAre;
using testing::IsEmpty;

class ProjectDifference : public kztest::PlantOfFilters {
protected:
    struct Read {
        explicit Read(const kztest::TemporaryFolder& folder) : files(folder.Path())
        {
            files.ReadMain(main);
            devices = ReadDevices(main, L"main.xml");
        }
        StoredProject files;
        XmlDocument main{L"configuration"};
        DeviceList devices;
    };

    [[nodiscard]] std::vector<std::string> Compare() const
    {
        const Read here(m_folder);
        const Read there(m_other);
        std::vector<std::string> told;
        for (const auto& [device, kind, field, valueHere, valueThere] :
             Differences({here.main, here.devices, here.files}, {there.main, there.devices, there.files})) {
            constexpr const char* kinds[] = {"", "type", "only here", "only there"};
            const std::string what = field ? field->key : kinds[static_cast<std::size_t>(kind)];
            told.push_back(device + ": " + what + " " + valueHere + "|" + valueThere);
        }
        return told;
    }

    kztest::TemporaryFolder m_other;
};

}  // namespace

TEST_F(ProjectDifference, FindsValuesThatDifferInTheOrderOfDevicesAndFields)
{
    WriteDevicesOf(m_other, {{"b", "Feeder 3"}, {"a", "Feeder 1"}},
                   "<unitSetups><unitSetup><driverId>a</driverId><unit><name>RP</name><decimals>2</decimals>"
                   "<factor>0</factor></unit></unitSetup></unitSetups>");
    WriteInformation(m_folder, "zep-1", "<mode>2</mode><minCurrent>007</minCurrent><serialNum>?</serialNum>");
    WriteInformation(m_other, "a", "<mode>1</mode><minCurrent>7</minCurrent>");
    WriteInformation(m_other, "b", "<version>2</version>");
    EXPECT_THAT(Compare(), ElementsAre("Feeder 1: device.mode reactive|harmonics", "Feeder 1: units.RP.decimals 1|2",
                                       "Feeder 3: device.version ?|2"));
}

TEST_F(ProjectDifference, FindsDevicesThatOneLacksOrThatHaveAnotherType)
{
    WriteDevicesOf(
        m_other,
        {{"zep-9", "New"}, {"zep-3", "Feeder 3", "XYZ"}, {"xyz-2", "Meter 2", "ABC"}, {"xyz-8", "Meter 8", "XYZ"}});
    EXPECT_THAT(Compare(), ElementsAre("Feeder 1: only here |", "Feeder 3: type ZEP|XYZ", "New: only there |"));
}

TEST_F(ProjectDifference, OfAProjectFromItselfIsNone)
{
    WriteDevicesOf(m_other, {{"zep-1", "Feeder 1"}, {"zep-3", "Feeder 3"}});
    EXPECT_THAT(Compare(), IsEmpty());
}

TEST_F(ProjectDifference, IsFoundInTheMainDocumentWhereTheDevicesDocumentsAreTheSame)
{
    WriteDevicesOf(m_other, {{"zep-1", "Feeder 1"}, {"zep-3", "Feeder 3"}},
                   "<unitSetups><unitSetup><driverId>zep-1</driverId><unit><name>RP</name><decimals>2</decimals>"
                   "<factor>0</factor></unit></unitSetup></unitSetups>");
    for (const kztest::TemporaryFolder* folder : {&m_folder, &m_other})
        WriteInformation(*folder, "zep-1", "<mode>2</mode><minCurrent>7</minCurrent>");
    WriteInformation(m_folder, "zep-3", "<mode>2</mode>");
    EXPECT_THAT(Compare(), ElementsAre("Feeder 1: units.RP.decimals 1|2", "Feeder 3: device.mode reactive|none"));
}

TEST_F(ProjectDifference, IsRefusedForABrokenDocument)
{
    WriteDevicesOf(m_other, {{"zep-1", "Feeder 1"}});
    m_other.Write("devices/zep-1.xml", "<device>");
    EXPECT_EQ(Refused([this] { return Compare(); }), IDS_PLANT_BROKEN_DOCUMENT);
}

}  // namespace plant
