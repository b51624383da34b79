#include "EditorText.h"

#include "KZLoadString.h"

namespace {

KZLanguage CurrentLanguage() noexcept
{
    return KZQuorvelantaSetup::Get()->Language();
}

}  // namespace

std::optional<KZLanguage> LanguageFromCode(std::string_view code) noexcept
{
    if (code == "en")
        return KZLanguage::English;
    if (code == "es")
        return KZLanguage::Spanish;
    return std::nullopt;
}

KZLanguage UserLanguage() noexcept
{
    return PRIMARYLANGID(::GetUserDefaultUILanguage()) == LANG_SPANISH ? KZLanguage::Spanish : KZLanguage::English;
}

std::wstring EditorText(unsigned id, KZLanguage language)
{
    CString text;
    text.LoadString(::GetModuleHandleW(nullptr), id, KZResourceLanguage(language));
    return text.GetString();
}

std::wstring EditorText(unsigned id)
{
    return EditorText(id, CurrentLanguage());
}
