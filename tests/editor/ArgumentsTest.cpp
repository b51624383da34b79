#include "command/Arguments.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "text/EditorError.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

std::string RefusalOf(std::vector<std::string> arguments)
{
    try {
        (void)ParseArguments(std::move(arguments));
    } catch (const EditorError& error) {
        return error.what();
    }
    return "accepted";
}

// The assignments as they were typed.
std::vector<std::string> AssignmentsOf(const Arguments& arguments)
{
    std::vector<std::string> texts;
    for (const auto& [key, value] : arguments.assignments)
        texts.push_back(key + " := " + value);
    return texts;
}

}  // namespace

TEST(Arguments, WithoutACommandAskForTheWindowOfThisFolder)
{
    const Arguments arguments = ParseArguments({});
    EXPECT_EQ(arguments.command, Command::Window);
    EXPECT_EQ(arguments.project, L".");
    EXPECT_FALSE(arguments.language);
}

TEST(Arguments, TakeProjectAndLanguageBeforeAndAfterTheCommand)
{
    const Arguments before = ParseArguments({"--project", "plant", "--language", "es", "devices"});
    EXPECT_EQ(before.command, Command::Devices);
    EXPECT_EQ(before.project, L"plant");
    EXPECT_EQ(before.language, KZLanguage::Spanish);
    const Arguments after = ParseArguments({"options", "TREN1", "--project", "plant", "--language", "en"});
    EXPECT_EQ(after.command, Command::Options);
    EXPECT_EQ(after.device, L"TREN1");
    EXPECT_EQ(after.project, L"plant");
    EXPECT_EQ(after.language, KZLanguage::English);
}

TEST(Arguments, OfSelectDefaultToAllGroupsNoLimitNoNamesAndNoText)
{
    const Arguments arguments = ParseArguments({"select", "TREN1"});
    EXPECT_EQ(arguments.command, Command::Select);
    EXPECT_EQ(arguments.groups, plant::AllGroups());
    EXPECT_EQ(arguments.maxVariables, 0);
    EXPECT_TRUE(arguments.variables.empty());
    EXPECT_FALSE(arguments.text);
}

TEST(Arguments, OfSelectAreTakenAsTheyStand)
{
    const Arguments arguments = ParseArguments(
        {"select", "GRÚA 1", "--groups", "0x74", "--max", "5", "--list", "A.VI1N,B.HZIN", "--text", "¿Cuáles?"});
    EXPECT_EQ(arguments.device, L"GRÚA 1");
    EXPECT_EQ(arguments.groups, KZVariableGroups{0x74});
    EXPECT_EQ(arguments.maxVariables, 5);
    EXPECT_EQ(arguments.variables, (plant::VariableList{L"A.VI1N", L"B.HZIN"}));
    EXPECT_EQ(arguments.text, L"¿Cuáles?");
}

TEST(Arguments, OfSelectMayStandBeforeTheDevice)
{
    const Arguments arguments = ParseArguments({"select", "--max", "2", "--list", "A.VI1N,B.HZIN", "TREN1"});
    EXPECT_EQ(arguments.device, L"TREN1");
    EXPECT_EQ(arguments.variables, (plant::VariableList{L"A.VI1N", L"B.HZIN"}));
}

TEST(Arguments, TellAnEmptyTextFromNone)
{
    EXPECT_EQ(ParseArguments({"select", "A", "--text", ""}).text, L"");
}

TEST(Arguments, WithABadMaskAreRefusedWithTheValueAndAnExample)
{
    for (const char* mask : {"0xZZ", "0x400000000", "12 34"}) {
        const std::string refusal = RefusalOf({"select", "A", "--groups", mask});
        EXPECT_THAT(refusal, HasSubstr("--groups"));
        EXPECT_THAT(refusal, HasSubstr(mask));
        EXPECT_THAT(refusal, HasSubstr("0x74"));
    }
}

TEST(Arguments, WithAnEmptyMaskAreRefused)
{
    EXPECT_THAT(RefusalOf({"select", "A", "--groups", ""}), HasSubstr("--groups"));
}

TEST(Arguments, WithABadMaximumAreRefusedWithTheRange)
{
    for (const char* maximum : {"-1", "5x", "", "2147483648", "1.5"})
        EXPECT_THAT(RefusalOf({"select", "A", "--max", maximum}), HasSubstr("--max")) << maximum;
    EXPECT_EQ(ParseArguments({"select", "A", "--max", "2147483647"}).maxVariables, 2147483647);
}

