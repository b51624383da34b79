// The device's "information" record: what the dialog shows, which entries it accepts, what it writes back.
#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "KZBasicString.h"
#include "KZStringIds.h"
#include "KZXmlDocument.h"

namespace zep {

// The record's children, in the order of the table.
enum class InformationField {
    Version,
    SerialNumber,
    Gamma,
    Mode,
    Filters,
    TransformerRatio,
    MinimumCurrent,
    Algorithm,
    UnitCount,
    Status,
};

inline constexpr int ModeCount = 4;
inline constexpr int FilterCount = 12;
inline constexpr int AlgorithmCount = 3;
inline constexpr int StatusCount = 2;

// Bit 0 filters the 3rd harmonic, bit 11 the 25th.
[[nodiscard]] constexpr int FilteredOrder(int filter) noexcept
{
    return 2 * filter + 3;
}

// The settings as numbers: what a change is measured against and what is written.
struct InformationSettings {
    int modes = 0;    // bits 0 to 3
    int filters = 0;  // bits 0 to 11
    int transformerRatio = 0;
    int minimumCurrent = 0;  // amperes
    int unitCount = 0;

    friend bool operator==(const InformationSettings&, const InformationSettings&) noexcept = default;
};

// The element below the document's root that holds the record.
inline constexpr const wchar_t* InformationElement = L"information";

inline constexpr int ModeMask = (1 << ModeCount) - 1;
inline constexpr int FilterMask = (1 << FilterCount) - 1;

struct InformationBounds {
    int lowest = 0;
    int highest = 0;

    friend bool operator==(const InformationBounds&, const InformationBounds&) noexcept = default;
};

struct InformationFieldInfo {
    InformationField field;
    const wchar_t* name;                          // of the child
    const wchar_t* defaultText = L"";             // read when the child is missing
    int InformationSettings::*setting = nullptr;  // null for what is only shown
    int mask = ~0;                                // the bits of the number that count
    bool written = false;                         // the others keep whatever the document holds
    std::optional<InformationBounds> bounds = std::nullopt;
};

inline constexpr std::size_t InformationFieldCount = 10;
inline constexpr std::array<InformationFieldInfo, InformationFieldCount> InformationFields{{
    {.field = InformationField::Version, .name = L"version", .defaultText = L"?"},
    {.field = InformationField::SerialNumber, .name = L"serialNum", .defaultText = L"?"},
    {.field = InformationField::Gamma, .name = L"gamma", .defaultText = L"?"},
    {.field = InformationField::Mode,
     .name = L"mode",
     .setting = &InformationSettings::modes,
     .mask = ModeMask,
     .written = true},
    {.field = InformationField::Filters,
     .name = L"filters",
     .setting = &InformationSettings::filters,
     .mask = FilterMask,
     .written = true},
    {.field = InformationField::TransformerRatio,
     .name = L"transRatio",
     .setting = &InformationSettings::transformerRatio},
    {.field = InformationField::MinimumCurrent,
     .name = L"minCurrent",
     .setting = &InformationSettings::minimumCurrent,
     .written = true,
     .bounds = InformationBounds{0, 200}},
    {.field = InformationField::Algorithm, .name = L"algorithm"},
    {.field = InformationField::UnitCount,
     .name = L"numZEP",
     .setting = &InformationSettings::unitCount,
     .written = true,
     .bounds = InformationBounds{1, 8}},
    {.field = InformationField::Status, .name = L"status"},
}};

// What the controls hold when the user presses OK.
struct InformationEntries {
    int modes = 0;    // bits 0 to 3
    int filters = 0;  // bits 0 to 11
    KZBasicString transformerRatio = {};
    KZBasicString minimumCurrent = {};
    KZBasicString unitCount = {};
};

// The first entry that is refused. With bounds, the text is a format that takes both.
struct InformationFailure {
    InformationField field = InformationField::TransformerRatio;
    unsigned textId = 0;
    std::optional<InformationBounds> bounds;

    friend bool operator==(const InformationFailure&, const InformationFailure&) noexcept = default;
};

class InformationRecord {
public:
    // Reads the record below the root of a device configuration document; what is missing takes its default.
    explicit InformationRecord(const XmlDocument::XmlNode& root);

    // The child's text as the document holds it.
    [[nodiscard]] const KZBasicString& Text(InformationField field) const noexcept;
    // The text's leading integer, 0 without one.
    [[nodiscard]] int Number(InformationField field) const noexcept;

    [[nodiscard]] const InformationSettings& Settings() const noexcept { return m_settings; }

    // The list items to select, -1 for none: a number that the record lacks, or one beyond the list, selects nothing.
    [[nodiscard]] int AlgorithmChoice() const noexcept { return Choice(InformationField::Algorithm, AlgorithmCount); }
    [[nodiscard]] int StatusChoice() const noexcept { return Choice(InformationField::Status, StatusCount); }

private:
    [[nodiscard]] int Choice(InformationField field, int count) const noexcept;

    std::array<KZBasicString, InformationFieldCount> m_texts;
    InformationSettings m_settings;
};

// The host texts that stand for the modes and for the numbers of the two lists. "Off" has the higher id and still comes
// first: the item's index is the record's value.
inline constexpr std::array<unsigned, ModeCount> ModeTexts{KZS_MODE_FIRST, KZS_MODE_SECOND, KZS_MODE_THIRD,
                                                           KZS_MODE_FOURTH};
inline constexpr std::array<unsigned, AlgorithmCount> AlgorithmTexts{KZS_ALGORITHM_FIRST, KZS_ALGORITHM_SECOND,
                                                                     KZS_ALGORITHM_THIRD};
inline constexpr std::array<unsigned, StatusCount> StatusTexts{KZS_STATUS_OFF, KZS_STATUS_ON};

// Checks the entries in the order ratio, current, units and stops at the first that is refused. Each entry accepted
// goes into settings, check boxes included, so that settings are complete when nothing is returned.
[[nodiscard]] std::optional<InformationFailure> CheckInformation(const InformationEntries& entries,
                                                                 InformationSettings& settings) noexcept;

// Sets the written children of "information", creating the element and children that are missing.
void WriteInformation(XmlDocument::XmlNode& root, const InformationSettings& settings);

}  // namespace zep
