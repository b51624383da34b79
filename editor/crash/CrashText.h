// A text that is put together where nothing may be allocated any more. What does not fit is left out.
#pragma once

#include <windows.h>

#include <array>
#include <charconv>
#include <cstdint>
#include <string_view>

class CrashText {
public:
    [[nodiscard]] std::string_view View() const noexcept { return {m_bytes.data(), m_size}; }
    void Clear() noexcept { m_size = 0; }

    CrashText& operator<<(std::string_view text) noexcept
    {
        for (const char character : text) {
            if (m_size < m_bytes.size())
                m_bytes[m_size++] = character;
        }
        return *this;
    }

    CrashText& operator<<(std::wstring_view text) noexcept
    {
        const int room = static_cast<int>(m_bytes.size() - m_size);
        m_size += static_cast<std::size_t>(::WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                                                 m_bytes.data() + m_size, room, nullptr, nullptr));
        return *this;
    }

    // At least so many digits.
    CrashText& Number(std::uint64_t value, std::size_t digits = 1, int base = 10) noexcept
    {
        std::array<char, 20> text;
        const auto end = std::to_chars(text.data(), text.data() + text.size(), value, base).ptr;
        const auto length = static_cast<std::size_t>(end - text.data());
        for (std::size_t missing = length; missing < digits; ++missing)
            *this << "0";
        return *this << std::string_view(text.data(), length);
    }
    CrashText& Hex(std::uint64_t value, std::size_t digits = 1) noexcept { return Number(value, digits, 16); }

private:
    std::array<char, 16384> m_bytes{};
    std::size_t m_size = 0;
};
