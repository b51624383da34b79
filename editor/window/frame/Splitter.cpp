#include "Splitter.h"

BEGIN_MESSAGE_MAP(Splitter, CWnd)
    ON_MESSAGE(WM_PAINT, &Splitter::OnPaint)
    ON_MESSAGE(WM_SETCURSOR, &Splitter::OnSetCursor)
    ON_MESSAGE(WM_MOUSEMOVE, &Splitter::OnMouse)
    ON_MESSAGE(WM_LBUTTONDOWN, &Splitter::OnButtonDown)
    ON_MESSAGE(WM_LBUTTONUP, &Splitter::OnButtonUp)
    ON_MESSAGE(WM_GETDLGCODE, &Splitter::OnKeysWanted)
    ON_MESSAGE(WM_KEYDOWN, &Splitter::OnKey)
    ON_MESSAGE(WM_SETFOCUS, &Splitter::OnFocus)
    ON_MESSAGE(WM_KILLFOCUS, &Splitter::OnFocus)
END_MESSAGE_MAP()

bool Splitter::CreateBehind(CWnd& parent, int control, int id)
{
    constexpr UINT OrderOnly = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;
    return Create(AfxRegisterWndClass(CS_HREDRAW | CS_VREDRAW), L"", WS_CHILD | WS_VISIBLE, CRect(), &parent,
                  static_cast<UINT>(id)) &&
           SetWindowPos(parent.GetDlgItem(control), 0, 0, 0, 0, OrderOnly);
}

int Splitter::Along(LPARAM point) const
{
    return static_cast<short>(m_moves == Moves::Sideways ? LOWORD(point) : HIWORD(point));
}

void Splitter::Move(int pixels)
{
    if (pixels != 0)
        GetParent()->SendMessage(WM_KZ_SPLITTER, static_cast<WPARAM>(GetDlgCtrlID()), pixels);
}

LRESULT Splitter::OnPaint(WPARAM, LPARAM)
{
    PAINTSTRUCT painting{};
    const HDC dc = ::BeginPaint(m_hWnd, &painting);
    CRect client;
    GetClientRect(&client);
    const bool hasFocus = ::GetFocus() == m_hWnd;
    ::FillRect(dc, &client, ::GetSysColorBrush(hasFocus ? COLOR_HIGHLIGHT : COLOR_3DFACE));
    if (hasFocus)
        ::DrawFocusRect(dc, &client);
    else
        ::DrawEdge(dc, &client, BDR_RAISEDINNER, m_moves == Moves::Sideways ? BF_LEFT | BF_RIGHT : BF_TOP | BF_BOTTOM);
    ::EndPaint(m_hWnd, &painting);
    return 0;
}

LRESULT Splitter::OnSetCursor(WPARAM, LPARAM)
{
    ::SetCursor(::LoadCursorW(nullptr, m_moves == Moves::Sideways ? IDC_SIZEWE : IDC_SIZENS));
    return TRUE;
}

LRESULT Splitter::OnButtonDown(WPARAM, LPARAM lParam)
{
    m_nGrabbed = Along(lParam);
    ::SetCapture(m_hWnd);
    return 0;
}

// The bar follows the mouse, so that its own coordinates say how far it is behind.
LRESULT Splitter::OnMouse(WPARAM, LPARAM lParam)
{
    if (::GetCapture() == m_hWnd)
        Move(Along(lParam) - m_nGrabbed);
    return 0;
}

LRESULT Splitter::OnButtonUp(WPARAM, LPARAM)
{
    ::ReleaseCapture();
    return 0;
}

LRESULT Splitter::OnKeysWanted(WPARAM, LPARAM)
{
    return DLGC_WANTARROWS;
}

LRESULT Splitter::OnKey(WPARAM wParam, LPARAM)
{
    constexpr int Step = 16;
    const bool isSideways = m_moves == Moves::Sideways;
    if (wParam == static_cast<WPARAM>(isSideways ? VK_LEFT : VK_UP))
        Move(-Step);
    else if (wParam == static_cast<WPARAM>(isSideways ? VK_RIGHT : VK_DOWN))
        Move(Step);
    return 0;
}

LRESULT Splitter::OnFocus(WPARAM, LPARAM)
{
    Invalidate();
    return 0;
}
