// What the fuzz targets have in common: the function that a fuzzer calls, the rules that must hold, and inputs made of
// lines, so that the corpus can be read and written by hand.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// A target's one function: libFuzzer calls it with each input it invents, the replay program with the corpus.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace fuzzing {

// Ends the program, naming the rule, unless it holds. The fuzzer and the replay program keep the input.
void Require(bool holds, std::string_view rule);

// An input, taken line by line; what is left may be taken as a whole.
class Input {
public:
    Input(const std::uint8_t* data, std::size_t size) noexcept : m_rest(reinterpret_cast<const char*>(data), size) {}

    // The next line without its end; empty at the end of the input.
    [[nodiscard]] std::string_view TakeLine() noexcept;
    [[nodiscard]] std::string_view Rest() const noexcept { return m_rest; }

private:
    std::string_view m_rest;
};

// UTF-8 to wide text up to the first error or zero character, which no text of the product's interfaces can hold.
[[nodiscard]] std::wstring Wide(std::string_view utf8);

// The leading integer of a line, kept within a range.
[[nodiscard]] int Integer(std::string_view line, int lowest, int highest);

}  // namespace fuzzing
