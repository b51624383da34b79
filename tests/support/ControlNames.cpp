#include "ControlNames.h"

#include <windows.h>

#include <algorithm>
#include <iterator>

namespace kztest {

namespace {

struct IdRange {
    int first;
    int last;
    const char* name;
};

// One row for each id of the headers, with the end of the range that the comment behind it names.
constexpr IdRange Ranges[] = {
    {IDOK, IDOK, "IDOK"},
    {IDCANCEL, IDCANCEL, "IDCANCEL"},
#include "ControlIdRows.inc"
};

constexpr int StaticId = 0xFFFF;  // IDC_STATIC, as a dialog template stores it

}  // namespace

std::string NameOfControl(int id)
{
    if (id <= 0 || id == StaticId)
        return "-";
    const auto* range = std::find_if(std::begin(Ranges), std::end(Ranges),
                                     [id](const IdRange& r) { return r.first <= id && id <= r.last; });
    if (range == std::end(Ranges))
        return std::to_string(id);
    return id == range->first ? range->name : range->name + (" + " + std::to_string(id - range->first));
}

}  // namespace kztest