TEST(Arguments, WithAnUnknownLanguageAreRefusedWithTheChoice)
{
    for (const char* language : {"fr", "EN", ""})
        EXPECT_THAT(RefusalOf({"--language", language, "devices"}), HasSubstr("en or es")) << language;
}

TEST(Arguments, TakeTextIdsFrom1To65535)
{
    EXPECT_EQ(ParseArguments({"string", "1"}).stringId, 1u);
    EXPECT_EQ(ParseArguments({"string", "65535"}).stringId, 65535u);
    for (const char* id : {"0", "65536", "-1", "abc", "12a"})
        EXPECT_THAT(RefusalOf({"string", id}), HasSubstr("1 to 65535")) << id;
}

TEST(Arguments, ThatAreMissingOrUnknownAreNamedWithTheWayToTheHelp)
{
    EXPECT_THAT(RefusalOf({"options"}), HasSubstr("DEVICE"));
    EXPECT_THAT(RefusalOf({"string"}), HasSubstr("ID"));
    EXPECT_THAT(RefusalOf({"--project"}), HasSubstr("--project"));
    EXPECT_THAT(RefusalOf({"explode"}), HasSubstr("explode"));
    EXPECT_THAT(RefusalOf({"devices", "--groups", "0x1"}), HasSubstr("--groups"));
    EXPECT_THAT(RefusalOf({"options", "A", "third", "A"}), Not(HasSubstr("accepted")));
    EXPECT_THAT(RefusalOf({"explode"}), HasSubstr("--help"));
}

TEST(Arguments, OfHelpGiveTheListOfCommands)
{
    const Arguments arguments = ParseArguments({"--help"});
    EXPECT_EQ(arguments.command, Command::Help);
    for (const char* word : {"devices", "options", "select", "third", "child", "string", "--project", "--language"})
        EXPECT_THAT(arguments.help, HasSubstr(word));
}

TEST(Arguments, OfFieldsNameATypeThatIsZepUnlessTold)
{
    EXPECT_EQ(ParseArguments({"fields"}).command, Command::Fields);
    EXPECT_EQ(ParseArguments({"fields"}).type, L"ZEP");
    EXPECT_EQ(ParseArguments({"fields", "--type", "XYZ"}).type, L"XYZ");
}

TEST(Arguments, OfGetNameNoDeviceOrSomeAndFieldsOneWordEach)
{
    const Arguments all = ParseArguments({"get"});
    EXPECT_EQ(all.command, Command::Get);
    EXPECT_THAT(all.devices, IsEmpty());
    EXPECT_THAT(all.fields, IsEmpty());
    EXPECT_FALSE(all.stored);
    const Arguments some =
        ParseArguments({"get", "--field", "device.mode", "TREN1", "GRÚA 1", "--field", "device.gamma", "--stored"});
    EXPECT_THAT(some.devices, ElementsAre(L"TREN1", L"GRÚA 1"));
    EXPECT_THAT(some.fields, ElementsAre("device.mode", "device.gamma"));
    EXPECT_TRUE(some.stored);
}

TEST(Arguments, OfSetAreDevicesUntilTheFirstWordWithAnEqualsSign)
{
    const Arguments arguments = ParseArguments(
        {"set", "TREN1", "zep-2", "device.minCurrent=-1", "device.mode=a=b", "device.gamma=", "--dry-run"});
    EXPECT_EQ(arguments.command, Command::Set);
    EXPECT_THAT(arguments.devices, ElementsAre(L"TREN1", L"zep-2"));
    EXPECT_THAT(AssignmentsOf(arguments),
                ElementsAre("device.minCurrent := -1", "device.mode := a=b", "device.gamma := "));
    EXPECT_TRUE(arguments.dryRun);
    EXPECT_FALSE(ParseArguments({"set", "A", "b=c"}).dryRun);
    EXPECT_EQ(ParseArguments({"set", "A", "b=c", "--project", "plant", "--language", "es"}).project, L"plant");
}

TEST(Arguments, OfSetAreRefusedWithoutDeviceWithoutAssignmentAndWithADeviceTooLate)
{
    EXPECT_THAT(RefusalOf({"set"}), HasSubstr("DEVICE"));
    EXPECT_THAT(RefusalOf({"set", "device.minCurrent=1"}), HasSubstr("DEVICE"));
    EXPECT_THAT(RefusalOf({"set", "TREN1"}), HasSubstr("KEY=VALUE"));
    EXPECT_THAT(RefusalOf({"set", "TREN1", "a=b", "TREN2"}), HasSubstr("KEY=VALUE \"TREN2\""));
    EXPECT_THAT(RefusalOf({"set", "TREN1", "a=b", "-5"}), HasSubstr("KEY=VALUE \"-5\""));
}

