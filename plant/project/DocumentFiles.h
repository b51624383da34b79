// The documents that lie in a folder.
#pragma once

#include <map>
#include <string>

#include "Disk.h"
#include "DocumentName.h"

namespace plant {

// By the documents' names. What is no file is a link.
using DocumentFiles = std::map<std::string, KZFileEntry, NameLess>;

// What has the name of a document in a project's folder, or in one that is laid out like it; empty when there is no
// such folder. Throws Refusal when it cannot be read, or when its "devices" is a link, which would lead to somewhere
// else.
[[nodiscard]] DocumentFiles DocumentFilesIn(Disk& disk, const Path& folder);

}  // namespace plant
