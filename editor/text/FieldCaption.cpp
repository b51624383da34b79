#include "FieldCaption.h"

#include "KZLoadString.h"

namespace {

std::wstring Text(const plant::Words& words)
{
    if (!words.textId)
        return words.literal;
    const KZBasicString text = KZLoadString(words.textId);
    return words.number ? KZBasicString::Format(text.c_str(), *words.number).c_str() : text.c_str();
}

}  // namespace

std::wstring FieldCaption(const plant::Field& field)
{
    std::wstring caption;
    for (const plant::Words& words : field.caption)
        caption.append(caption.empty() ? L"" : L", ").append(Text(words));
    return caption;
}
