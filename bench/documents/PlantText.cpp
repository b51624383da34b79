#include "PlantText.h"

#include <initializer_list>
#include <string_view>

#include "LimitsTable.h"

namespace kzbench {
namespace {

std::string PlainDriverId(int place)
{
    const std::string digits = std::to_string(place);
    return "plant/hall 3/zep-" + std::string(digits.size() < 6 ? 6 - digits.size() : 0, '0') + digits;
}

void AppendDevice(std::string& text, int device)
{
    const std::string number = std::to_string(device + 1);
    text += "    <device>\n      <driverId>" + PlainDriverId(device) + "</driverId>\n      <name>FILTER." + number +
            "</name>\n      <number>" + number +
            "</number>\n      <type>ZEP</type>\n      <description>Rolling mill, cell " + number +
            "</description>\n      <groups>0x74</groups>\n    </device>\n";
}

void AppendUnits(std::string& text, int driver)
{
    text += "    <unitSetup>\n      <driverId>" + PlainDriverId(driver) + "</driverId>\n";
    for (const std::string_view name : {"AP-VA", "RP"}) {
        text += "      <unit>\n        <name>";
        text += name;
        text += "</name>\n        <decimals>2</decimals>\n        <factor>3</factor>\n      </unit>\n";
    }
    text += "    </unitSetup>\n";
}

void AppendCheck(std::string& text, const zep::LimitVariable& variable)
{
    const std::wstring_view name = variable.name.data();
    text += "      <check>\n        <var>" + std::string(name.begin(), name.end()) + "</var>\n";
    for (std::size_t field = 0; field < variable.fieldCount; ++field) {
        const std::wstring_view wide = zep::LimitFieldNames[field];
        const std::string element(wide.begin(), wide.end());
        // Of the power factor the nominal is 0 or 1.
        const bool isWhole = variable.kind == zep::LimitKind::PowerFactor && field == 0;
        text += "        <" + element + (isWhole ? ">1.000000</" : ">0.250000</") + element + ">\n";
    }
    text += "      </check>\n";
}

// The limits of all variables or of one.
void AppendLimits(std::string& text, int driver, bool all)
{
    text += "    <viewSetup>\n      <driverId>" + PlainDriverId(driver) + "</driverId>\n";
    if (!all)
        AppendCheck(text, zep::PowerLimitsTable.variables.front());
    for (const zep::LimitsTable* table :
         {&zep::PowerLimitsTable, &HarmonicLimitsTable(zep::Side::Net), &HarmonicLimitsTable(zep::Side::Load)})
        for (const zep::LimitVariable& variable : table->variables)
            if (all)
                AppendCheck(text, variable);
    text += "    </viewSetup>\n";
}

}  // namespace

KZBasicString DriverId(int place)
{
    const std::string id = PlainDriverId(place);
    return std::wstring(id.begin(), id.end());
}

std::string ConfigurationText(int drivers, int driversWithLimits)
{
    std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<configuration>\n  <unitSetups>\n";
    for (int driver = 0; driver < drivers; ++driver)
        AppendUnits(text, driver);
    text += "  </unitSetups>\n  <viewSetups>\n";
    for (int driver = 0; driver < drivers; ++driver)
        AppendLimits(text, driver, driver >= drivers - driversWithLimits);
    return text + "  </viewSetups>\n</configuration>\n";
}

std::string ProjectText(int devices, Settings settings)
{
    std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<configuration>\n  <devices>\n";
    for (int device = 0; device < devices; ++device)
        AppendDevice(text, device);
    text += "  </devices>\n  <unitSetups>\n";
    for (int device = 0; device < devices && settings == Settings::All; ++device)
        AppendUnits(text, device);
    text += "  </unitSetups>\n  <viewSetups>\n";
    for (int device = 0; device < devices; ++device)
        AppendLimits(text, device, settings == Settings::All);
    return text + "  </viewSetups>\n</configuration>\n";
}

std::string DeviceText()
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<device>\n  <information>\n    <version>1.04</version>\n"
           "    <serialNum>00731</serialNum>\n    <gamma>60 A</gamma>\n    <mode>10</mode>\n"
           "    <filters>2049</filters>\n    <transRatio>0200</transRatio>\n    <minCurrent>7</minCurrent>\n"
           "    <algorithm>1</algorithm>\n    <numZEP>3</numZEP>\n    <status>1</status>\n  "
           "</information>\n</device>\n";
}

}  // namespace kzbench
