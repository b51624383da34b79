// Tool tips.
#pragma once

#include <windows.h>

#include <map>
#include <string>
#include <vector>

namespace kztest {

// The tool tip window that belongs to the dialog; null when there is none.
[[nodiscard]] HWND TipsOf(HWND dialog);

// The tips of buttons by their windows.
[[nodiscard]] std::map<HWND, std::wstring> TextsOf(HWND tips);

// The texts of all tips that belong to the dialog.
[[nodiscard]] std::vector<std::wstring> TextsOfAllTips(HWND dialog);

}  // namespace kztest
