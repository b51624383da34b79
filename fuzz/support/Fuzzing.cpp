#include "Fuzzing.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "Utf8.h"

namespace fuzzing {

void Require(bool holds, std::string_view rule)
{
    if (holds)
        return;
    std::fprintf(stderr, "broken rule: %.*s\n", static_cast<int>(rule.size()), rule.data());
    std::abort();
}

std::string_view Input::TakeLine() noexcept
{
    const std::size_t end = m_rest.find('\n');
    const std::string_view line = m_rest.substr(0, end);
    m_rest.remove_prefix(end == std::string_view::npos ? m_rest.size() : end + 1);
    return line;
}

std::wstring Wide(std::string_view utf8)
{
    std::wstring text;
    static_cast<void>(DecodeUtf8(utf8.substr(0, utf8.find('\0')), text));
    return text;
}

int Integer(std::string_view line, int lowest, int highest)
{
    const long value = std::strtol(std::string(line).c_str(), nullptr, 10);
    return static_cast<int>(std::clamp<long>(value, lowest, highest));
}

}  // namespace fuzzing
