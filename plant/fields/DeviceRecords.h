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
    explicit DeviceRecords(const FieldTable& table);

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
    // The named values of a record that are fields.
    struct Named {
        const wchar_t* name;
        std::size_t row;
    };
    using Record = std::vector<Named>;

    void AddRow(const Field& field);
    void Take(XmlDocument::Element element, const Record& record);
    void TakeUnits(XmlDocument::Element setup);
    void TakeLimits(XmlDocument::Element setup);

    const FieldTable& m_table;
    Record m_information;
    std::array<Record, zep::PowerUnitCount> m_units;
    std::vector<Record> m_checks;         // by limit variable
    std::vector<StoredText> m_otherwise;  // by row, as m_texts
    std::vector<StoredText> m_texts;
    std::vector<bool> m_isFound;  // by limit variable
};

}  // namespace plant
