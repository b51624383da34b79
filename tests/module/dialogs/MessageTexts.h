// What message boxes said, where their buttons do not matter.
#pragma once

#include <string>
#include <vector>

#include "MessageBoxes.h"

[[nodiscard]] inline std::vector<std::wstring> TextsOf(MessageBoxes& boxes)
{
    std::vector<std::wstring> texts;
    for (const SeenMessage& seen : boxes.Take())
        texts.push_back(seen.text);
    return texts;
}
