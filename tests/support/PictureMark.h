// Telling pictures apart in a text.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>

namespace kztest {

// Size and a checksum of one picture of an image list as it is drawn, such as "16x16-3fa2". Empty when there is none.
[[nodiscard]] std::string PictureMark(HIMAGELIST list, int index);

}  // namespace kztest
