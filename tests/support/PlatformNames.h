// What screen readers call controls.
#pragma once

#include <windows.h>

#include <map>
#include <string>
#include <vector>

namespace kztest {

[[nodiscard]] std::wstring WithoutAccessKey(std::wstring text);

// The controls of the window and of all pages in it that the user can work, hidden pages included.
[[nodiscard]] std::vector<HWND> WorkableControls(HWND window);

// A name that was given comes before the control's own text and its label: the static text or group box before it,
// unless another group or tab stop comes first.
[[nodiscard]] std::wstring PlatformName(HWND control, const std::map<HWND, std::wstring>& given);

// Expects a name of every control that is seen and can be worked, and none twice. Returns how many there are.
int ExpectNamesOfTheirOwn(HWND window, const std::map<HWND, std::wstring>& given);

// Expects that no two of the window's menus and of the controls that are seen in it have the same access key. Returns
// the keys, as capitals.
std::wstring ExpectAccessKeysOfTheirOwn(HWND window);

}  // namespace kztest
