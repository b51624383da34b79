#include "project/Project.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "KZMainCfg.h"
#include "KZUtf8.h"
#include "ProjectXml.h"
#include "TemporaryFolder.h"
#include "text/PlantMessage.h"

namespace {

using editor_tests::DeviceXml;
using editor_tests::MainXml;
using kztest::TemporaryFolder;
using testing::HasSubstr;

std::string Sentence(const plant::Refusal& refusal)
{
    return ToUtf8(PlantMessage(refusal.What()));
}

class ProjectTest : public testing::Test {
protected:
    // The error of a project with these devices; the file must come out of it untouched.
    std::string ErrorOf(const std::string& devices)
    {
        const std::string content = MainXml(devices);
        m_folder.Write("main.xml", content);
        std::string error = "accepted";
        try {
            const plant::Project project(m_folder.Path());
        } catch (const plant::Refusal& refused) {
            error = Sentence(refused);
        }
        EXPECT_EQ(m_folder.Read("main.xml"), content);
        EXPECT_EQ(error.find('\n'), std::string::npos);
        return error;
    }

    TemporaryFolder m_folder;
};

}  // namespace

TEST_F(ProjectTest, ListsItsDevicesInTheDocumentsOrder)
{
    m_folder.Write("main.xml", MainXml(DeviceXml("zep-2", "GRÚA.1", "0x70", "ZEP", "7") + DeviceXml("zep-1", "CPD")));
    const plant::Project project(m_folder.Path());
    ASSERT_EQ(project.Devices().size(), 2u);
    const KZDeviceIdentity& first = project.Devices()[0];
    EXPECT_EQ(first.driverId, L"zep-2");
    EXPECT_EQ(first.name, L"GRÚA.1");
    EXPECT_EQ(first.number, 7);
    EXPECT_EQ(first.typeName, L"ZEP");
    EXPECT_EQ(first.description, L"Filtro de prueba, línea ñ");
    EXPECT_EQ(first.groups, KZVariableGroups{0x70});
    EXPECT_EQ(project.Devices()[1].name, L"CPD");
}

TEST_F(ProjectTest, IsCalledAfterItsFolder)
{
    m_folder.Write(L"Planta Ñ/main.xml", MainXml(""));
    EXPECT_EQ(plant::Project(m_folder.Path() / L"Planta Ñ").Name(), L"Planta Ñ");
    EXPECT_EQ(plant::Project(m_folder.Path() / L"Planta Ñ/").Name(), L"Planta Ñ");
    EXPECT_EQ(plant::Project(m_folder.Path() / L"Planta Ñ/./x/..").Name(), L"Planta Ñ");
}

TEST_F(ProjectTest, WithoutDeviceListHasNoDevices)
{
    m_folder.Write("main.xml", "<configuration/>");
    EXPECT_TRUE(plant::Project(m_folder.Path()).Devices().empty());
}

TEST_F(ProjectTest, ListsADeviceOfAnUnknownTypeThatNoModuleServes)
{
    m_folder.Write("main.xml", MainXml(DeviceXml("x-1", "OTHER", "0x1", "XYZ")));
    const plant::Project project(m_folder.Path());
    ASSERT_EQ(project.Devices().size(), 1u);
    EXPECT_EQ(project.Devices()[0].typeName, L"XYZ");
}

TEST_F(ProjectTest, TakesMissingNumberAndGroupsAsNone)
{
    m_folder.Write("main.xml", MainXml("<device><driverId>a</driverId><name>A</name></device>"));
    const plant::Project project(m_folder.Path());
    EXPECT_EQ(project.Devices()[0].number, 0);
    EXPECT_EQ(project.Devices()[0].groups, KZVariableGroups{});
}

TEST_F(ProjectTest, FindsADeviceByItsExactNameAndNamesTheOthersWhenThereIsNone)
{
    m_folder.Write("main.xml", MainXml(DeviceXml("zep-1", "CPD") + DeviceXml("zep-2", "TREN1")));
    const plant::Project project(m_folder.Path());
    EXPECT_EQ(project.DeviceByName(L"TREN1"), 1u);
    try {
        (void)project.DeviceByName(L"tren1");
        FAIL() << "a name in another case was found";
    } catch (const plant::Refusal& error) {
        EXPECT_THAT(Sentence(error), HasSubstr("\"tren1\""));
        EXPECT_THAT(Sentence(error), HasSubstr("main.xml"));
        EXPECT_THAT(Sentence(error), HasSubstr("CPD, TREN1"));
    }
}

