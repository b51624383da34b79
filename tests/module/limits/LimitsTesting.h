// What the tests of the limits have in common: documents with checks, and data exchange as a page does it.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "LimitsStore.h"
#include "NumericLocale.h"

namespace limits_testing {

inline std::vector<zep::LimitCell> CellsOf(const zep::LimitsTable& table)
{
    std::vector<zep::LimitCell> cells;
    for (std::size_t v = 0; v < table.variables.size(); ++v)
        for (std::size_t f = 0; f < table.variables[v].fieldCount; ++f)
            cells.push_back({v, static_cast<zep::LimitField>(f)});
    return cells;
}

inline std::string Narrow(std::wstring_view text)
{
    std::string narrow;
    for (const wchar_t c : text)
        narrow += static_cast<char>(c);
    return narrow;
}

// The "check" elements of a page; the value of each cell follows from its number. One cell may be left out.
inline std::string ChecksOf(const zep::LimitsTable& table, const std::function<double(std::size_t)>& value,
                            std::optional<zep::LimitCell> without = std::nullopt)
{
    std::string text;
    std::size_t number = 0;
    for (std::size_t v = 0; v < table.variables.size(); ++v) {
        text += "<check><var>" + Narrow(table.variables[v].name.data()) + "</var>";
        for (std::size_t f = 0; f < table.variables[v].fieldCount; ++f) {
            const auto name = Narrow(zep::LimitFieldNames[f]);
            if (without != zep::LimitCell{v, static_cast<zep::LimitField>(f)})
                text += "<" + name + ">" + std::to_string(value(number)) + "</" + name + ">";
            ++number;
        }
        text += "</check>";
    }
    return text;
}

// A main configuration with one "viewSetup" of the given content.
class Configuration {
public:
    explicit Configuration(const std::string& checks) : m_document(L"configuration")
    {
        EXPECT_TRUE(m_document.Parse("<configuration><viewSetups><viewSetup><driverId>zep1</driverId>" + checks +
                                     "</viewSetup></viewSetups></configuration>"));
    }

    [[nodiscard]] XmlDocument::XmlNode& ViewSetup() const { return *m_document.Node(L"viewSetups/viewSetup"); }
    [[nodiscard]] std::string Text() const { return m_document.Serialize(); }

    [[nodiscard]] std::wstring Stored(const zep::LimitsTable& table, zep::LimitCell cell) const
    {
        const auto* check = ViewSetup().NodeV(L"check?var=%s?", table.variables[cell.variable].name.data());
        const auto* name = zep::LimitFieldNames[static_cast<std::size_t>(cell.field)];
        return check ? check->Value(name, L"(none)") : L"(no check)";
    }

    [[nodiscard]] std::size_t Count(const std::string& what) const
    {
        const auto text = Text();
        std::size_t count = 0;
        for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + 1))
            ++count;
        return count;
    }

private:
    XmlDocument m_document;
};

// A number as the user types it: "1.5" with the user's decimal separator.
inline std::wstring Typed(std::wstring text)
{
    const zep::NumericLocale locale;
    const wchar_t separator = static_cast<wchar_t>(*std::localeconv()->decimal_point);
    std::replace(text.begin(), text.end(), L'.', separator);
    return text;
}

// A page's data exchange in both directions.
inline void Show(zep::LimitsStore& store)
{
    const zep::NumericLocale locale;
    store.ValuesToTexts();
}

inline void Pull(zep::LimitsStore& store)
{
    const zep::NumericLocale locale;
    store.TextsToValues();
}

}  // namespace limits_testing
