// Makes a child dialog's template from the one that the modal dialog uses, so that the controls are drawn up once.
#pragma once

#include <afxwin.h>

#include <cstddef>
#include <vector>

// A copy of the extended dialog template (DIALOGEX) of that id with the styles of an embedded child, not yet visible;
// empty when there is no such template.
[[nodiscard]] std::vector<std::byte> LoadChildTemplate(unsigned id);
