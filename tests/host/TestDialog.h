// A real dialog made of a list of controls, for tests of layout and buttons.
#pragma once

#include <afxwin.h>

#include <initializer_list>

struct TestControl {
    int id;
    const wchar_t* windowClass;
    const wchar_t* text = L"";
    DWORD style = 0;
    RECT units{0, 0, 30, 10};  // left, top, width, height in dialog units
};

namespace controls {
TestControl Text(int id, const wchar_t* text);
TestControl Check(int id, const wchar_t* text = L"");
TestControl Push(int id, const wchar_t* text = L"Push");
TestControl Edit(int id);
TestControl DropList(int id);
TestControl Group(int id, const wchar_t* text = L"Box");
TestControl Tab(int id);
}  // namespace controls

class TestDialog {
public:
    explicit TestDialog(std::initializer_list<TestControl> items, int fontPoints = 8,
                        const wchar_t* font = L"MS Sans Serif");
    ~TestDialog();
    TestDialog(const TestDialog&) = delete;
    TestDialog& operator=(const TestDialog&) = delete;

    [[nodiscard]] CWnd* Window() noexcept { return &m_window; }
    [[nodiscard]] HWND Item(int id) const noexcept { return ::GetDlgItem(m_window.m_hWnd, id); }
    // A control's place in client coordinates.
    [[nodiscard]] CRect Place(int id) const noexcept;
    // Dialog units in pixels.
    [[nodiscard]] int X(int units) const noexcept;
    [[nodiscard]] int Y(int units) const noexcept;

private:
    CWnd m_window;
};
