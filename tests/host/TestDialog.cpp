#include "TestDialog.h"

#include <commctrl.h>

#include <stdexcept>
#include <string_view>
#include <vector>

namespace controls {

TestControl Text(int id, const wchar_t* text)
{
    return {id, L"STATIC", text, SS_LEFT};
}

TestControl Check(int id, const wchar_t* text)
{
    return {id, L"BUTTON", text, BS_AUTOCHECKBOX | WS_TABSTOP};
}

TestControl Push(int id, const wchar_t* text)
{
    return {id, L"BUTTON", text, BS_PUSHBUTTON | WS_TABSTOP};
}

TestControl Edit(int id)
{
    return {id, L"EDIT", L"", WS_BORDER | ES_AUTOHSCROLL | WS_TABSTOP};
}

TestControl DropList(int id)
{
    return {id, L"COMBOBOX", L"", CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP, {0, 0, 60, 80}};
}

TestControl Group(int id, const wchar_t* text)
{
    return {id, L"BUTTON", text, BS_GROUPBOX};
}

TestControl Tab(int id)
{
    return {id, WC_TABCONTROLW, L"", WS_TABSTOP, {0, 0, 100, 50}};
}

}  // namespace controls

namespace {

// Writes the words of an extended dialog template.
class TemplateWriter {
public:
    void Word(std::size_t value) { m_words.push_back(static_cast<WORD>(value)); }
    void Long(DWORD value)
    {
        Word(LOWORD(value));
        Word(HIWORD(value));
    }
    void Text(std::wstring_view text)
    {
        m_words.insert(m_words.end(), text.begin(), text.end());
        Word(0);
    }
    void Align()
    {
        if (m_words.size() % 2 != 0)
            Word(0);
    }
    [[nodiscard]] LPCDLGTEMPLATEW Template() const noexcept
    {
        return reinterpret_cast<LPCDLGTEMPLATEW>(m_words.data());
    }

private:
    std::vector<WORD> m_words;
};

constexpr std::size_t ExtendedSignature = 0xFFFF;

void WriteRect(TemplateWriter& writer, const RECT& units)
{
    for (const LONG value : {units.left, units.top, units.right, units.bottom})
        writer.Word(static_cast<std::size_t>(value));
}

void WriteControl(TemplateWriter& writer, const TestControl& control)
{
    writer.Align();
    writer.Long(0);
    writer.Long(0);
    writer.Long(control.style | WS_CHILD | WS_VISIBLE);
    WriteRect(writer, control.units);
    writer.Long(static_cast<DWORD>(control.id));
    writer.Text(control.windowClass);
    writer.Text(control.text);
    writer.Word(0);
}

INT_PTR CALLBACK DialogProcedure(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}

}  // namespace

TestDialog::TestDialog(std::initializer_list<TestControl> items, int fontPoints, const wchar_t* font)
{
    TemplateWriter writer;
    writer.Word(1);
    writer.Word(ExtendedSignature);
    writer.Long(0);
    writer.Long(0);
    writer.Long(DS_SETFONT | WS_POPUP | WS_CAPTION);
    writer.Word(items.size());
    WriteRect(writer, {0, 0, 300, 200});
    for (int i = 0; i < 3; ++i)  // no menu, the standard class, no caption
        writer.Word(0);
    writer.Word(static_cast<std::size_t>(fontPoints));
    writer.Word(FW_NORMAL);
    writer.Word(0);
    writer.Text(font);
    for (const TestControl& control : items)
        WriteControl(writer, control);
    const HWND dialog =
        ::CreateDialogIndirectParamW(::GetModuleHandleW(nullptr), writer.Template(), nullptr, DialogProcedure, 0);
    if (!dialog)
        throw std::runtime_error("the test dialog could not be created");
    m_window.Attach(dialog);
}

TestDialog::~TestDialog()
{
    ::DestroyWindow(m_window.Detach());
}

CRect TestDialog::Place(int id) const noexcept
{
    CRect place;
    ::GetWindowRect(Item(id), &place);
    ::MapWindowPoints(nullptr, m_window.m_hWnd, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

int TestDialog::X(int units) const noexcept
{
    RECT rect{0, 0, units, 0};
    ::MapDialogRect(m_window.m_hWnd, &rect);
    return rect.right;
}

int TestDialog::Y(int units) const noexcept
{
    RECT rect{0, 0, 0, units};
    ::MapDialogRect(m_window.m_hWnd, &rect);
    return rect.bottom;
}
