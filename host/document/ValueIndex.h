// Finding one among very many children by the text of a named value, such as a driver's record by its driverId, without
// looking at each of them.
#pragma once

#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

class ValueIndexes {
public:
    // The children of one name, by the text of one of their named values; of several with the same text the first.
    class Index {
    public:
        [[nodiscard]] pugi::xml_node Find(std::wstring_view text) const noexcept;

    private:
        friend class ValueIndexes;
        pugi::xml_node m_parent;
        std::wstring m_name;
        std::wstring m_value;
        // The texts are the tree's own: when one of them changes, the index goes.
        std::unordered_map<std::wstring_view, pugi::xml_node> m_children;
    };

    // The index of the parent's children, or null when there is none.
    [[nodiscard]] Index* Of(pugi::xml_node parent, std::wstring_view name, std::wstring_view value) noexcept;
    // Makes it; null when there is no memory, which is no failure: looking up is slower then.
    Index* Make(pugi::xml_node parent, std::wstring_view name, std::wstring_view value) noexcept;

    // An element has got its first child of this name, or another one, or another text in the one that it has.
    void GotFirst(pugi::xml_node element, std::wstring_view child) noexcept;
    void Changed(pugi::xml_node element, std::wstring_view child) noexcept;
    void Clear() noexcept { m_indexes.clear(); }

private:
    std::vector<Index> m_indexes;
};
