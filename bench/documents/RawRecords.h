// The records of the configuration documents as one would read and write them by hand with pugixml: one pass over the
// drivers, no checks, nothing kept. What the product's own records are measured against.
#pragma once

#include <array>
#include <pugixml.hpp>
#include <span>
#include <string>

#include "InformationRecord.h"
#include "LimitsTable.h"
#include "UnitsRecord.h"

namespace kzbench {

// A document in raw pugixml, parsed with everything that a document of the product keeps.
class RawDocument {
public:
    explicit RawDocument(const std::string& utf8);
    [[nodiscard]] pugi::xml_node Root() const { return m_tree.document_element(); }
    [[nodiscard]] const pugi::xml_document& Tree() const noexcept { return m_tree; }

private:
    pugi::xml_document m_tree;
};

// The driver's element of a section; empty when it has none.
[[nodiscard]] pugi::xml_node FindDriver(pugi::xml_node root, const wchar_t* section, const wchar_t* entry,
                                        const wchar_t* driverId);

[[nodiscard]] zep::UnitChoices ReadUnits(pugi::xml_node unitSetup);
void WriteUnits(pugi::xml_node unitSetup, const zep::UnitChoices& choices);

using LimitValues = std::array<double, zep::LimitFieldCount>;
void ReadLimits(pugi::xml_node viewSetup, const zep::LimitsTable& table, std::span<LimitValues> values);
void WriteLimits(pugi::xml_node viewSetup, const zep::LimitsTable& table, double value);

// The number of characters in the record's texts and the sum of its settings, so that nothing is read in vain.
[[nodiscard]] std::size_t ReadInformation(pugi::xml_node root);
void WriteInformation(pugi::xml_node root, const zep::InformationSettings& settings);

}  // namespace kzbench
