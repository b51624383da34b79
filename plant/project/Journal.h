// What a commit is about to do, as a file. It is written before the first document changes and removed after the last:
// whoever finds it carries out what is left of it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace plant {

// One document is put into place, or taken out.
struct JournalStep {
    std::string target;  // relative to the project: a document, or an entry of the history
    std::string staged;  // the file with its new bytes in the folder of the commit; empty: the target is taken out
    std::uint64_t size = 0;
    std::uint64_t hash = 0;

    friend bool operator==(const JournalStep&, const JournalStep&) = default;
};
using Journal = std::vector<JournalStep>;

[[nodiscard]] std::string WriteJournal(const Journal& journal);

// Reads a journal, which may be anybody's. Throws Refusal, naming the file, when it is damaged or names anything but
// documents, entries of the history and staged files.
[[nodiscard]] Journal ReadJournal(std::string_view bytes, const std::wstring& file);

// "12" and "12.old", as a commit names what it stages.
[[nodiscard]] bool IsStagedName(std::string_view name) noexcept;

}  // namespace plant
