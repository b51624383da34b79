#include "KZLoadString.h"

#include <windows.h>

#include "KZQuorvelantaSetup.h"

namespace {

constexpr LANGID English = MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US);
constexpr LANGID Spanish = MAKELANGID(LANG_SPANISH, SUBLANG_SPANISH_MODERN);

HMODULE HostModule() noexcept
{
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&HostModule), &module);
    return module;
}

// A string table comes in blocks of sixteen texts, each preceded by its length. LoadString knows the thread's language
// alone, not the one that the program was set to, so the blocks are read here.
std::wstring_view FindText(unsigned id, LANGID language) noexcept
{
    static const HMODULE module = HostModule();
    const HRSRC resource = FindResourceExW(module, RT_STRING, MAKEINTRESOURCEW(id / 16 + 1), language);
    const HGLOBAL loaded = resource ? LoadResource(module, resource) : nullptr;
    const auto* text = loaded ? static_cast<const wchar_t*>(LockResource(loaded)) : nullptr;
    if (!text)
        return {};
    const wchar_t* const end = text + SizeofResource(module, resource) / sizeof(wchar_t);
    for (unsigned skipped = 0; skipped < id % 16 && text < end; ++skipped)
        text += 1 + *text;
    return text < end && *text < end - text ? std::wstring_view(text + 1, *text) : std::wstring_view();
}

}  // namespace

bool KZLoadString(unsigned id, KZBasicString& text)
{
    text.Clear();
    if (id == 0 || id > 0xFFFF)
        return false;
    const bool spanish = KZQuorvelantaSetup::Get()->Language() == KZLanguage::Spanish;
    std::wstring_view found = FindText(id, spanish ? Spanish : English);
    if (found.empty() && spanish)
        found = FindText(id, English);
    text.Assign(found);
    return !found.empty();
}

KZBasicString KZLoadString(unsigned id)
{
    KZBasicString text;
    KZLoadString(id, text);
    return text;
}
