// A failure that ends a command: one line that names the file or argument and says what to do.
#pragma once

#include <stdexcept>
#include <string_view>

#include "KZUtf8.h"

// what() is the line in UTF-8. Never leaves main or a window procedure.
class EditorError : public std::runtime_error {
public:
    explicit EditorError(std::wstring_view line) : std::runtime_error(ToUtf8(line)) {}
    explicit EditorError(const std::string& utf8Line) : std::runtime_error(utf8Line) {}
};
