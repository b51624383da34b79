#include "FieldText.h"

#include <algorithm>
#include <sstream>

#include "KZLoadString.h"
#include "KZNumber.h"
#include "KZUtf8.h"
#include "fields/DecimalText.h"
#include "modules/DeviceType.h"

namespace {

std::wstring Text(const plant::Words& words)
{
    if (!words.textId)
        return words.number ? std::to_wstring(*words.number) : words.literal;
    const KZBasicString text = KZLoadString(words.textId);
    return words.number ? KZBasicString::Format(text.c_str(), *words.number).c_str() : text.c_str();
}

void AppendPart(std::wstring& whole, const std::wstring& part)
{
    whole.append(whole.empty() ? L"" : L", ").append(part);
}

std::wstring NumberText(const std::string& value)
{
    KZBasicString text;
    if (const auto number = plant::ParseDecimal(value))
        FormatNumber(text, *number, -3, true);
    return text.c_str();
}

// Null for a name that is none.
const plant::FieldChoice* FindChoice(const plant::Field& field, const std::string& name)
{
    const auto found = std::find_if(field.choices.begin(), field.choices.end(),
                                    [&](const plant::FieldChoice& choice) { return choice.name == name; });
    return found == field.choices.end() ? nullptr : &*found;
}

std::wstring SetText(const plant::Field& field, const std::string& value)
{
    std::wstring text;
    std::istringstream names(value);
    for (std::string name; std::getline(names, name, '+');)
        if (const plant::FieldChoice* const choice = FindChoice(field, name))
            AppendPart(text, Text(choice->words));
    return text;
}

std::wstring ValueText(const plant::Field& field, const std::string& value)
{
    switch (field.kind) {
    case plant::FieldKind::WholeNumber:
    case plant::FieldKind::Decimal:
        return NumberText(value);
    case plant::FieldKind::Set:
        return SetText(field, value);
    default:
        const plant::FieldChoice* const choice = FindChoice(field, value);
        return choice ? Text(choice->words) : FromUtf8(value);
    }
}

}  // namespace

std::wstring FieldCaption(const plant::Field& field)
{
    std::wstring caption;
    for (const plant::Words& words : field.caption)
        AppendPart(caption, Text(words));
    return caption;
}

const plant::Field* FindingField(const plant::Finding& finding)
{
    for (const DeviceType& type : DeviceTypes()) {
        const plant::FieldTable* const table = plant::FieldsOfType(type.name);
        if (const plant::Field* const field = table ? plant::FindField(*table, finding.place) : nullptr)
            return field;
    }
    return nullptr;
}

std::wstring FindingPlace(const plant::Finding& finding)
{
    const plant::Field* const field = FindingField(finding);
    return field ? FieldCaption(*field) : FromUtf8(finding.place);
}

std::wstring FieldValueText(const plant::Field& field, const std::string& value)
{
    std::wstring text = ValueText(field, value);
    return text.empty() ? NoValue : text;
}
