// Each dialog of the editor with data of a plant in it, for the tests that look at all of them.
#pragma once

#include <afxwin.h>

#include <memory>
#include <span>

namespace editor_tests {

struct SampleDialog {
    const char* name;
    std::unique_ptr<CDialog> (*make)();  // in the language that is set
};

[[nodiscard]] std::span<const SampleDialog> SampleDialogs();

}  // namespace editor_tests
