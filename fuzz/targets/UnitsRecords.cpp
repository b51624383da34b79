// The input's first line is a driver's id, what follows a main configuration document.
#include <algorithm>
#include <cwchar>

#include "DocumentTree.h"
#include "Fuzzing.h"
#include "RecordCheck.h"
#include "UnitsRecord.h"

namespace {

using namespace zep;
using fuzzing::ChildElement;
using fuzzing::Require;
using fuzzing::ValueIn;

// Ids that the documents can hold and that a query path takes as they are.
bool IsDriverId(const std::wstring& id)
{
    const auto isPrintable = [](wchar_t c) { return c >= L' ' && c != 0xFFFE && c != 0xFFFF; };
    return id.find(L"?/") == std::wstring::npos && std::all_of(id.begin(), id.end(), isPrintable);
}

pugi::xml_node FirstWith(pugi::xml_node parent, const wchar_t* child, const wchar_t* value, std::wstring_view text)
{
    for (const pugi::xml_node element : parent.children(child))
        if (element.type() == pugi::node_element && ChildElement(element, value) && ValueIn(element, value) == text)
            return element;
    return {};
}

// The driver's record in a configuration, found without the product's paths.
pugi::xml_node SetupOf(pugi::xml_node root, std::wstring_view driverId)
{
    return FirstWith(ChildElement(root, L"unitSetups"), L"unitSetup", L"driverId", driverId);
}

pugi::xml_node RootElementOf(pugi::xml_node element)
{
    while (element.parent().type() == pugi::node_element)
        element = element.parent();
    return element;
}

bool IsWritten(pugi::xml_node element, std::wstring_view driverId)
{
    const std::wstring_view name = element.name();
    const pugi::xml_node unit = element.parent();
    if ((name != L"decimals" && name != L"factor") || element != ChildElement(unit, element.name()))
        return false;
    const pugi::xml_node setup = SetupOf(RootElementOf(element), driverId);
    return setup &&
           (unit == FirstWith(setup, L"unit", L"name", L"AP-VA") || unit == FirstWith(setup, L"unit", L"name", L"RP"));
}

// The reading rules once more, on the parser's tree.
UnitChoice PlainChoice(pugi::xml_node setup, std::wstring_view name)
{
    const pugi::xml_node unit = FirstWith(setup, L"unit", L"name", name);
    if (!unit)
        return {1, UnitChoice::Plain};
    UnitChoice choice{1, UnitChoice::Kilo};
    if (ChildElement(unit, L"decimals"))
        choice.decimals = static_cast<int>(std::clamp(
            std::wcstoll(ChildElement(unit, L"decimals").child_value(), nullptr, 10), -2147483648LL, 2147483647LL));
    if (ValueIn(unit, L"factor") == L"0")
        choice.scale = UnitChoice::Plain;
    return choice;
}

void CheckChoices(const UnitChoices& choices, const std::string& text, std::wstring_view driverId)
{
    const fuzzing::DocumentTree tree(text);
    const pugi::xml_node setup = SetupOf(tree.Root(), driverId);
    Require(choices[0] == PlainChoice(setup, L"AP-VA") && choices[1] == PlainChoice(setup, L"RP"),
            "both readers see the same choices");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzzing::Input input(data, size);
    const std::wstring driverId = fuzzing::Wide(input.TakeLine());
    XmlDocument document(L"configuration");
    if (!IsDriverId(driverId) || !document.Parse(input.Rest()))
        return 0;
    const std::string text(input.Rest());
    UnitsRecord record(document, driverId);
    const UnitChoices choices = record.Read();
    CheckChoices(choices, text, driverId);

    record.Write(choices);
    const std::string written = document.Serialize();
    Require(document.IsDirty(), "writing marks the configuration");
    Require(record.Read() == choices, "choices that were written are read again");
    CheckChoices(choices, written, driverId);
    fuzzing::RequireKept(text, written, [&](pugi::xml_node element) { return IsWritten(element, driverId); });

    XmlDocument again(L"configuration");
    Require(static_cast<bool>(again.Parse(written)), "what was written can be read");
    UnitsRecord second(again, driverId);
    Require(second.Read() == choices, "another reader sees the same choices");
    second.Write(choices);
    Require(again.Serialize() == written, "writing a second time changes nothing");
    return 0;
}
