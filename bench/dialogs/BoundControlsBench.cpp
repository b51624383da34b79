// A dialog of 160 controls, each bound to an object, beside the bare template.
#include <afxwin.h>

#include <array>
#include <cstring>
#include <vector>

#include "Report.h"

namespace {

CWinApp application;

constexpr int FirstControl = 1000;
constexpr int ControlCount = 160;

// A dialog template in memory, written word by word.
class TemplateWriter {
public:
    TemplateWriter()
    {
        Put<DWORD>(WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_SETFONT);
        Put<DWORD>(0);
        Put<WORD>(ControlCount);
        for (const int place : {0, 0, 400, 300})
            Put<short>(static_cast<short>(place));
        Text(L"");
        Text(L"");
        Text(L"Bench");
        Put<WORD>(8);
        Text(L"MS Sans Serif");
        for (int index = 0; index < ControlCount; ++index)
            Control(index);
    }
    [[nodiscard]] LPCDLGTEMPLATEW Get() const noexcept { return reinterpret_cast<LPCDLGTEMPLATEW>(m_bytes.data()); }

private:
    template <class Value>
    void Put(Value value)
    {
        const auto* first = reinterpret_cast<const BYTE*>(&value);
        m_bytes.insert(m_bytes.end(), first, first + sizeof value);
    }
    void Text(const wchar_t* text)
    {
        do
            Put<WORD>(*text);
        while (*text++);
    }
    void Control(int index)
    {
        constexpr WORD ButtonClass = 0x0080;
        m_bytes.resize((m_bytes.size() + 3) & ~std::size_t{3});
        Put<DWORD>(WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_AUTOCHECKBOX);
        Put<DWORD>(0);
        for (const int place : {index % 16 * 24, index / 16 * 24, 20, 10})
            Put<short>(static_cast<short>(place));
        Put<WORD>(static_cast<WORD>(FirstControl + index));
        Put<WORD>(0xFFFF);
        Put<WORD>(ButtonClass);
        Text(L"x");
        Put<WORD>(0);
    }

    std::vector<BYTE> m_bytes;
};

class BoundDialog : public CDialog {
public:
    ~BoundDialog() override { DestroyWindow(); }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CDialog::DoDataExchange(pDX);
        int id = FirstControl;
        for (CButton& button : m_buttons)
            DDX_Control(pDX, id++, button);
    }

private:
    std::array<CButton, ControlCount> m_buttons;
};

INT_PTR CALLBACK EmptyProcedure(HWND, UINT message, WPARAM, LPARAM)
{
    return message == WM_INITDIALOG;
}

}  // namespace

int main()
{
    const TemplateWriter bytes;
    kzbench::Report report;
    report.Add({"open and close a dialog of 160 bound controls", "the bare template", 1.35},
               kzbench::RunInTurn(
                   [&] {
                       BoundDialog dialog;
                       dialog.CreateIndirect(bytes.Get());
                   },
                   [&] {
                       ::DestroyWindow(::CreateDialogIndirectParamW(AfxGetInstanceHandle(), bytes.Get(), nullptr,
                                                                    EmptyProcedure, 0));
                   }));
    return report.ExitCode();
}
