// One line of what the editor shows of a device without opening its dialogs.
#pragma once

#include <string>
#include <vector>

struct SummaryRow {
    std::wstring section;
    std::wstring name;
    std::wstring value;

    friend bool operator==(const SummaryRow&, const SummaryRow&) = default;
};

using SummaryRows = std::vector<SummaryRow>;

// What stands for a value that the document does not have.
inline constexpr wchar_t NoValue[] = L"–";
