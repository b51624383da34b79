#include "table/Export.h"

#include "TableFixture.h"

namespace plant {

namespace {

using testing::ElementsAre;

using ExportTest = kztest::TableFixture;

}  // namespace

TEST_F(ExportTest, HasARowForEachDeviceWithFieldsInTheProjectsOrder)
{
    EXPECT_EQ(Export({"device.minCurrent", "units.AP-VA.decimals", "device.mode", "limits.PF.maxW"}),
              "device,device.minCurrent,units.AP-VA.decimals,device.mode,limits.PF.maxW\r\n"
              "\"Hall 1, \"\"A\"\"\",12,2,harmonics+neutral,1\r\n"
              "Gr\xC3\xBA"
              "a,,1,none,1\r\n"
              "zep-01,,1,none,1\r\n");
}

TEST_F(ExportTest, HasTheNamesAloneWithoutKeys)
{
    EXPECT_EQ(Rows(Export({})), (std::vector<Row>{{"device"},
                                                  {"Hall 1, \"A\""},
                                                  {"Gr\xC3\xBA"
                                                   "a"},
                                                  {"zep-01"}}));
}

TEST_F(ExportTest, HasEveryField)
{
    const auto rows = Rows(Export(AllKeys()));
    ASSERT_EQ(rows.size(), 4u);
    EXPECT_EQ(rows[0].size(), 107u);
    EXPECT_EQ(rows[0][1], "device.version");
    EXPECT_EQ(rows[1][1], "2.4");
    EXPECT_EQ(rows[0][106], "limits.ARM25AL.maxD");
}

TEST_F(ExportTest, IsRefusedWhenADocumentIsBroken)
{
    m_folder.Write("devices/zep-02.xml", "<device>");
    EXPECT_EQ(kztest::Refused([this] { return Export({"units.RP.scale"}); }),
              static_cast<unsigned>(IDS_PLANT_BROKEN_DOCUMENT));
}

}  // namespace plant
