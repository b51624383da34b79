// Which devices somebody looks for.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "project/Project.h"

namespace plant {

// What else a device can be found by than the project says: the name of its model, its findings. Called when the
// device's texts are read, by its place in the list.
using MoreWords = std::function<std::wstring(std::size_t device)>;

class DeviceFilter {
public:
    // The project must outlive this object.
    explicit DeviceFilter(const Project& project, MoreWords more = {});

    // Reads the texts of the devices anew: of all, or of those that a change may have made different. A change of
    // findings is one of their devices.
    void Refresh();
    void Refresh(const ProjectChange& change);

    // The places of the devices in which every word of the text occurs, in number, name, description, type, chosen
    // variables or more words, in the order of the list. Capitals and accents do not count; all devices for no word.
    [[nodiscard]] std::vector<std::size_t> Matching(std::wstring_view text) const;

private:
    [[nodiscard]] std::wstring WordsOf(std::size_t device, std::wstring_view variables) const;
    void ReadWords() const;

    const Project& m_project;
    MoreWords m_more;
    mutable std::vector<std::wstring> m_words;  // by device; empty until somebody looks for a word
};

// Without capitals and accents.
[[nodiscard]] std::wstring Folded(std::wstring_view text);

}  // namespace plant
