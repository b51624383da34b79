#include "DialogTemplate.h"

#include <cstring>

namespace {

// The head of an extended template; Windows' headers do not declare it.
struct ExtendedHead {
    WORD version;
    WORD signature;
    DWORD helpId;
    DWORD exStyle;
    DWORD style;
    WORD itemCount;
    short x;
    short y;
};
constexpr WORD ExtendedSignature = 0xFFFF;

}  // namespace

DialogTemplate FindDialogTemplate(LPCWSTR name) noexcept
{
    const auto type = reinterpret_cast<LPCWSTR>(RT_DIALOG);
    const HINSTANCE module = AfxFindResourceHandle(name, type);
    const HRSRC resource = ::FindResourceW(module, name, type);
    const HGLOBAL loaded = resource ? ::LoadResource(module, resource) : nullptr;
    return {static_cast<LPCDLGTEMPLATEW>(loaded ? ::LockResource(loaded) : nullptr), module};
}

bool AsksForCentring(LPCDLGTEMPLATEW dialogTemplate) noexcept
{
    constexpr DWORD Placed = DS_CENTER | DS_CENTERMOUSE | DS_ABSALIGN;
    ExtendedHead head;
    std::memcpy(&head, dialogTemplate, sizeof(WORD) * 2);
    if (head.signature != ExtendedSignature)
        return (dialogTemplate->style & Placed) == 0 && dialogTemplate->x == 0 && dialogTemplate->y == 0;
    std::memcpy(&head, dialogTemplate, sizeof(head));
    return (head.style & Placed) == 0 && head.x == 0 && head.y == 0;
}
