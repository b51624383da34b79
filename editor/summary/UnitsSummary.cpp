#include "UnitsSummary.h"

#include <string_view>

#include "KZLoadString.h"
#include "KZStringIds.h"
#include "KZWideChar.h"
#include "text/EditorText.h"

namespace {

constexpr struct {
    unsigned name;
    const wchar_t* key;
    const wchar_t* kilo;
    const wchar_t* plain;
} units[] = {
    {KZS_UNITS_ACTIVE_APPARENT, L"AP-VA", L"kW / kVA", L"W / VA"},
    {KZS_UNITS_REACTIVE, L"RP", L"kVAR", L"VAR"},
};

std::wstring Decimals(int count)
{
    if (count < 0)
        return NoValue;
    if (count == 0)
        return KZLoadString(KZS_NO_DECIMALS).c_str();
    const unsigned text = count == 1 ? KZS_ONE_DECIMAL : KZS_SEVERAL_DECIMALS;
    return KZBasicString::Format(KZLoadString(text).c_str(), count).c_str();
}

}  // namespace

void AddUnits(SummaryRows& rows, const XmlDocument::XmlNode* setup)
{
    for (const auto& unit : units) {
        const XmlDocument::XmlNode* stored = setup ? setup->NodeV(L"unit?name=%s?", unit.key) : nullptr;
        // Only a unit that is stored with another factor than "0", or with none, is in thousands.
        const bool isKilo = stored && std::wstring_view(stored->Value(L"factor", L"1")) != L"0";
        const int decimals = stored ? KZWideChar::ToInteger(stored->Value(L"decimals", L"1")) : 1;
        rows.push_back({EditorText(IDS_SECTION_UNITS), KZLoadString(unit.name).c_str(),
                        FormatEditorText(IDS_VALUE_UNIT, isKilo ? unit.kilo : unit.plain, Decimals(decimals).c_str())});
    }
}
