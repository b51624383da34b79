// The table of a filter's fields: which there are, in which order, of which kind, within which bounds.
#include <gtest/gtest.h>

#include "fields/Field.h"

namespace {

using plant::Field;
using plant::FieldKind;
using plant::FieldTable;

const FieldTable& Zep()
{
    return *plant::FieldsOfType(L"ZEP");
}

const Field& Row(const std::string& key)
{
    const Field* const field = plant::FindField(Zep(), key);
    if (!field)
        throw std::invalid_argument("no field " + key);
    return *field;
}

std::vector<std::string> Keys()
{
    std::vector<std::string> keys;
    for (const Field& field : Zep())
        keys.push_back(field.key);
    return keys;
}

std::vector<std::string> ExpectedKeys()
{
    std::vector<std::string> keys{"device.version", "device.serialNum",  "device.gamma",      "device.mode",
                                  "device.filters", "device.transRatio", "device.minCurrent", "device.algorithm",
                                  "device.status",  "device.numZEP",     "units.AP-VA.scale", "units.AP-VA.decimals",
                                  "units.RP.scale", "units.RP.decimals", "limits.PF.nominal", "limits.PF.maxW",
                                  "limits.PF.maxD", "limits.PF.minW",    "limits.PF.minD"};
    std::vector<std::string> variables{"AP", "RP", "VA"};
    for (const char* side : {"N", "L"})
        for (int order = 1; order <= 25; order += 2)
            variables.push_back("ARM" + std::to_string(order) + "A" + side);
    for (const std::string& variable : variables)
        for (const char* limit : {"nominal", "maxW", "maxD"})
            keys.push_back("limits." + variable + "." + limit);
    return keys;
}

TEST(FieldTable, HasEveryFieldInItsOrder)
{
    EXPECT_EQ(Keys(), ExpectedKeys());
    EXPECT_EQ(Zep().size(), 106U);
}

TEST(FieldTable, KnowsTheRowOfEachField)
{
    for (std::size_t row = 0; row < Zep().size(); ++row)
        EXPECT_EQ(Zep()[row].row, row) << Zep()[row].key;
}

TEST(FieldTable, IsThereForKnownTypesOnly)
{
    EXPECT_EQ(plant::FieldsOfType(L"X99"), nullptr);
    EXPECT_EQ(plant::FieldsOfType(L"zep"), nullptr);
    EXPECT_EQ(plant::FieldsOfType(L""), nullptr);
}

TEST(FieldTable, FindsWholeKeysOnly)
{
    EXPECT_EQ(plant::FindField(Zep(), "device.numZEP"), &Row("device.numZEP"));
    for (const char* key : {"", "device", "device.numzep", "device.numZEP ", "limits.PF", "limits.AP.minW"})
        EXPECT_EQ(plant::FindField(Zep(), key), nullptr) << key;
}

struct Expected {
    const char* key;
    FieldKind kind;
    const char* unit;
    const char* values;
    bool isWritable;
};

TEST(FieldTable, SaysKindUnitAndBounds)
{
    using enum FieldKind;
    const Expected rows[] = {
        {"device.version", Text, "", "", false},
        {"device.mode", Set, "", "harmonics|reactive|balance|neutral", true},
        {"device.filters", Set, "", "3|5|7|9|11|13|15|17|19|21|23|25", true},
        {"device.transRatio", WholeNumber, "A", "", false},
        {"device.minCurrent", WholeNumber, "A", "0..200", true},
        {"device.algorithm", Choice, "", "standard|selective|fast", false},
        {"device.status", Choice, "", "stopped|running", false},
        {"device.numZEP", WholeNumber, "", "1..8", true},
        {"units.AP-VA.scale", Choice, "", "kilo|plain", true},
        {"units.RP.decimals", WholeNumber, "", "0..3", true},
        {"limits.PF.nominal", Decimal, "", "0|1", true},
        {"limits.PF.maxW", Decimal, "", "", true},
        {"limits.PF.maxD", Decimal, "", "-1..1", true},
        {"limits.PF.minW", Decimal, "", "-1..1", true},
        {"limits.PF.minD", Decimal, "", "", true},
        {"limits.AP.nominal", Decimal, "kW", "", true},
        {"limits.RP.nominal", Decimal, "kvar", "", true},
        {"limits.VA.maxW", Decimal, "%", ">0..<100", true},
        {"limits.VA.nominal", Decimal, "kVA", "", true},
        {"limits.ARM1AN.nominal", Decimal, "A", "0..", true},
        {"limits.ARM1AN.maxW", Decimal, "%", ">0..100", true},
        {"limits.ARM25AL.nominal", Decimal, "%", "0..<100", true},
        {"limits.ARM25AL.maxD", Decimal, "%", ">0..100", true},
    };
    for (const Expected& expected : rows) {
        const Field& field = Row(expected.key);
        EXPECT_EQ(field.kind, expected.kind) << field.key;
        EXPECT_EQ(field.unit, expected.unit) << field.key;
        EXPECT_EQ(field.values, expected.values) << field.key;
        EXPECT_EQ(field.isWritable, expected.isWritable) << field.key;
    }
}

TEST(FieldTable, NamesEveryField)
{
    for (const Field& field : Zep())
        EXPECT_EQ(field.caption.size(), field.section == plant::FieldSection::Device ? 1U
                                        : field.key.starts_with("limits.ARM")        ? 3U
                                                                                     : 2U)
            << field.key;
}

}  // namespace
