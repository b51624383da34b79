// The input is a main configuration document. Every page reads and writes its first "viewSetup", or a new one.
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "DocumentTree.h"
#include "Fuzzing.h"
#include "LimitsRules.h"
#include "LimitsStore.h"
#include "NumericLocale.h"
#include "RecordCheck.h"

namespace {

using namespace zep;
using fuzzing::ChildElement;
using fuzzing::Require;

using Values = std::vector<double>;

std::vector<LimitCell> CellsOf(const LimitsTable& table)
{
    std::vector<LimitCell> cells;
    for (std::size_t v = 0; v < table.variables.size(); ++v)
        for (std::size_t f = 0; f < table.variables[v].fieldCount; ++f)
            cells.push_back({v, static_cast<LimitField>(f)});
    return cells;
}

Values ValuesOf(const LimitsStore& store)
{
    Values values;
    for (const LimitCell cell : CellsOf(store.Table()))
        values.push_back(store.Value(cell));
    return values;
}

std::string Stored(double value)
{
    char text[400];
    std::snprintf(text, sizeof text, "%f", value);
    return text;
}

bool SameStored(const Values& left, const Values& right)
{
    for (std::size_t i = 0; i < left.size(); ++i)
        if (Stored(left[i]) != Stored(right[i]))
            return false;
    return left.size() == right.size();
}

LimitsStore Loaded(const LimitsTable& table, const XmlDocument::XmlNode& viewSetup)
{
    LimitsStore store(table);
    store.Load(viewSetup);
    return store;
}

// What a page does that opens and closes untouched.
void Exchange(LimitsStore& store)
{
    const NumericLocale locale;
    store.ValuesToTexts();
    store.TextsToValues();
}

void CheckExchange(LimitsStore store)
{
    const Values before = ValuesOf(store);
    Exchange(store);
    const Values after = ValuesOf(store);
    for (std::size_t i = 0; i < before.size(); ++i)
        Require(!std::isfinite(before[i]) || before[i] == after[i], "opening and closing a page changes no number");
}

void CheckRules(LimitsStore store)
{
    Exchange(store);
    const bool isPower = &store.Table() == &PowerLimitsTable;
    if (CheckLimits(store))
        return;
    for (std::size_t v = isPower ? 1 : 0; v < store.Table().variables.size(); ++v) {
        const double inner = store.Value({v, LimitField::MaxW});
        const double outer = store.Value({v, LimitField::MaxD});
        Require(inner <= outer && outer <= 100.0, "accepted limits are in order and in range");
        Require(std::strtod(Stored(inner).c_str(), nullptr) > 0.0, "accepted limits are in range once they are stored");
    }
}

// The record that is read and written, found without the product's paths.
pugi::xml_node SetupOf(pugi::xml_node anywhere)
{
    while (anywhere.parent().type() == pugi::node_element)
        anywhere = anywhere.parent();
    return ChildElement(ChildElement(anywhere, L"viewSetups"), L"viewSetup");
}

pugi::xml_node CheckOf(pugi::xml_node viewSetup, const LimitVariable& variable)
{
    return viewSetup.find_child([&](pugi::xml_node check) {
        return check.type() == pugi::node_element && std::wstring_view(check.name()) == L"check" &&
               fuzzing::ValueIn(check, L"var") == variable.name.data();
    });
}

// The named values that saving a page may change: the first of each name in the first "check" of the variable.
bool IsSaved(pugi::xml_node element, const LimitsTable& table)
{
    const pugi::xml_node check = element.parent();
    if (check.parent() != SetupOf(element) || element != ChildElement(check, element.name()))
        return false;
    for (const LimitVariable& variable : table.variables)
        for (std::size_t f = 0; f < variable.fieldCount; ++f)
            if (std::wstring_view(element.name()) == LimitFieldNames[f] && check == CheckOf(check.parent(), variable))
                return true;
    return false;
}

// An edit that makes a page write.
void ChangeOneValue(LimitsStore& store)
{
    const NumericLocale locale;
    store.ValuesToTexts();
    KZBasicString& text = store.Text({0, LimitField::Nominal});
    text = text == KZBasicString(L"1") ? L"2" : L"1";
    store.TextsToValues();
}

void CheckSaving(const LimitsTable& table, XmlDocument& document, XmlDocument::XmlNode& viewSetup)
{
    const std::string earlier = document.Serialize();
    LimitsStore store = Loaded(table, viewSetup);
    ChangeOneValue(store);
    Require(store.IsModified(), "another number is a change");
    store.Save(viewSetup);
    const std::string saved = document.Serialize();
    fuzzing::RequireKept(earlier, saved, [&](pugi::xml_node element) { return IsSaved(element, table); });
    Require(SameStored(ValuesOf(Loaded(table, viewSetup)), ValuesOf(store)), "what was saved is loaded again");
    store.Save(viewSetup);
    Require(document.Serialize() == saved, "saving a second time changes nothing");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    XmlDocument document(L"configuration");
    if (!document.Parse({reinterpret_cast<const char*>(data), size}))
        return 0;
    XmlDocument::XmlNode* viewSetup = document.Node(L"viewSetups/viewSetup");
    if (!viewSetup)
        viewSetup = &AppendSetup(document, ViewSetups, L"zep-01");
    for (const LimitsTable* table :
         {&PowerLimitsTable, &HarmonicLimitsTable(Side::Net), &HarmonicLimitsTable(Side::Load)}) {
        const LimitsStore store = Loaded(*table, *viewSetup);
        CheckExchange(store);
        CheckRules(store);
        CheckSaving(*table, document, *viewSetup);
    }
    return 0;
}
