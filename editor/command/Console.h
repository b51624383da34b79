// The program's standard output and error: lines of UTF-8, whatever the console's code page.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

// The line may wait in memory for others; FlushOutput hands on what waits, and a line on standard error comes after it.
void PrintLine(std::string_view utf8);
// The same for lines that all are ended by "\n".
void PrintLines(std::string_view utf8);
void FlushOutput();

// A line of values with tabs between them. A tab, line end or backslash in a value is printed as \t, \n, \r, \\.
[[nodiscard]] std::string Row(std::initializer_list<std::string_view> values);
void PrintRow(std::initializer_list<std::string_view> values);

void PrintErrorLine(std::string_view utf8);

// Whether anybody can read a line on standard error: false for a program that was started without a shell, whose
// console belongs to nobody else.
[[nodiscard]] bool HasErrorReader() noexcept;

// Gives up the console that Windows made for this program alone, so that no empty one stays beside the window.
void CloseOwnConsole() noexcept;
