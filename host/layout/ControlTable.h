// The controls of one dialog by id.
#pragma once

#include <afxwin.h>

#include <list>
#include <vector>

#include "ControlKind.h"

struct LayoutControl {
    HWND window = nullptr;
    int id = 0;
    ControlKind kind = ControlKind::Other;
    bool classified = false;
    int natural[2] = {-1, -1};  // per LayoutAxis, -1 until asked for
    int smallest[2] = {-1, -1};
};

// Looks every control up once: one walk over the children costs far less than GetDlgItem for each of them, which
// searches all of them every time.
class ControlTable {
public:
    explicit ControlTable(HWND dialog);

    [[nodiscard]] HWND Dialog() const noexcept { return m_dialog; }
    // The first control in Z order that has the id, or null when there is none or its window is gone.
    [[nodiscard]] LayoutControl* Find(int id) noexcept;
    // Texts, fonts and places may have changed since the sizes were measured.
    void ForgetSizes() noexcept;

private:
    HWND m_dialog;
    std::vector<LayoutControl> m_controls;  // by id
};

// The dialogs that one layout has met; nearly always one.
class ControlTables {
public:
    // The dialog's table, made when it is new.
    [[nodiscard]] ControlTable& Of(HWND dialog);

private:
    std::list<ControlTable> m_tables;
};
