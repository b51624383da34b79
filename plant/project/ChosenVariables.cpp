#include "ChosenVariables.h"

#include <algorithm>

namespace plant {

namespace {

VariableList Lines(std::wstring_view text)
{
    VariableList lines;
    while (!text.empty()) {
        const std::wstring_view line = text.substr(0, text.find_first_of(L"\r\n"));
        if (!line.empty())
            lines.emplace_back(line);
        text.remove_prefix(std::min(line.size() + 1, text.size()));
    }
    return lines;
}

}  // namespace

VariableList ChosenVariables(const XmlDocument& document, const KZBasicString& driverId)
{
    const XmlDocument::XmlNode* selection = zep::FindSetup(document, Selections, driverId);
    return selection ? Lines(selection->Value(L"variables", L"")) : VariableList{};
}

void ForEachChoice(const XmlDocument& document,
                   const std::function<void(const KZBasicString& driverId, std::wstring_view lines)>& tell)
{
    const XmlDocument::XmlNode* const list = document.Node(Selections.list);
    const XmlDocument::XmlNode* selection = list ? list->FirstChild(Selections.element) : nullptr;
    for (; selection; selection = selection->NextSibling(Selections.element))
        tell(selection->Value(zep::DriverIdName, L""), selection->Value(L"variables", L""));
}

bool SetChosenVariables(XmlDocument& document, const KZBasicString& driverId, const VariableList& variables)
{
    if (ChosenVariables(document, driverId) == variables)
        return false;
    XmlDocument::XmlNode* selection = zep::FindSetup(document, Selections, driverId);
    if (!selection)
        selection = &zep::AppendSetup(document, Selections, driverId);
    std::wstring text;
    for (const KZBasicString& variable : variables) {
        text += text.empty() ? L"" : L"\n";
        text += variable.View();
    }
    selection->SetValue(L"variables", text.c_str());
    return true;
}

void StoreChosenVariables(XmlDocument& document, const KZBasicString& driverId, const VariableList& variables)
{
    if (SetChosenVariables(document, driverId, variables))
        document.SetDirty(true);
}

VariableList MergeChoices(const VariableList& earlier, const VariableList& added)
{
    VariableList merged = earlier;
    for (const KZBasicString& variable : added) {
        if (std::find(merged.begin(), merged.end(), variable) == merged.end())
            merged.push_back(variable);
    }
    return merged;
}

}  // namespace plant
