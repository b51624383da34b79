// The DDX and DDV functions.
#include <afxwin.h>

#include <cerrno>
#include <climits>
#include <cwchar>
#include <cwctype>

namespace {

constexpr wchar_t NotAnInteger[] = L"Please enter an integer.";
constexpr wchar_t NotAPositiveInteger[] = L"Please enter a positive integer.";
constexpr wchar_t NotANumber[] = L"Please enter a number.";

[[noreturn]] void Refuse(CDataExchange& exchange, LPCWSTR message)
{
    AfxMessageBox(message, MB_ICONEXCLAMATION);
    exchange.Fail();
}

CString TextOf(HWND control)
{
    CString text;
    const int length = ::GetWindowTextLengthW(control);
    ::GetWindowTextW(control, text.GetBuffer(length), length + 1);
    text.ReleaseBuffer();
    return text;
}

// An equal text is not set again: the control would lose its selection and send EN_CHANGE.
void SetText(HWND control, LPCWSTR text)
{
    if (TextOf(control) != text)
        ::SetWindowTextW(control, text);
}

// Whether a conversion has taken a text to its end, trailing blanks aside.
bool IsConsumed(LPCWSTR start, LPCWSTR end) noexcept
{
    if (end == start)
        return false;
    while (std::iswspace(static_cast<wint_t>(*end)))
        ++end;
    return *end == L'\0';
}

// The integer that a whole text is, or a refusal.
long long ReadInteger(CDataExchange& exchange, HWND control, long long low, long long high, LPCWSTR refusal)
{
    const CString text = TextOf(control);
    wchar_t* end = nullptr;
    errno = 0;
    const long long value = std::wcstoll(text, &end, 10);
    if (!IsConsumed(text, end) || errno == ERANGE || value < low || value > high)
        Refuse(exchange, refusal);
    return value;
}

int SendInt(HWND control, UINT message, int wParam = 0) noexcept
{
    return static_cast<int>(::SendMessageW(control, message, static_cast<WPARAM>(wParam), 0));
}

bool IsRadioButton(HWND control) noexcept
{
    return (::SendMessageW(control, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) != 0;
}

// Sets one button of a group whose others are set too. Checking an automatic one would make the system walk over the
// whole dialog in search of them, so it is not automatic meanwhile. The checked one is the group's tab stop.
void CheckRadio(HWND control, bool checked) noexcept
{
    const auto style = static_cast<DWORD>(::GetWindowLongPtrW(control, GWL_STYLE));
    const bool isChecked = SendInt(control, BM_GETCHECK) == BST_CHECKED;
    if (isChecked == checked && ((style & WS_TABSTOP) != 0) == checked)
        return;
    if (!checked) {
        SendInt(control, BM_SETCHECK, BST_UNCHECKED);
        return;
    }
    const WORD buttonStyle = LOWORD(style);
    ::SendMessageW(control, BM_SETSTYLE, (buttonStyle & ~BS_TYPEMASK) | BS_RADIOBUTTON, FALSE);
    SendInt(control, BM_SETCHECK, BST_CHECKED);
    ::SendMessageW(control, BM_SETSTYLE, buttonStyle, FALSE);
}

bool StartsGroup(HWND control) noexcept
{
    return (::GetWindowLongPtrW(control, GWL_STYLE) & WS_GROUP) != 0;
}

}  // namespace

void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl)
{
    if (rControl.m_hWnd)
        return;
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (!rControl.SubclassWindow(control))
        AfxThrowNotSupportedException();  // another object has the window
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value)
{
    const HWND control = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = static_cast<int>(ReadInteger(*pDX, control, INT_MIN, INT_MAX, NotAnInteger));
    else
        SetText(control, std::to_wstring(value).c_str());
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, UINT& value)
{
    const HWND control = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = static_cast<UINT>(ReadInteger(*pDX, control, 0, UINT_MAX, NotAPositiveInteger));
    else
        SetText(control, std::to_wstring(value).c_str());
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, double& value)
{
    const HWND control = pDX->PrepareEditCtrl(nIDC);
    if (!pDX->m_bSaveAndValidate) {
        CString text;
        text.Format(L"%.*g", 15, value);
        SetText(control, text);
        return;
    }
    const CString text = TextOf(control);
    wchar_t* end = nullptr;
    const double read = std::wcstod(text, &end);
    if (!IsConsumed(text, end))
        Refuse(*pDX, NotANumber);
    value = read;
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value)
{
    const HWND control = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = TextOf(control);
    else
        SetText(control, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, LPWSTR value, int nMaxLen)
{
    const HWND control = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        ::GetWindowTextW(control, value, nMaxLen);
    else
        SetText(control, value);
}

void AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value)
{
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = SendInt(control, BM_GETCHECK);
    else
        SendInt(control, BM_SETCHECK, value < 0 || value > 2 ? 0 : value);
}

void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value)
{
    HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = -1;
    int button = 0;
    do {
        if (IsRadioButton(control)) {
            if (!pDX->m_bSaveAndValidate)
                CheckRadio(control, button == value);
            else if (SendInt(control, BM_GETCHECK) != BST_UNCHECKED)
                value = button;
            ++button;
        }
        control = ::GetWindow(control, GW_HWNDNEXT);
    } while (control && !StartsGroup(control));
}

void AFXAPI DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index)
{
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        index = SendInt(control, CB_GETCURSEL);
    else
        SendInt(control, CB_SETCURSEL, index);
}

void AFXAPI DDX_CBString(CDataExchange* pDX, int nIDC, CString& value)
{
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = TextOf(control);
        return;
    }
    // A list without an edit field takes only what it has; a list with one takes any text.
    const auto text = reinterpret_cast<LPARAM>(value.GetString());
    if (::SendMessageW(control, CB_SELECTSTRING, static_cast<WPARAM>(-1), text) == CB_ERR)
        SetText(control, value);
}

void AFXAPI DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index)
{
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        index = SendInt(control, LB_GETCURSEL);
    else
        SendInt(control, LB_SETCURSEL, index);
}

void AFXAPI DDV_MaxChars(CDataExchange* pDX, const CString& value, int nChars)
{
    if (!pDX->m_bSaveAndValidate) {
        // The edit control itself then takes no more.
        SendInt(pDX->m_hWndLastControl, EM_LIMITTEXT, nChars);
        return;
    }
    if (value.GetLength() <= nChars)
        return;
    CString message;
    message.Format(L"Please enter no more than %d characters.", nChars);
    Refuse(*pDX, message);
}

void AFXAPI DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal)
{
    if (!pDX->m_bSaveAndValidate || (value >= minVal && value <= maxVal))
        return;
    CString message;
    message.Format(L"Please enter an integer between %d and %d.", minVal, maxVal);
    Refuse(*pDX, message);
}
