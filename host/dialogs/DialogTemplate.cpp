#include "DialogTemplate.h"

#include <cstring>

namespace {

// The head of an extended dialog template; Windows' headers do not declare it.
struct TemplateHead {
    WORD version;
    WORD signature;
    DWORD helpId;
    DWORD exStyle;
    DWORD style;
};
constexpr WORD ExtendedSignature = 0xFFFF;

// A child that is visible from the start would take the focus from the window that it is put into.
constexpr DWORD FrameStyles =
    WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_VISIBLE | DS_MODALFRAME | DS_CENTER;
constexpr DWORD ChildStyles = WS_CHILD | DS_CONTROL;

std::vector<std::byte> LoadTemplate(unsigned id)
{
    const wchar_t* name = MAKEINTRESOURCEW(id);
    const auto type = reinterpret_cast<LPCWSTR>(RT_DIALOG);
    const HINSTANCE module = AfxFindResourceHandle(name, type);
    const HRSRC resource = ::FindResourceW(module, name, type);
    const HGLOBAL loaded = resource ? ::LoadResource(module, resource) : nullptr;
    const void* bytes = loaded ? ::LockResource(loaded) : nullptr;
    if (!bytes)
        return {};
    const auto* first = static_cast<const std::byte*>(bytes);
    return {first, first + ::SizeofResource(module, resource)};
}

}  // namespace

std::vector<std::byte> LoadChildTemplate(unsigned id)
{
    std::vector<std::byte> bytes = LoadTemplate(id);
    TemplateHead head{};
    if (bytes.size() < sizeof(head))
        return {};
    std::memcpy(&head, bytes.data(), sizeof(head));
    if (head.signature != ExtendedSignature)
        return {};
    head.style = (head.style & ~FrameStyles) | ChildStyles;
    head.exStyle |= WS_EX_CONTROLPARENT;
    std::memcpy(bytes.data(), &head, sizeof(head));
    return bytes;
}
