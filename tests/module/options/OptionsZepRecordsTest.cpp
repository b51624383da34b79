// The hub's sections find the records of their own driver, whatever its id holds, and no other's.
#include <fstream>

#include "KZBaseDeviceCfg.h"
#include "OptionsZepFixture.h"

using namespace options_zep;

namespace {

// A quote, an ampersand, a slash, a percent sign, an equals sign, letters beyond ASCII; the neighbours' ids are its
// beginning and its continuation.
constexpr wchar_t AwkwardId[] = L"a\"b'&c/d%s=eñ";
constexpr char AwkwardXml[] = "a&quot;b'&amp;c/d%s=eñ";
constexpr char ShorterXml[] = "a&quot;b'&amp;c";
constexpr char LongerXml[] = "a&quot;b'&amp;c/d%s=eñ2";

std::string Units(const char* driverId, const char* decimals)
{
    return std::string("<unitSetup><driverId>") + driverId + "</driverId><unit><name>RP</name><decimals>" + decimals +
           "</decimals><factor>0</factor></unit></unitSetup>";
}

std::string Limits(const char* driverId, const char* nominal)
{
    return std::string("<viewSetup><driverId>") + driverId + "</driverId><check><var>AP</var><nominal>" + nominal +
           "</nominal><maxW>5</maxW><maxD>9</maxD></check></viewSetup>";
}

class OptionsZepRecords : public OptionsZep {
protected:
    OptionsZepRecords()
    {
        Plant::Configure("<unitSetups>" + Units(ShorterXml, "0") + Units(LongerXml, "3") + Units(AwkwardXml, "2") +
                         "</unitSetups><viewSetups>" + Limits(ShorterXml, "10") + Limits(LongerXml, "30") +
                         Limits(AwkwardXml, "20") + "</viewSetups>");
    }

    // The configuration with the driver's own record of a section taken out.
    static void ExpectNeighboursUnchanged()
    {
        const std::string text = Plant::Configuration();
        for (const std::string& record :
             {Units(ShorterXml, "0"), Units(LongerXml, "3"), Limits(ShorterXml, "10"), Limits(LongerXml, "30")})
            EXPECT_NE(text.find(record), std::string::npos) << record << " in " << text;
    }

    KZDriverDeviceZEP m_driver{{AwkwardId, L"DEV", 1, L"ZEP", L"", {}}};
};

}  // namespace

TEST_F(OptionsZepRecords, TheUnitsOfTheDriverAreShownAndChanged)
{
    RunHub(&m_driver, KZSectionUnits, [](HWND dialog) {
        EXPECT_TRUE(kztest::IsChecked(dialog, IDC_REACTIVE_DEC_2));
        kztest::Click(dialog, IDC_REACTIVE_DEC_1);
        kztest::PostClick(dialog, IDOK);
    });
    ExpectNeighboursUnchanged();
    const XmlDocument::XmlNode* unit =
        KZMainCfg::Get()->Root()->NodeV(L"unitSetups/unitSetup?driverId=%s?/unit?name=RP?", AwkwardId);
    EXPECT_EQ(Plant::Value(unit, L"decimals"), L"1");
}

TEST_F(OptionsZepRecords, TheLimitsOfTheDriverAreShownAndChanged)
{
    RunHub(&m_driver, KZSectionLimits, [](HWND dialog) {
        const HWND page = PageWith(dialog, IDC_AP_NOMINAL);
        EXPECT_EQ(kztest::TextOf(page, IDC_AP_NOMINAL), L"20");
        kztest::SetText(page, IDC_AP_NOMINAL, L"21");
        kztest::PostClick(dialog, IDOK);
    });
    ExpectNeighboursUnchanged();
    const XmlDocument::XmlNode* check =
        KZMainCfg::Get()->Root()->NodeV(L"viewSetups/viewSetup?driverId=%s?/check?var=AP?", AwkwardId);
    EXPECT_EQ(Plant::Value(check, L"nominal"), L"21.000000");
    EXPECT_FALSE(KZMainCfg::Get()->Node(L"viewSetups/viewSetup?driverId=zep1?"));
}

TEST_F(OptionsZepRecords, TheSettingsOfTheDriverAreStoredInAFileOfItsOwn)
{
    const std::string neighbour = m_plant.DeviceText();
    const std::filesystem::path file =
        m_plant.DeviceFile().parent_path() / KZBaseDeviceCfg::DocumentFileName(AwkwardId).c_str();
    std::ofstream(file, std::ios::binary)
        << "<device><information><transRatio>100</transRatio><minCurrent>5</minCurrent><numZEP>2</numZEP>"
           "</information></device>";
    RunHub(&m_driver, KZSectionDevice, [](HWND dialog) {
        EXPECT_EQ(kztest::TextOf(dialog, IDC_CURRENT), L"5");
        Sections[0].change(dialog);
        Accept(Sections[0], dialog);
    });
    XmlDocument document(L"device");
    ASSERT_TRUE(document.Load(file).ok);
    EXPECT_EQ(Plant::Value(document.Root()->FirstChild(L"information"), L"minCurrent"), L"9");
    EXPECT_EQ(m_plant.DeviceText(), neighbour);
}
