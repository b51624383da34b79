// Which devices somebody looks for.
#include "project/DeviceFilter.h"

#include <gmock/gmock.h>

#include "PlantOfFilters.h"
#include "project/ChosenVariables.h"

namespace plant {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Folding, LeavesCapitalsAndAccentsOut)
{
    EXPECT_EQ(Folded(L"ÁRBOL Ñandú Çelik ŽŁÓ ß 480 V"), L"arbol nandu celik zlo s 480 v");
    EXPECT_EQ(Folded(L"e\u0301"), L"e");
    EXPECT_EQ(Folded(L"ЖЁΩ"), L"жёω");
    EXPECT_EQ(Folded(L"ſÀ"), L"sa");
}

class DeviceFilterTest : public kztest::PlantOfFilters {};

TEST_F(DeviceFilterTest, FindsAllWordsInAnyOrder)
{
    m_folder.Write("main.xml",
                   "<configuration><devices><device><driverId>a</driverId><name>TREN1</name><number>7</number>"
                   "<description>Tren de laminación</description><type>ZEP</type></device>"
                   "<device><driverId>b</driverId><name>CPD</name><number>17</number></device></devices>"
                   "<selections><selection><driverId>b</driverId><variables>CPD.ARM5A2N</variables></selection>"
                   "</selections></configuration>");
    std::wstring finding = L"The warning limit";
    DeviceFilter filter(Opened(), [&](std::size_t device) { return device == 1 ? finding : std::wstring(); });
    EXPECT_THAT(filter.Matching(L""), ElementsAre(0u, 1u));
    EXPECT_THAT(filter.Matching(L"  "), ElementsAre(0u, 1u));
    EXPECT_THAT(filter.Matching(L"7"), ElementsAre(0u, 1u));
    EXPECT_THAT(filter.Matching(L"17"), ElementsAre(1u));
    EXPECT_THAT(filter.Matching(L"LAMINACION tren"), ElementsAre(0u));
    EXPECT_THAT(filter.Matching(L"zep"), ElementsAre(0u));
    EXPECT_THAT(filter.Matching(L"arm5 warn"), ElementsAre(1u));
    EXPECT_THAT(filter.Matching(L"tren1zep"), IsEmpty()) << "a word is not found across two texts";
    EXPECT_THAT(filter.Matching(L"tren cpd"), IsEmpty());

    StoreChosenVariables(*KZMainCfg::Get(), L"a", {KZBasicString(L"TREN1.PF")});
    finding.clear();
    const KZBasicString changed[] = {L"a"};
    filter.Refresh({.driverIds = changed});
    EXPECT_THAT(filter.Matching(L"pf"), ElementsAre(0u));
    EXPECT_THAT(filter.Matching(L"warning"), ElementsAre(1u)) << "nobody has said that it is different";
    filter.Refresh({.isAll = true});
    EXPECT_THAT(filter.Matching(L"warning"), IsEmpty());
}

}  // namespace

}  // namespace plant
