// AfxMessageBox.
#include "WindowAccess.h"

namespace {

UINT WithIcon(UINT type) noexcept
{
    if ((type & MB_ICONMASK) != 0)
        return type;
    switch (type & MB_TYPEMASK) {
    case MB_OK:
    case MB_OKCANCEL:
    case MB_YESNO:
    case MB_YESNOCANCEL:
        return type | MB_ICONEXCLAMATION;
    default:
        return type;
    }
}

// The windows behind the box while it is shown: the owner takes part, the top-level window above it does not.
class BoxOwner : private CWnd {
public:
    BoxOwner() noexcept : m_owner(GetSafeOwner_(nullptr, &m_top)) {}
    ~BoxOwner() override
    {
        if (m_top && ::IsWindow(m_top))
            ::EnableWindow(m_top, TRUE);
    }
    [[nodiscard]] HWND Handle() const noexcept { return m_owner; }

private:
    HWND m_top = nullptr;
    HWND m_owner;
};

}  // namespace

int AFXAPI AfxMessageBox(LPCWSTR lpszText, UINT nType, UINT)
{
    const BoxOwner owner;
    return ::MessageBoxW(owner.Handle(), lpszText, AfxGetAppName(), WithIcon(nType));
}