TEST_F(ProjectTest, NeedsAnExistingFolderWithAMainXml)
{
    const auto errorOf = [](const std::filesystem::path& folder) -> std::string {
        try {
            const plant::Project project(folder);
        } catch (const plant::Refusal& error) {
            return Sentence(error);
        }
        return "accepted";
    };
    EXPECT_THAT(errorOf(m_folder.Path() / "nowhere"), testing::AllOf(HasSubstr("nowhere"), HasSubstr("--project")));
    EXPECT_THAT(errorOf(m_folder.Path()), testing::AllOf(HasSubstr("main.xml"), HasSubstr("--project")));
}

TEST_F(ProjectTest, NamesTheBrokenMainXmlAndLeavesIt)
{
    const std::string broken = "<configuration><devices></configuration>";
    m_folder.Write("main.xml", broken);
    try {
        const plant::Project project(m_folder.Path());
        FAIL() << "a broken document was accepted";
    } catch (const plant::Refusal& error) {
        EXPECT_THAT(Sentence(error), HasSubstr("main.xml"));
    }
    EXPECT_EQ(m_folder.Read("main.xml"), broken);
}

TEST_F(ProjectTest, RefusesDevicesWithoutIdentifierOrName)
{
    EXPECT_THAT(ErrorOf(DeviceXml("", "CPD")),
                testing::AllOf(HasSubstr("main.xml"), HasSubstr("CPD"), HasSubstr("driverId")));
    EXPECT_THAT(ErrorOf(DeviceXml("zep-1", "")), testing::AllOf(HasSubstr("zep-1"), HasSubstr("\"name\"")));
    EXPECT_THAT(ErrorOf(DeviceXml("zep-1", "CPD") + "<device/>"), HasSubstr("#2"));
}

TEST_F(ProjectTest, RefusesIdentifiersAndNamesThatComeTwice)
{
    EXPECT_THAT(ErrorOf(DeviceXml("zep-1", "A") + DeviceXml("zep-1", "B")),
                testing::AllOf(HasSubstr("B"), HasSubstr("zep-1")));
    EXPECT_THAT(ErrorOf(DeviceXml("zep-1", "A") + DeviceXml("ZEP-1", "B")), HasSubstr("ZEP-1"));
    EXPECT_THAT(ErrorOf(DeviceXml("zep-1", "A") + DeviceXml("zep-2", "A")), HasSubstr("\"A\""));
    EXPECT_EQ(ErrorOf(DeviceXml("zep-1", "A") + DeviceXml("zep-2", "a")), "accepted");
}

TEST_F(ProjectTest, RefusesIdentifiersThatQueriesCannotHold)
{
    for (const char* id : {"a?", "a?/b", "a&#9;b"})
        EXPECT_THAT(ErrorOf(DeviceXml(id, "A")), HasSubstr("control character")) << id;
    for (const char* id : {"..", "a/b", "a*", "Ñ 1"})
        EXPECT_EQ(ErrorOf(DeviceXml(id, "A")), "accepted") << id;
}

TEST_F(ProjectTest, TellsTheHostWhereItsDocumentsAre)
{
    m_folder.Write("main.xml", MainXml(""));
    const plant::Project project(m_folder.Path());
    EXPECT_EQ(std::filesystem::path(std::wstring(KZMainCfg::ProjectFolder().View())), m_folder.Path());
}

TEST_F(ProjectTest, RefusesNumbersAndMasksThatAreNone)
{
    for (const char* number : {"1x", "-1", "x", "1.5", "99999999999"})
        EXPECT_THAT(ErrorOf(DeviceXml("zep-1", "A", "0x1", "ZEP", number)), HasSubstr(number)) << number;
    for (const char* groups : {"0xZ", "0x400000000", "7 4"})
        EXPECT_THAT(ErrorOf(DeviceXml("zep-1", "A", groups)), testing::AllOf(HasSubstr(groups), HasSubstr("0x74")))
            << groups;
}

TEST_F(ProjectTest, SavesOnlyWhenItIsDirty)
{
    const std::string content = MainXml("<!-- keep -->" + DeviceXml("zep-1", "CPD"));
    m_folder.Write("main.xml", content);
    plant::Project project(m_folder.Path());
    EXPECT_FALSE(project.IsDirty());
    KZMainCfg::Get()->Root()->SetValue(L"added", L"ñ");
    EXPECT_EQ(project.Save("window"), plant::Project::Outcome::Done);
    EXPECT_EQ(m_folder.Read("main.xml"), content);
    KZMainCfg::Get()->SetDirty(true);
    EXPECT_TRUE(project.IsDirty());
    EXPECT_EQ(project.Save("window"), plant::Project::Outcome::Done);
    EXPECT_FALSE(project.IsDirty());
    EXPECT_THAT(m_folder.Read("main.xml"), HasSubstr("<added>ñ</added>"));
    EXPECT_THAT(m_folder.Read("main.xml"), HasSubstr("<!-- keep -->"));
}