TEST(Arguments, ThatLookLikeOptionsListsOrPathsAreTakenAsTheyStand)
{
    for (const char* name :
         {"-5", "-x", "-.5", "/x", "/language", "[A,B]", "[]", "{}", "{A}", "++", "\x1F", "", "get"}) {
        const std::wstring wide = FromUtf8(name);
        EXPECT_THAT(ParseArguments({"get", name, "A"}).devices, ElementsAre(wide, L"A")) << name;
        EXPECT_EQ(ParseArguments({"options", name}).device, wide) << name;
        EXPECT_THAT(ParseArguments({"get", "--field", name}).fields, ElementsAre(name)) << name;
        EXPECT_THAT(AssignmentsOf(ParseArguments({"set", "A", std::string("k=") + name})),
                    ElementsAre(std::string("k := ") + name));
    }
    EXPECT_THAT(RefusalOf({"devices", "[A]"}), HasSubstr(" [A]"));
}

TEST(Arguments, OfCopyAreOneDeviceThenOthers)
{
    const Arguments arguments =
        ParseArguments({"copy", "--section", "units", "TREN1", "TREN2", "TREN3", "--section", "limits", "--dry-run"});
    EXPECT_EQ(arguments.command, Command::Copy);
    EXPECT_EQ(arguments.device, L"TREN1");
    EXPECT_THAT(arguments.devices, ElementsAre(L"TREN2", L"TREN3"));
    EXPECT_THAT(arguments.sections, ElementsAre(plant::FieldSection::Units, plant::FieldSection::Limits));
    EXPECT_THAT(arguments.fields, IsEmpty());
    EXPECT_TRUE(arguments.dryRun);
    EXPECT_THAT(ParseArguments({"copy", "A", "B", "--field", "device.mode"}).fields, ElementsAre("device.mode"));
}

TEST(Arguments, OfCopyAreRefusedWithoutTargetAndWithFieldsBesideSections)
{
    EXPECT_THAT(RefusalOf({"copy"}), HasSubstr("FROM"));
    EXPECT_THAT(RefusalOf({"copy", "A"}), HasSubstr("TO"));
    EXPECT_THAT(RefusalOf({"copy", "A", "B", "--section", "colours"}), HasSubstr("--section \"colours\""));
    EXPECT_THAT(RefusalOf({"copy", "A", "B", "--section", "units", "--field", "device.mode"}), HasSubstr("--section"));
    EXPECT_THAT(RefusalOf({"copy", "A", "B", "--section"}), HasSubstr("--section"));
}

TEST(Arguments, OfCheckExportImportDiffAndModulesAreTakenAsTheyStand)
{
    EXPECT_EQ(ParseArguments({"check"}).command, Command::Check);
    EXPECT_THAT(ParseArguments({"check", "A", "B"}).devices, ElementsAre(L"A", L"B"));
    EXPECT_EQ(ParseArguments({"export"}).command, Command::Export);
    EXPECT_FALSE(ParseArguments({"export"}).output);
    EXPECT_EQ(ParseArguments({"export", "--output", "ñ.csv", "--field", "device.mode"}).output, L"ñ.csv");
    EXPECT_EQ(ParseArguments({"import", "table.csv"}).command, Command::Import);
    EXPECT_EQ(ParseArguments({"import", "/table.csv", "--dry-run"}).otherPath, L"/table.csv");
    EXPECT_EQ(ParseArguments({"diff", "other"}).command, Command::Diff);
    EXPECT_EQ(ParseArguments({"diff", "other"}).otherPath, L"other");
    EXPECT_EQ(ParseArguments({"modules"}).command, Command::Modules);
    EXPECT_THAT(RefusalOf({"import"}), HasSubstr("FILE"));
    EXPECT_THAT(RefusalOf({"diff"}), HasSubstr("FOLDER"));
    EXPECT_THAT(RefusalOf({"export", "A"}), HasSubstr("A"));
    EXPECT_THAT(RefusalOf({"modules", "--dry-run"}), HasSubstr("--dry-run"));
}
