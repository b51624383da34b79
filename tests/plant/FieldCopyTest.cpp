#include "changes/FieldCopy.h"

#include <gmock/gmock.h>

#include "PlantOfFilters.h"
#include "RefusalOf.h"

namespace plant {

namespace {

using kztest::Refused;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class FieldCopy : public kztest::PlantOfFilters {
protected:
    // Copies from the first filter to both, and gives what is refused, or else what changes.
    std::vector<std::string> Copy(const CopiedFields& what)
    {
        Project& project = Opened();
        const StoredProject files(project.Folder());
        DeviceReader reader(*KZMainCfg::Get(), files);
        const std::vector<std::size_t> to{0, 2};
        const FieldEdit edit = CopyFields(project, reader, 0, to, what);
        std::vector<std::string> told;
        for (const Finding& finding : edit.Findings())
            told.push_back("refused " + finding.device + " " + finding.place);
        if (told.empty()) {
            for (const auto& [device, field, before, after] : edit.Changes())
                told.push_back(std::to_string(device) + " " + field->key + " " + before + ">" + after);
        }
        return told;
    }
};

constexpr const char* Setups = "<unitSetups><unitSetup><driverId>zep-1</driverId><unit><name>RP</name>"
                               "<decimals>3</decimals><factor>3</factor></unit></unitSetup></unitSetups>"
                               "<viewSetups><viewSetup><driverId>zep-1</driverId><check><var>AP</var>"
                               "<nominal>5</nominal><maxW>50</maxW><maxD>60</maxD></check></viewSetup></viewSetups>";

}  // namespace

TEST_F(FieldCopy, TakesWhatCanBeSetInTheSectionsThatAreAskedFor)
{
    WriteDevices({{"zep-1", "Feeder 1"}, {"xyz-2", "Meter 2", "XYZ"}, {"zep-3", "Feeder 3"}}, Setups);
    WriteInformation(m_folder, "zep-1",
                     "<version>1</version><mode>1</mode><minCurrent>9</minCurrent><numZEP>2</numZEP>");
    const std::vector<std::string> device{"2 device.mode none>harmonics", "2 device.minCurrent >9",
                                          "2 device.numZEP >2"};
    const std::vector<std::string> units{"2 units.RP.scale plain>kilo", "2 units.RP.decimals 1>3"};
    const std::vector<std::string> limits{"2 limits.AP.nominal 0>5", "2 limits.AP.maxW 1>50", "2 limits.AP.maxD 1>60"};
    EXPECT_EQ(Copy({.keys = {}, .sections = {FieldSection::Device}}), device);
    EXPECT_EQ(Copy({.keys = {}, .sections = {FieldSection::Units}}), units);
    EXPECT_EQ(Copy({.keys = {}, .sections = {FieldSection::Limits}}), limits);
    EXPECT_THAT(Copy({}), SizeIs(8));
    EXPECT_THAT(Copy({.keys = {}, .sections = {FieldSection::Limits, FieldSection::Units}}), SizeIs(5));
    EXPECT_THAT(Copy({.keys = {"limits.AP.maxD", "device.mode"}, .sections = {}}), ElementsAre(limits[2], device[0]));
}

TEST_F(FieldCopy, LeavesEmptyWhatBothHaveNoValueOfUnlessItIsNamed)
{
    EXPECT_THAT(Copy({}), IsEmpty());
    EXPECT_THAT(Copy({.keys = {"device.numZEP"}, .sections = {}}),
                ElementsAre("refused Feeder 1 device.numZEP", "refused Feeder 3 device.numZEP"));
}

TEST_F(FieldCopy, IsRefusedForNoValueInPlaceOfOneForWhatIsOnlyReadAndForWhatIsWrong)
{
    WriteInformation(m_folder, "zep-3", "<numZEP>2</numZEP>");
    EXPECT_THAT(Copy({}), ElementsAre("refused Feeder 3 device.numZEP"));
    EXPECT_THAT(Copy({.keys = {"device.gamma"}, .sections = {}}),
                ElementsAre("refused Feeder 1 device.gamma", "refused Feeder 3 device.gamma"));
    WriteInformation(m_folder, "zep-1", "<numZEP>9</numZEP>");
    EXPECT_THAT(Copy({}), ElementsAre("refused Feeder 3 device.numZEP"));
    EXPECT_EQ(Refused([this] { return Copy({.keys = {"device.colour"}, .sections = {}}); }), IDS_PLANT_NO_FIELD);
    m_folder.Write("devices/zep-1.xml", "<device>");
    EXPECT_EQ(Refused([this] { return Copy({}); }), IDS_PLANT_BROKEN_DOCUMENT);
}

}  // namespace plant
