#include "command/Arguments.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "text/EditorError.h"

namespace {

using testing::HasSubstr;
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
