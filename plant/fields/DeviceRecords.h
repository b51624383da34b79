// Where the values of one device stand in the documents of a project.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "Field.h"
#include "KZXmlDocument.h"
#include "UnitsRecord.h"

namespace plant {

// Reads many devices one after the other without asking for memory each time.
class DeviceRecords {
public:
    explicit DeviceRecords(const FieldTable& table) : m_table(table), m_texts(table.size()) {}

    // Looks the device up in the main configuration document and in the root element of its own, or of none. The
    // documents must stay unchanged as long as their values are asked for.
    void Find(const XmlDocument& main, const XmlDocument::XmlNode* device, const KZBasicString& driverId);

    [[nodiscard]] const FieldTable& Table() const noexcept { return m_table; }

    // The text that the document holds, or what stands for it where the document lacks it. Never null.
    [[nodiscard]] const wchar_t* Text(const Field& field) const noexcept { return m_texts[field.row].text; }
    [[nodiscard]] bool IsStored(const Field& field) const noexcept { return m_texts[field.row].isStored; }

    // The value as FieldValue.h has it.
    void AppendValue(std::string& out, const Field& field) const;
    [[nodiscard]] std::string Value(const Field& field) const;

private:
    struct StoredText {
        const wchar_t* text = L"";
        bool isStored = false;
    };
    // Of a field: the element that holds it or null, the name of its value there, the text when it is not there.
    struct Place {
        const XmlDocument::XmlNode* element;
        const wchar_t* name;
        const wchar_t* otherwise;
    };
    [[nodiscard]] Place PlaceOf(const Field& field) const noexcept;

    const FieldTable& m_table;
    std::vector<StoredText> m_texts;
    const XmlDocument::XmlNode* m_information = nullptr;
    std::array<const XmlDocument::XmlNode*, zep::PowerUnitCount> m_units{};
    std::vector<const XmlDocument::XmlNode*> m_checks;  // by limit variable
};

}  // namespace plant
