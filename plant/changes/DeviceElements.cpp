#include "DeviceElements.h"

#include <limits>

#include "KZDriverVariable.h"

namespace plant {

void CopyInto(XmlDocument::XmlNode& to, XmlDocument::Element from)
{
    for (XmlDocument::Element child = from.FirstChild(); child; child = child.NextSibling()) {
        if (child.FirstChild())
            CopyInto(*to.NewChild(child.Name(), nullptr), child);
        else
            to.SetValue(child.Name(), child.Text());
    }
}

VariableList RenamedVariables(const VariableList& variables, const KZBasicString& from, const KZBasicString& to)
{
    VariableList renamed;
    KZBasicString owner;
    KZBasicString variable;
    for (const KZBasicString& fullName : variables) {
        const bool isOurs = SplitDriverVariable(fullName, owner, variable, false) && owner == from;
        renamed.push_back(isOurs ? to + L"." + variable : fullName);
    }
    return renamed;
}

std::optional<int> ParseCount(std::wstring_view text) noexcept
{
    std::int64_t number = 0;
    for (const wchar_t digit : text) {
        if (digit < L'0' || digit > L'9' || number > std::numeric_limits<int>::max())
            return std::nullopt;
        number = number * 10 + (digit - L'0');
    }
    return text.empty() || number > std::numeric_limits<int>::max() ? std::nullopt
                                                                    : std::optional(static_cast<int>(number));
}

}  // namespace plant
