#include "Field.h"

#include <algorithm>
#include <unordered_map>

#include "ZepFields.h"

namespace plant {

const FieldTable* FieldsOfType(std::wstring_view typeName)
{
    if (typeName != L"ZEP")
        return nullptr;
    static const FieldTable fields = MakeZepFields();
    return &fields;
}

const Field* FindField(const FieldTable& table, std::string_view key)
{
    const auto found = std::find_if(table.begin(), table.end(), [&](const Field& field) { return field.key == key; });
    return found == table.end() ? nullptr : &*found;
}

}  // namespace plant
