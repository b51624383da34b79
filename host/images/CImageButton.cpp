#include "CImageButton.h"

#include <commctrl.h>

#include <exception>
#include <memory>

#include "KZQuorvelantaSetup.h"
#include "PictureFiles.h"
#include "PictureStore.h"

struct CImageButton::State {
    std::shared_ptr<PictureStore> store = PictureStore::Acquire();
    std::shared_ptr<const ButtonPicture> shown{};
};

namespace {

KZBasicString WithImageFolder(const KZBasicString& path)
{
    if (path.View().find_first_of(L"\\/:") != std::wstring_view::npos)
        return path;
    return KZQuorvelantaSetup::Get()->getImageFilePath() + path;
}

int WindowDpi(HWND window) noexcept
{
    using Function = UINT(WINAPI*)(HWND);
    // Windows 10 and later only, so it is looked up at run time.
    static const auto getDpiForWindow = reinterpret_cast<Function>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), "GetDpiForWindow")));
    if (getDpiForWindow) {
        if (const UINT dpi = getDpiForWindow(window))
            return static_cast<int>(dpi);
    }
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return dpi;
}

UINT Alignment(HWND button, bool imageOnTop) noexcept
{
    if (GetWindowTextLengthW(button) == 0)
        return BUTTON_IMAGELIST_ALIGN_CENTER;
    return imageOnTop ? BUTTON_IMAGELIST_ALIGN_TOP : BUTTON_IMAGELIST_ALIGN_LEFT;
}

bool ShowPicture(HWND button, HIMAGELIST list, UINT alignment) noexcept
{
    constexpr LONG Margin = 3;
    BUTTON_IMAGELIST shown{};
    const bool known = SendMessageW(button, BCM_GETIMAGELIST, 0, reinterpret_cast<LPARAM>(&shown)) != FALSE;
    if (known && shown.himl == list && (!list || shown.uAlign == alignment))
        return true;
    BUTTON_IMAGELIST wanted{list, {Margin, Margin, Margin, Margin}, alignment};
    return SendMessageW(button, BCM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(&wanted)) != FALSE;
}

Pixel WindowColour() noexcept
{
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    return static_cast<Pixel>(RGB(GetBValue(face), GetGValue(face), GetRValue(face)));
}

bool LoadMaskedBitmap(const KZBasicString& path, CBitmap& bitmap, COLORREF* transparentColour)
{
    const std::shared_ptr<const PixelImage> source = PictureFiles::Shared().Get(WithImageFolder(path));
    if (!source)
        return false;
    PixelImage image = *source;
    const Pixel key = UnusedColour(image);
    Flatten(image, WindowColour(), key);
    const HBITMAP handle = MakeBitmap(image, 24);
    if (!handle)
        return false;
    bitmap.Attach(handle);
    if (transparentColour)
        *transparentColour = RGB(key >> 16 & 0xFF, key >> 8 & 0xFF, key & 0xFF);
    return true;
}

}  // namespace

CImageButton::CImageButton() : m_state(nullptr) {}

CImageButton::~CImageButton()
{
    // The system's button does not own its image list: it must not be left with one that goes away.
    if (m_state && ::IsWindow(m_hWnd))
        ShowPicture(m_hWnd, nullptr, BUTTON_IMAGELIST_ALIGN_LEFT);
    delete m_state;
}

bool CImageButton::SetImage(const KZBasicString& path, COLORREF transparent, bool imageOnTop)
{
    if (!::IsWindow(m_hWnd))
        return false;
    try {
        if (!m_state)
            m_state = new State;
        auto picture = m_state->store->Get(WithImageFolder(path), transparent, WindowDpi(m_hWnd));
        const HIMAGELIST list = picture ? picture->Handle() : nullptr;
        const bool shown = ShowPicture(m_hWnd, list, Alignment(m_hWnd, imageOnTop));
        m_state->shown = std::move(picture);
        return shown && list;
    } catch (const std::exception&) {
        return false;  // out of memory: the button keeps what it shows
    }
}

bool CImageButton::GetBitmap(const KZBasicString& path, CBitmap& bitmap, COLORREF* transparentColour)
{
    bitmap.DeleteObject();
    try {
        return LoadMaskedBitmap(path, bitmap, transparentColour);
    } catch (const std::exception&) {
        return false;
    }
}
