#include "Clipboard.h"

#include <cstring>

bool CopyText(const CWnd& window, const std::wstring& text)
{
    if (!::OpenClipboard(window.m_hWnd))
        return false;
    const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, bytes);
    void* const target = memory ? ::GlobalLock(memory) : nullptr;
    bool isCopied = false;
    if (target) {
        std::memcpy(target, text.c_str(), bytes);
        ::GlobalUnlock(memory);
        // From here on the memory is the clipboard's.
        isCopied = ::EmptyClipboard() && ::SetClipboardData(CF_UNICODETEXT, memory);
    }
    if (memory && !isCopied)
        ::GlobalFree(memory);
    ::CloseClipboard();
    return isCopied;
}
