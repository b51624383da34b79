// What the editor remembers.
#include <gmock/gmock.h>

#include "TemporaryFolder.h"
#include "settings/EditorSettings.h"

namespace {

class Settings : public testing::Test {
protected:
    [[nodiscard]] EditorSettings Stored() const { return SettingsFile(File()).settings; }
    [[nodiscard]] std::filesystem::path File() const { return m_folder.Path() / "below" / "settings.xml"; }

    kztest::TemporaryFolder m_folder;
};

TEST_F(Settings, AreWhatWasStored)
{
    SettingsFile file(File());
    EXPECT_EQ(file.settings, EditorSettings());
    file.settings.Remember(L"C:\\plant & co");
    file.settings.Remember(L"D:\\ñ");
    file.settings.language = KZLanguage::Spanish;
    file.settings.place = RECT{-20, 10, 900, 700};
    file.settings.isMaximized = true;
    file.settings.listShare = 333;
    file.settings.findingsShare = 222;
    file.settings.deviceColumns = {28, 40};
    file.settings.findingColumns = {100};
    file.Store();
    EXPECT_EQ(Stored(), file.settings);
    EXPECT_EQ(Stored().lastProject, L"D:\\ñ");
    EXPECT_THAT(Stored().recent, testing::ElementsAre(L"D:\\ñ", L"C:\\plant & co"));
}

TEST_F(Settings, KeepTheLastTenProjectsEachOnce)
{
    EditorSettings settings;
    for (int number = 0; number < 12; ++number)
        settings.Remember(L"P" + std::to_wstring(number));
    settings.Remember(L"P5");
    ASSERT_EQ(settings.recent.size(), EditorSettings::MostRecent);
    EXPECT_EQ(settings.recent.front(), L"P5");
    EXPECT_EQ(settings.recent.back(), L"P2");
    settings.Forget(0);
    EXPECT_EQ(settings.recent.front(), L"P11");
    EXPECT_EQ(settings.lastProject, L"P5") << "it is opened all the same";
}

TEST_F(Settings, ThatAreBrokenAreReplaced)
{
    for (const char* broken :
         {"", "<settings>", "<other/>",
          "<settings><recent/><recent/><left>x</left><deviceColumns>x 7</deviceColumns></settings>"}) {
        m_folder.Write("below/settings.xml", broken);
        SettingsFile file(File());
        EXPECT_EQ(file.settings, EditorSettings()) << broken;
        file.settings.listShare = 500;
        file.Store();
        EXPECT_EQ(Stored().listShare, 500) << broken;
    }
}

TEST_F(Settings, KeepColumnsThatCanBeSeenAndDragged)
{
    m_folder.Write("below/settings.xml", "<settings><deviceColumns>-7 50 99999999</deviceColumns></settings>");
    EXPECT_THAT(Stored().deviceColumns, testing::ElementsAre(4, 50, 4000));
}

TEST_F(Settings, ThatCannotBeStoredHinderNobody)
{
    std::filesystem::create_directories(File() / "occupied");
    SettingsFile file(File());
    file.settings.listShare = 500;
    file.Store();
    EXPECT_EQ(Stored(), EditorSettings());
}

TEST_F(Settings, AreInTheFileThatTheEnvironmentNames)
{
    ::SetEnvironmentVariableW(L"KZ_SETTINGS", L"C:\\mine.xml");
    EXPECT_EQ(SettingsFile::OfTheUser(), L"C:\\mine.xml");
    ::SetEnvironmentVariableW(L"KZ_SETTINGS", nullptr);
    EXPECT_TRUE(SettingsFile::OfTheUser().wstring().ends_with(L"\\KZEditor\\settings.xml"));
}

}  // namespace
