// What the columns of a table are for the devices of one type.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "fields/Field.h"

namespace plant {

// The name of the column that says which device a row is for; the others are named by keys.
inline constexpr std::string_view DeviceColumn = "device";

class FieldColumns {
public:
    // Rows of one type follow each other mostly, so that only the first of them has its fields looked up.
    // Returns the fields of the columns, null for each that is none of the type.
    const std::vector<const Field*>& Of(const FieldTable& table, std::span<const std::string> names)
    {
        if (m_table == &table)
            return m_fields;
        m_fields.clear();
        for (const std::string& name : names)
            m_fields.push_back(FindField(table, name));
        m_table = &table;
        return m_fields;
    }

private:
    const FieldTable* m_table = nullptr;
    std::vector<const Field*> m_fields;
};

}  // namespace plant
