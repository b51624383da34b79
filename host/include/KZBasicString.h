// The host's wide-character string. Every name, path, value and caption passes between host and modules as one.
#pragma once

#include <compare>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "KZHostApi.h"

class KZBasicString {
public:
    KZBasicString() noexcept = default;

    // A null pointer makes the empty string.
    KZBasicString(const wchar_t* text) : m_text(text ? text : L"") {}
    KZBasicString(std::wstring_view text) : m_text(text) {}
    KZBasicString(std::wstring text) noexcept : m_text(std::move(text)) {}

    [[nodiscard]] const wchar_t* c_str() const noexcept { return m_text.c_str(); }
    [[nodiscard]] std::wstring_view View() const noexcept { return m_text; }
    [[nodiscard]] std::size_t Length() const noexcept { return m_text.size(); }
    [[nodiscard]] bool IsEmpty() const noexcept { return m_text.empty(); }

    // Replaces the text and keeps the storage, so that a string used in a loop allocates only while it grows.
    void Assign(std::wstring_view text) { m_text.assign(text); }
    void Clear() noexcept { m_text.clear(); }

    KZBasicString& operator+=(std::wstring_view text)
    {
        m_text += text;
        return *this;
    }
    KZBasicString& operator+=(const KZBasicString& text) { return *this += text.View(); }

    // Formats as printf does, %s standing for const wchar_t* on every platform. The arguments must match the format;
    // a format that cannot be carried out gives the empty string.
    [[nodiscard]] static KZ_API KZBasicString Format(const wchar_t* format, ...);

    friend KZBasicString operator+(KZBasicString left, std::wstring_view right)
    {
        left += right;
        return left;
    }
    friend KZBasicString operator+(KZBasicString left, const wchar_t* right)
    {
        left += KZBasicString(right);
        return left;
    }
    friend KZBasicString operator+(KZBasicString left, const KZBasicString& right)
    {
        left += right;
        return left;
    }
    friend bool operator==(const KZBasicString&, const KZBasicString&) noexcept = default;
    friend std::strong_ordering operator<=>(const KZBasicString& left, const KZBasicString& right) noexcept
    {
        return left.m_text.compare(right.m_text) <=> 0;
    }

private:
    std::wstring m_text;
};
