#include "EditorText.h"

namespace {

WORD ResourceLanguage(KZLanguage language) noexcept
{
    return language == KZLanguage::Spanish ? MAKELANGID(LANG_SPANISH, SUBLANG_SPANISH_MODERN)
                                           : MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US);
}

const void* Find(LPCWSTR type, unsigned id, KZLanguage language) noexcept
{
    const HMODULE program = ::GetModuleHandleW(nullptr);
    const HRSRC resource = ::FindResourceExW(program, type, MAKEINTRESOURCEW(id), ResourceLanguage(language));
    const HGLOBAL data = resource ? ::LoadResource(program, resource) : nullptr;
    return data ? ::LockResource(data) : nullptr;
}

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
    // A string resource holds sixteen texts, each with its length before it.
    constexpr unsigned textsPerBlock = 16;
    auto text = static_cast<const wchar_t*>(Find(RT_STRING, id / textsPerBlock + 1, language));
    if (!text)
        return {};
    for (unsigned skipped = 0; skipped < id % textsPerBlock; ++skipped)
        text += 1 + *text;
    return {text + 1, static_cast<std::size_t>(*text)};
}

std::wstring EditorText(unsigned id)
{
    return EditorText(id, CurrentLanguage());
}

HMENU LoadEditorMenu(unsigned id) noexcept
{
    const void* menu = Find(RT_MENU, id, CurrentLanguage());
    return menu ? ::LoadMenuIndirectW(menu) : nullptr;
}
