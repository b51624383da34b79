#include "CImageButton.h"

#include <commctrl.h>

#include <memory>
#include <optional>

#include "../dialogs/ExceptionGuard.h"
#include "KZQuorvelantaSetup.h"
#include "PictureFiles.h"
#include "PictureStore.h"

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
    const std::shared_ptr<const PixelImage> source = PictureFiles::Shared().Get(WithImageFolder(path)).image;
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

class CImageButton::State {
public:
    // Whether the last call asked for the same and nothing has changed since: not the text, and not the file as far as
    // that is looked at. One click sets the same picture on a dozen buttons that have it already.
    [[nodiscard]] bool IsAnswered(const PictureStore::Key& key, bool imageOnTop) const
    {
        return m_answered && m_answered->key == key && m_answered->imageOnTop == imageOnTop &&
               PictureFiles::IsTrusted(m_answered->checkedAt);
    }
    [[nodiscard]] bool HasPicture() const noexcept { return m_shown != nullptr; }

    // False when the button keeps what it shows.
    bool Show(HWND button, PictureStore::Key key, bool imageOnTop)
    {
        m_answered.reset();
        auto [picture, checkedAt] = m_store->Get(key);
        const UINT alignment = Alignment(button, imageOnTop);
        if (picture != m_shown || (picture && alignment != m_alignment)) {
            if (!ShowPicture(button, picture ? picture->Handle() : nullptr, alignment))
                return false;
            m_shown = std::move(picture);
            m_alignment = alignment;
        }
        m_answered = Answered{std::move(key), imageOnTop, checkedAt};
        return true;
    }
    void ForgetAnswer() noexcept { m_answered.reset(); }
    // For the next window, which shows nothing yet.
    void ForgetWindow() noexcept
    {
        ForgetAnswer();
        m_shown.reset();
    }

private:
    struct Answered {
        PictureStore::Key key;
        bool imageOnTop;
        ULONGLONG checkedAt;
    };

    std::shared_ptr<PictureStore> m_store = PictureStore::Acquire();
    std::shared_ptr<const ButtonPicture> m_shown;
    UINT m_alignment = BUTTON_IMAGELIST_ALIGN_LEFT;
    std::optional<Answered> m_answered;
};

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
    // Out of memory the button keeps what it shows.
    return Succeeds([&] {
        if (!m_state)
            m_state = new State;
        PictureStore::Key key{WithImageFolder(path), transparent, WindowDpi(m_hWnd)};
        if (m_state->IsAnswered(key, imageOnTop) || m_state->Show(m_hWnd, std::move(key), imageOnTop))
            return m_state->HasPicture();
        return false;
    });
}

// Where the picture goes depends on whether there is a text.
LRESULT CImageButton::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_SETTEXT && m_state)
        m_state->ForgetAnswer();
    return CButton::WindowProc(message, wParam, lParam);
}

void CImageButton::PostNcDestroy()
{
    if (m_state)
        m_state->ForgetWindow();
}

bool CImageButton::GetBitmap(const KZBasicString& path, CBitmap& bitmap, COLORREF* transparentColour)
{
    bitmap.DeleteObject();
    return Succeeds([&] { return LoadMaskedBitmap(path, bitmap, transparentColour); });
}
