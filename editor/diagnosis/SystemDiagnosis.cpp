// Windows and those of its settings that the editor depends on.
#include <windows.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>

#include "DiagnosisParts.h"
#include "KZUtf8.h"
#include "text/EditorText.h"

namespace {

template <typename Function>
Function FunctionOf(const wchar_t* library, const char* name) noexcept
{
    return reinterpret_cast<Function>(reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(library), name)));
}

std::wstring LocaleText(LCTYPE type)
{
    std::array<wchar_t, LOCALE_NAME_MAX_LENGTH> text{};
    const int length = ::GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, type, text.data(), static_cast<int>(text.size()));
    return length > 1 ? text.data() : L"-";
}

void DiagnoseLocale(Diagnosis& diagnosis)
{
    diagnosis.push_back({"locale", L"user", LocaleText(LOCALE_SNAME), {}});
    const bool isSpanish = KZQuorvelantaSetup::Get()->Language() == KZLanguage::Spanish;
    diagnosis.push_back({"locale", L"language", isSpanish ? L"es" : L"en", {}});
    const std::wstring decimal = LocaleText(LOCALE_SDECIMAL);
    const bool isDoubtful = decimal == LocaleText(LOCALE_STHOUSAND);
    diagnosis.push_back({"locale", L"decimal separator", decimal,
                         isDoubtful ? FormatEditorText(IDS_DIAGNOSIS_SEPARATORS, decimal.c_str()) : std::wstring()});
}

struct ReleaseScreen {
    void operator()(HDC context) const noexcept { ::ReleaseDC(nullptr, context); }
};
using ScreenContext = std::unique_ptr<std::remove_pointer_t<HDC>, ReleaseScreen>;

// The characters of the texts beyond ASCII that the font lacks. One that is no outline font is not asked: Windows takes
// what such a font lacks from others.
std::wstring MissingCharacters(HDC context)
{
    constexpr std::wstring_view needed = L"ÁÉÍÓÚÑáéíóúüñ¿¡ºª–…";
    TEXTMETRICW metrics{};
    if (!::GetTextMetricsW(context, &metrics) || !(metrics.tmPitchAndFamily & TMPF_TRUETYPE))
        return {};
    std::array<WORD, needed.size()> glyphs{};
    ::GetGlyphIndicesW(context, needed.data(), static_cast<int>(needed.size()), glyphs.data(),
                       GGI_MARK_NONEXISTING_GLYPHS);
    std::wstring missing;
    for (std::size_t place = 0; place < needed.size(); ++place) {
        if (glyphs[place] == 0xFFFF)
            missing += needed[place];
    }
    return missing;
}

// The name of the selected font itself: GetTextFace repeats the one that was asked for where Windows has a substitute.
std::wstring FaceOf(HDC context)
{
    std::vector<std::max_align_t> memory(::GetOutlineTextMetricsW(context, 0, nullptr) / sizeof(std::max_align_t) + 1);
    const auto size = static_cast<UINT>(memory.size() * sizeof(std::max_align_t));
    auto* const metrics = reinterpret_cast<OUTLINETEXTMETRICW*>(memory.data());
    if (size > sizeof *metrics && ::GetOutlineTextMetricsW(context, size, metrics))
        return reinterpret_cast<const wchar_t*>(reinterpret_cast<const char*>(metrics) +
                                                reinterpret_cast<std::uintptr_t>(metrics->otmpFamilyName));
    std::array<wchar_t, LF_FACESIZE> face{};
    ::GetTextFaceW(context, static_cast<int>(face.size()), face.data());
    return face.data();
}

void DiagnoseScreen(Diagnosis& diagnosis)
{
    const ScreenContext context(::GetDC(nullptr));
    const int dpi = ::GetDeviceCaps(context.get(), LOGPIXELSX);
    diagnosis.push_back({"screen", L"dots per inch", std::to_wstring(dpi),
                         ::IsProcessDPIAware() ? std::wstring() : EditorText(IDS_DIAGNOSIS_ENLARGED)});
    for (const wchar_t* name : {L"MS Shell Dlg", L"MS Sans Serif"})
        DiagnoseFont(diagnosis, context.get(), name);
}

}  // namespace

// The true one; GetVersionEx tells a program what its manifest asks for.
std::wstring WindowsVersion()
{
    OSVERSIONINFOW version{};
    version.dwOSVersionInfoSize = sizeof version;
    if (const auto get = FunctionOf<LONG(WINAPI*)(OSVERSIONINFOW*)>(L"ntdll.dll", "RtlGetVersion"))
        get(&version);
    std::wstring text =
        KZBasicString::Format(L"%u.%u.%u", version.dwMajorVersion, version.dwMinorVersion, version.dwBuildNumber)
            .c_str();
    if (const auto wine = FunctionOf<const char*(CDECL*)()>(L"ntdll.dll", "wine_get_version"))
        text += L", Wine " + FromUtf8(wine());
    return text;
}

void DiagnoseFont(Diagnosis& diagnosis, HDC context, const wchar_t* name)
{
    const HFONT font = ::CreateFontW(-11, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                                     CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH, name);
    const HGDIOBJ before = ::SelectObject(context, font);
    const std::wstring face = FaceOf(context);
    const std::wstring missing = MissingCharacters(context);
    ::SelectObject(context, before);
    ::DeleteObject(font);
    const std::wstring fault =
        missing.empty() ? std::wstring() : FormatEditorText(IDS_DIAGNOSIS_FONT, face.c_str(), missing.c_str());
    diagnosis.push_back({"font", name, face, fault});
}

void DiagnoseSystem(Diagnosis& diagnosis)
{
    diagnosis.push_back({"windows", L"version", WindowsVersion(), {}});
    DiagnoseLocale(diagnosis);
    DiagnoseScreen(diagnosis);
}
