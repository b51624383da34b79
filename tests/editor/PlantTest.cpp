// The example project is what its description says, and goes through the documents unchanged.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "KZMainCfg.h"
#include "project/ChosenVariables.h"
#include "project/GroupMask.h"
#include "project/Project.h"

namespace fs = std::filesystem;

namespace {

const fs::path folder = fs::path(KZ_EXAMPLES) / "plant";

std::string Content(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

}  // namespace

TEST(Plant, HasSixFiltersWithADocumentEach)
{
    const plant::Project project(folder);
    ASSERT_EQ(project.Devices().size(), 6u);
    for (const KZDeviceIdentity& device : project.Devices()) {
        EXPECT_EQ(device.typeName, L"ZEP");
        const std::wstring file = device.driverId.c_str() + std::wstring(L".xml");
        XmlDocument document(L"device");
        const KZDocumentResult loaded = document.Load(folder / "devices" / file);
        EXPECT_TRUE(loaded.ok) << folder / "devices" / file;
    }
}

TEST(Plant, HasOneDeviceWithoutMeasuredGroups)
{
    const plant::Project project(folder);
    int without = 0;
    for (const KZDeviceIdentity& device : project.Devices())
        without += (device.groups & plant::MeasuredGroups).none() ? 1 : 0;
    EXPECT_EQ(without, 1);
}

TEST(Plant, HasChosenVariablesThatBeginWithTheirDevicesName)
{
    const plant::Project project(folder);
    std::size_t count = 0;
    for (const KZDeviceIdentity& device : project.Devices()) {
        for (const KZBasicString& variable : plant::ChosenVariables(*KZMainCfg::Get(), device.driverId)) {
            EXPECT_TRUE(variable.View().starts_with(std::wstring(device.name.View()) + L"."));
            ++count;
        }
    }
    EXPECT_EQ(count, 7u);
}

TEST(Plant, KeepsEveryElementAttributeAndCommentWhenItIsWrittenAgain)
{
    for (const char* name : {"main.xml", "devices/zep-01.xml", "devices/zep-05.xml", "devices/zep-06.xml"}) {
        const std::string content = Content(folder / name);
        ASSERT_FALSE(content.empty()) << name;
        XmlDocument document(std::string(name) == "main.xml" ? L"configuration" : L"device");
        ASSERT_TRUE(document.Parse(content).ok) << name;
        XmlDocument again(document.Root()->Name());
        ASSERT_TRUE(again.Parse(document.Serialize()).ok) << name;
        EXPECT_EQ(again.Serialize(), document.Serialize()) << name;
        for (const char* kept :
             {"<!--", "schema=\"3\"", "origin=\"field\"", "xml:space=\"preserve\"", "Núñez", "10.20.6.14:502"})
            EXPECT_EQ(document.Serialize().find(kept) != std::string::npos, content.find(kept) != std::string::npos)
                << name << ": " << kept;
    }
}
