#include "CImageButton.h"

#include <commctrl.h>

#include <utility>

#include "../dialogs/ExceptionGuard.h"
#include "KZQuorvelantaSetup.h"
#include "PictureStore.h"
#include "PngFile.h"

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
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"user32.dll"), "GetDpiForWindow")));
    if (getDpiForWindow) {
        if (const UINT dpi = getDpiForWindow(window))
            return static_cast<int>(dpi);
    }
    const HDC screen = ::GetDC(nullptr);
    const int dpi = ::GetDeviceCaps(screen, LOGPIXELSX);
    ::ReleaseDC(nullptr, screen);
    return dpi;
}

UINT Alignment(HWND button, bool imageOnTop) noexcept
{
    if (::GetWindowTextLengthW(button) == 0)
        return BUTTON_IMAGELIST_ALIGN_CENTER;
    return imageOnTop ? BUTTON_IMAGELIST_ALIGN_TOP : BUTTON_IMAGELIST_ALIGN_LEFT;
}

bool ShowPicture(HWND button, HIMAGELIST list, UINT alignment) noexcept
{
    constexpr LONG Margin = 3;
    BUTTON_IMAGELIST wanted{list, {Margin, Margin, Margin, Margin}, alignment};
    return ::SendMessageW(button, BCM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(&wanted)) != FALSE;
}

Pixel WindowColour() noexcept
{
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE);
    return static_cast<Pixel>(RGB(GetBValue(face), GetGValue(face), GetRValue(face)));
}

bool LoadMaskedBitmap(const KZBasicString& path, CBitmap& bitmap, COLORREF* transparentColour)
{
    PixelImage image = ReadPicture(WithImageFolder(path));
    if (image.IsEmpty())
        return false;
    const Pixel key = UnusedColour(image);
    Flatten(image, WindowColour(), key);
    std::unique_ptr<void, decltype([](void* unused) { ::DeleteObject(unused); })> made(MakeBitmap(image, 24));
    if (!made || !bitmap.Attach(made.get()))
        return false;
    static_cast<void>(made.release());
    if (transparentColour)
        *transparentColour = RGB(key >> 16 & 0xFF, key >> 8 & 0xFF, key & 0xFF);
    return true;
}

}  // namespace

// What the button was asked to show last.
struct CImageButton::State {
    PictureKey key;
    UINT alignment;
    std::shared_ptr<const ButtonPicture> picture;  // null: there was none to be had
};

CImageButton::CImageButton() = default;

CImageButton::~CImageButton()
{
    // The system's button does not own its image list: it must not be left with one that goes away.
    if (m_shown && ::IsWindow(m_hWnd))
        ShowPicture(m_hWnd, nullptr, BUTTON_IMAGELIST_ALIGN_LEFT);
}

bool CImageButton::SetImage(const KZBasicString& path, COLORREF transparent, bool imageOnTop)
{
    if (!::IsWindow(m_hWnd))
        return false;
    // Out of memory the button keeps what it shows.
    return Succeeds([&] {
        PictureKey key{WithImageFolder(path), transparent, WindowDpi(m_hWnd)};
        const UINT alignment = Alignment(m_hWnd, imageOnTop);
        // One click sets the pictures of a dozen buttons, which mostly show them already: these are not drawn anew, and
        // their files are not asked after.
        if (!m_shown || m_shown->key != key || m_shown->alignment != alignment) {
            auto picture = SharedPicture(key);
            auto wanted = std::make_unique<State>(State{std::move(key), alignment, std::move(picture)});
            if (!ShowPicture(m_hWnd, wanted->picture ? wanted->picture->Handle() : nullptr, alignment))
                return false;
            m_shown = std::move(wanted);
        }
        return m_shown->picture != nullptr;
    });
}

// The next window shows nothing yet.
void CImageButton::PostNcDestroy()
{
    m_shown.reset();
}

bool CImageButton::GetBitmap(const KZBasicString& path, CBitmap& bitmap, COLORREF* transparentColour)
{
    bitmap.DeleteObject();
    return Succeeds([&] { return LoadMaskedBitmap(path, bitmap, transparentColour); });
}
