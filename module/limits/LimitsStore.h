// The values behind one limits page, held twice: as loaded and as edited.
#pragma once

#include <array>
#include <vector>

#include "DriverSetup.h"
#include "KZBasicString.h"
#include "KZXmlDocument.h"
#include "LimitsTable.h"

namespace zep {

// One edit box of a page.
struct LimitCell {
    std::size_t variable = 0;  // index into the page's table
    LimitField field = LimitField::Nominal;

    friend bool operator==(const LimitCell&, const LimitCell&) noexcept = default;
};

class LimitsStore {
public:
    // Starts at the table's defaults, both as loaded and as edited. The table must outlive the store.
    explicit LimitsStore(const LimitsTable& table);

    [[nodiscard]] const LimitsTable& Table() const noexcept { return m_table; }

    // The edited value of a cell.
    [[nodiscard]] double Value(LimitCell cell) const noexcept;

    // What the cell's edit box shows; the page's data exchange binds it.
    [[nodiscard]] KZBasicString& Text(LimitCell cell) noexcept;
    [[nodiscard]] const KZBasicString& Text(LimitCell cell) const noexcept;

    // Edited values to texts and back, in the user's conventions: to be called inside a NumericLocale. A text that is
    // not a number counts for its leading number, 0 without one.
    void ValuesToTexts();
    void TextsToValues();

    // Reads the page's variables from a "viewSetup", whatever the numeric locale is; one without a "check" keeps its
    // values.
    void Load(const XmlDocument::XmlNode& viewSetup);

    // Whether an edited value differs from the loaded one. NaN differs from everything. The answer is remembered for
    // Save.
    [[nodiscard]] bool IsModified() noexcept;

    // Writes the page's variables into a "viewSetup", whatever the numeric locale is. Nothing is ever removed from it.
    void Save(XmlDocument::XmlNode& viewSetup) const;

private:
    struct Variable {
        std::array<double, LimitFieldCount> edited{};
        std::array<double, LimitFieldCount> loaded{};
        std::array<KZBasicString, LimitFieldCount> texts;
    };

    [[nodiscard]] bool IsModified(std::size_t variable) const noexcept;
    void LoadVariable(std::size_t variable, const XmlDocument::XmlNode& check);
    void SaveVariable(std::size_t variable, XmlDocument::XmlNode& viewSetup) const;

    const LimitsTable& m_table;
    std::vector<Variable> m_variables;
    bool m_modified = false;
};

inline constexpr SetupList ViewSetups{L"viewSetups", L"viewSetup"};

// A "viewSetup" holds one of these per variable, which it names in "var".
inline constexpr const wchar_t* CheckElement = L"check";
inline constexpr const wchar_t* CheckVariable = L"var";

// Changes one limit and nothing else, but that what is missing is made: a variable without a "check" gets one with the
// defaults of all its limits. The document is not marked dirty.
void ChangeLimit(XmlDocument& configuration, const KZBasicString& driverId, const LimitsTable& table, LimitCell cell,
                 double value);

}  // namespace zep
