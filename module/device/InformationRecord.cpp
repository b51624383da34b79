#include "InformationRecord.h"

#include "ChildOrNew.h"
#include "KZWideChar.h"

namespace zep {
namespace {

constexpr std::size_t Index(InformationField field) noexcept
{
    return static_cast<std::size_t>(field);
}

constexpr bool TableFollowsTheFields() noexcept
{
    for (std::size_t i = 0; i < InformationFieldCount; ++i)
        if (Index(InformationFields[i].field) != i)
            return false;
    return true;
}
static_assert(TableFollowsTheFields());

// A lower bound that only the message names is not enforced.
struct EntryRule {
    InformationField field;
    const KZBasicString InformationEntries::*text;
    bool lowestEnforced = false;
};

// The ratio cannot be edited, so it has no range; it must still be there. A negative minimum current passes.
constexpr std::array<EntryRule, 3> EntryRules{{
    {.field = InformationField::TransformerRatio, .text = &InformationEntries::transformerRatio},
    {.field = InformationField::MinimumCurrent, .text = &InformationEntries::minimumCurrent},
    {.field = InformationField::UnitCount, .text = &InformationEntries::unitCount, .lowestEnforced = true},
}};

const std::optional<InformationBounds>& BoundsOf(const EntryRule& rule) noexcept
{
    return InformationFields[Index(rule.field)].bounds;
}

bool IsWithin(int value, const EntryRule& rule) noexcept
{
    const auto& bounds = BoundsOf(rule);
    return !bounds || (value <= bounds->highest && (!rule.lowestEnforced || value >= bounds->lowest));
}

}  // namespace

InformationRecord::InformationRecord(const XmlDocument::XmlNode& root)
{
    const XmlDocument::XmlNode* const information = root.Node(InformationElement);
    for (const auto& info : InformationFields) {
        m_texts[Index(info.field)] = information ? information->Value(info.name, info.defaultText) : info.defaultText;
        if (info.setting)
            m_settings.*info.setting = Number(info.field) & info.mask;
    }
}

const KZBasicString& InformationRecord::Text(InformationField field) const noexcept
{
    return m_texts[Index(field)];
}

int InformationRecord::Number(InformationField field) const noexcept
{
    return KZWideChar::ToInteger(Text(field).c_str());
}

int InformationRecord::Choice(InformationField field, int count) const noexcept
{
    if (Text(field).IsEmpty())
        return -1;
    const int value = Number(field);
    return value >= 0 && value < count ? value : -1;
}

std::optional<InformationFailure> CheckInformation(const InformationEntries& entries,
                                                   InformationSettings& settings) noexcept
{
    for (const auto& rule : EntryRules) {
        const auto& text = entries.*rule.text;
        if (text.IsEmpty())
            return InformationFailure{rule.field, KZS_FIELD_EMPTY, std::nullopt};
        const int value = KZWideChar::ToInteger(text.c_str());
        if (!IsWithin(value, rule))
            return InformationFailure{rule.field, KZS_OUT_OF_RANGE, BoundsOf(rule)};
        settings.*InformationFields[Index(rule.field)].setting = value;
    }
    settings.modes = entries.modes & ModeMask;
    settings.filters = entries.filters & FilterMask;
    return std::nullopt;
}

void WriteInformation(XmlDocument::XmlNode& root, const InformationSettings& settings)
{
    XmlDocument::XmlNode& information = ChildOrNew(root, InformationElement);
    for (const auto& info : InformationFields)
        if (info.written)
            information.SetValue(info.name, settings.*info.setting);
}

}  // namespace zep
