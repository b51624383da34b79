// Copies what is set for one device to others.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "FieldEdit.h"
#include "fields/DeviceReader.h"

namespace plant {

// What is copied: the fields of these keys or, without any, what can be set in these sections or, without any, in all.
struct CopiedFields {
    std::vector<std::string> keys;
    std::vector<FieldSection> sections;
};

// Wants the devices to have the values that another one has, as the reader reads it; all of them have tables. A field
// of which both have no value stays without one, unless its key was given. Throws Refusal for an unknown key and for a
// document that cannot be read.
[[nodiscard]] FieldEdit CopyFields(Project& project, DeviceReader& reader, std::size_t from,
                                   std::span<const std::size_t> to, const CopiedFields& what);

}  // namespace plant
