#include "FieldCopy.h"

#include <algorithm>

#include "fields/FieldQuery.h"

namespace plant {

namespace {

std::vector<const Field*> FieldsToCopy(const FieldTable& table, const CopiedFields& what)
{
    std::vector<const Field*> fields = FieldsNamed(table, what.keys);
    if (what.keys.empty())
        std::erase_if(fields, [&](const Field* field) {
            const bool isMeant = what.sections.empty() || std::find(what.sections.begin(), what.sections.end(),
                                                                    field->section) != what.sections.end();
            return !isMeant || !field->isWritable;
        });
    return fields;
}

}  // namespace

FieldEdit CopyFields(Project& project, DeviceReader& reader, std::size_t from, std::span<const std::size_t> to,
                     const CopiedFields& what)
{
    const DeviceRecords& records = reader.Read(project.Devices()[from]);
    std::vector<Assignment> values;
    for (const Field* field : FieldsToCopy(records.Table(), what))
        values.push_back({field, records.Value(*field)});
    FieldEdit edit(project, what.keys.empty() ? FieldEdit::Unsettable::MayStay : FieldEdit::Unsettable::Refused);
    for (const std::size_t device : to)
        edit.Add(device, values);
    return edit;
}

}  // namespace plant
