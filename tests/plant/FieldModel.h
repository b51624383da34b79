// What a plant of filters holds and accepts, written down without the product's tables and rules.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace kztest {

class FieldModel {
public:
    using Values = std::map<std::string, std::string>;
    using Wishes = std::vector<std::pair<std::string, std::string>>;

    // The keys in the order of the table.
    static std::vector<std::string> Keys();
    static bool IsReadOnly(const std::string& key);
    // What a filter shows that nobody has set up.
    static Values Defaults();

    // The values once the wishes are carried out; nothing when one of them is refused.
    //   mayStay  what could not be set is accepted where it is there already
    static std::optional<Values> After(const Values& before, const Wishes& wishes, bool mayStay);

private:
    static std::optional<std::string> Accepted(const std::string& key, const std::string& text);
    static bool KeepsItsRules(const Values& values, const std::string& variable);
};

}  // namespace kztest
