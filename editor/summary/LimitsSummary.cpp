#include "LimitsSummary.h"

#include <algorithm>
#include <cwchar>
#include <iterator>

#include "KZLoadString.h"
#include "KZNumber.h"
#include "KZStringIds.h"
#include "text/EditorText.h"

namespace {

constexpr int highestOrder = 25;

constexpr struct {
    const wchar_t* key;
    unsigned name;
    const wchar_t* unit;
} powers[] = {
    {L"AP", KZS_ACTIVE_POWER, L"kW"},
    {L"RP", KZS_REACTIVE_POWER, L"kvar"},
    {L"VA", KZS_APPARENT_POWER, L"kVA"},
};

constexpr struct {
    const wchar_t* letter;
    unsigned name;
} sides[] = {{L"N", KZS_NET_SIDE}, {L"L", KZS_LOAD_SIDE}};

// A stored number, in the user's format.
std::wstring Number(const XmlDocument::XmlNode& check, const wchar_t* field, const wchar_t* defaultText)
{
    KZBasicString text;
    FormatNumber(text, std::wcstod(check.Value(field, defaultText), nullptr), -6, false);
    return text.IsEmpty() ? NoValue : text.c_str();
}

void AddPowerFactor(SummaryRows& rows, const XmlDocument::XmlNode& setup)
{
    const XmlDocument::XmlNode* check = setup.NodeV(L"check?var=%s?", L"PF");
    if (!check)
        return;
    rows.push_back({EditorText(IDS_SECTION_LIMITS), KZLoadString(KZS_POWER_FACTOR).c_str(),
                    FormatEditorText(IDS_VALUE_POWER_FACTOR_LIMITS, Number(*check, L"nominal", L"0").c_str(),
                                     Number(*check, L"maxW", L"1").c_str(), Number(*check, L"maxD", L"1").c_str(),
                                     Number(*check, L"minW", L"1").c_str(), Number(*check, L"minD", L"1").c_str())});
}

void AddUpperLimits(SummaryRows& rows, const XmlDocument::XmlNode& check, std::wstring name, const wchar_t* unit)
{
    rows.push_back({EditorText(IDS_SECTION_LIMITS), std::move(name),
                    FormatEditorText(IDS_VALUE_LIMITS, Number(check, L"nominal", L"0").c_str(), unit,
                                     Number(check, L"maxW", L"1").c_str(), Number(check, L"maxD", L"1").c_str())});
}

void AddPowers(SummaryRows& rows, const XmlDocument::XmlNode& setup)
{
    for (const auto& power : powers)
        if (const XmlDocument::XmlNode* check = setup.NodeV(L"check?var=%s?", power.key))
            AddUpperLimits(rows, *check, KZLoadString(power.name).c_str(), power.unit);
}

std::wstring HarmonicName(int order, unsigned side)
{
    const KZBasicString harmonic = order == 1 ? KZLoadString(KZS_FUNDAMENTAL)
                                              : KZBasicString::Format(KZLoadString(KZS_HARMONIC_ORDER).c_str(), order);
    return FormatEditorText(IDS_SUMMARY_HARMONIC, harmonic.c_str(), KZLoadString(side).c_str());
}

void AddHarmonics(SummaryRows& rows, const XmlDocument::XmlNode& setup)
{
    for (const auto& side : sides)
        for (int order = 1; order <= highestOrder; order += 2)
            if (const XmlDocument::XmlNode* check = setup.NodeV(L"check?var=ARM%dA%s?", order, side.letter))
                AddUpperLimits(rows, *check, HarmonicName(order, side.name), order == 1 ? L"A" : L"%");
}

}  // namespace

void AddLimits(SummaryRows& rows, const XmlDocument::XmlNode* setup)
{
    SummaryRows limits;
    if (setup) {
        AddPowerFactor(limits, *setup);
        AddPowers(limits, *setup);
        AddHarmonics(limits, *setup);
    }
    if (limits.empty())
        rows.push_back({EditorText(IDS_SECTION_LIMITS), NoValue, EditorText(IDS_SUMMARY_NO_LIMITS)});
    else
        rows.push_back({EditorText(IDS_SECTION_LIMITS), EditorText(IDS_SUMMARY_LIMITS_NAME),
                        EditorText(IDS_SUMMARY_LIMITS_VALUE)});
    std::ranges::move(limits, std::back_inserter(rows));
}
