// The command that looks at all that the editor needs, run as somebody who helps a user runs it.
#include <gmock/gmock.h>

#include <algorithm>
#include <fstream>
#include <sstream>

#include "EditorFixture.h"
#include "diagnosis/DiagnosisParts.h"

namespace fs = std::filesystem;

namespace {

using editor_tests::EditorTest;
using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

using Lines = std::vector<std::string>;

Lines LinesOf(const std::string& text)
{
    Lines lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

// What a number separator is in Windows' settings, for as long as it lives.
class OtherSeparator {
public:
    explicit OtherSeparator(const wchar_t* text)
    {
        ::GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, m_before, static_cast<int>(std::size(m_before)));
        ::SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, text);
    }
    ~OtherSeparator() { ::SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, m_before); }
    OtherSeparator(const OtherSeparator&) = delete;
    OtherSeparator& operator=(const OtherSeparator&) = delete;

private:
    wchar_t m_before[16] = {};
};

class DiagnoseCommand : public EditorTest {
protected:
    // The lines that the command prints about the project.
    Lines Print(int status)
    {
        auto& editor = Start({"diagnose"});
        EXPECT_EQ(editor.Wait(), status);
        EXPECT_EQ(editor.Errors(), "");
        return LinesOf(editor.Output());
    }

    // The lines that tell of something wrong.
    Lines Faults()
    {
        Lines lines = Print(1);
        std::erase_if(lines, [](const std::string& line) { return line.ends_with("\t-"); });
        return lines;
    }
};

}  // namespace

TEST_F(DiagnoseCommand, FindsNothingWrongWithAWholeInstallation)
{
    m_program.AddRealModule();
    const Lines lines = Print(0);
    EXPECT_THAT(lines, testing::Each(EndsWith("\t-")));
    EXPECT_THAT(lines, testing::Each(testing::Truly(
                           [](const std::string& line) { return std::count(line.begin(), line.end(), '\t') == 3; })));
    Lines starts;
    for (const std::string& line : lines)
        starts.push_back(line.substr(0, line.find('\t', line.find('\t') + 1)));
    const std::string project = ProjectPath();
    EXPECT_THAT(starts,
                testing::ElementsAre("file\tKZEditor.exe", "file\tKZHost.dll", "file\tKZMfc.dll", "file\tlibcsv.dll",
                                     "file\tlibstdc++-6.dll", "file\tlibgcc_s_seh-1.dll", "file\tlibwinpthread-1.dll",
                                     "file\timages", "module\tKZUsrZEP.dll", "windows\tversion", "locale\tuser",
                                     "locale\tlanguage", "locale\tdecimal separator", "screen\tdots per inch",
                                     "font\tMS Shell Dlg", "font\tMS Sans Serif", StartsWith("project\t"),
                                     "project\tmain.xml", "project\tdevices"));
    EXPECT_EQ(lines[0], "file\tKZEditor.exe\t" KZ_VERSION ".0\t-");
    EXPECT_EQ(lines[8], "module\tKZUsrZEP.dll\t" KZ_VERSION ".0 ready\t-");
    EXPECT_EQ(lines[11], "locale\tlanguage\ten\t-");
    EXPECT_EQ(lines[13], "screen\tdots per inch\t96\t-");
}

TEST_F(DiagnoseCommand, LeavesTheProjectAsItIs)
{
    m_program.AddRealModule();
    const auto before = ProjectFiles();
    Print(0);
    EXPECT_EQ(ProjectFiles(), before);
}

TEST_F(DiagnoseCommand, SaysNothingOfAProjectWhereThereIsNone)
{
    m_program.AddRealModule();
    auto& editor = StartBare({"diagnose"});
    EXPECT_EQ(editor.Wait(), 0);
    EXPECT_THAT(editor.Output(), Not(HasSubstr("project")));
}

TEST_F(DiagnoseCommand, TellsWhatIsWrongWithAModule)
{
    EXPECT_THAT(Faults(),
                testing::ElementsAre(StartsWith("module\tKZUsrZEP.dll\tmissing\tThe module KZUsrZEP.dll is not in ")));
    m_program.AddModule("refusing");
    EXPECT_THAT(Faults(), testing::ElementsAre(StartsWith("module\tKZUsrZEP.dll\trefused\tThe entry of ")));
}

TEST_F(DiagnoseCommand, TellsThatALibraryIsOfAnotherVersion)
{
    m_program.AddRealModule();
    // The major version stands behind the signature of the version resource, in the upper half of the second number.
    std::string bytes = m_folder.Read("program/KZMfc.dll");
    const std::size_t place = bytes.find("\xBD\x04\xEF\xFE");
    ASSERT_NE(place, std::string::npos);
    bytes[place + 10] = 9;
    m_folder.Write("program/KZMfc.dll", bytes);
    EXPECT_THAT(Faults(), testing::ElementsAre(AllOf(StartsWith("file\tKZMfc.dll\t9."),
                                                     HasSubstr("KZEditor.exe of " KZ_VERSION ".0;"))));
}

TEST_F(DiagnoseCommand, TellsThatALibraryWasLoadedFromElsewhere)
{
    m_program.AddRealModule();
    fs::remove(m_program.Path() / "libcsv.dll");  // the tests' PATH leads to another one
    EXPECT_THAT(Faults(), testing::ElementsAre(StartsWith("file\tlibcsv.dll\t3.0.3.0\tlibcsv.dll was loaded from ")));
}

TEST_F(DiagnoseCommand, TellsThatAPictureIsMissing)
{
    m_program.AddRealModule();
    fs::remove(m_program.Path() / "images" / "OK-16.png");
    EXPECT_THAT(Faults(), testing::ElementsAre(AllOf(StartsWith("file\timages\t-\t"), HasSubstr("OK-16.png"))));
}

TEST_F(DiagnoseCommand, TellsThatTheSeparatorsOfNumbersAreTheSame)
{
    m_program.AddRealModule();
    const OtherSeparator thousands(L".");
    EXPECT_THAT(Faults(), testing::ElementsAre(StartsWith("locale\tdecimal separator\t.\tWindows takes \".\" both ")));
}

TEST_F(DiagnoseCommand, TellsWhatIsWrongWithTheProject)
{
    m_program.AddRealModule();
    const fs::path main = m_folder.Path() / "plant" / "main.xml";
    ::SetFileAttributesW(main.c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_THAT(Faults(),
                testing::ElementsAre(AllOf(StartsWith("project\tmain.xml\t-\t"), HasSubstr("is read-only;"))));
    ::SetFileAttributesW(main.c_str(), FILE_ATTRIBUTE_NORMAL);

    // Nothing can be written to a folder that is none.
    fs::remove_all(m_folder.Path() / "plant" / "devices");
    m_folder.Write("plant/devices", "");
    EXPECT_THAT(Faults(), testing::ElementsAre(StartsWith("project\tdevices\t-\t")));

    fs::remove(main);
    EXPECT_THAT(Faults(), testing::ElementsAre(AllOf(StartsWith("project\t"), HasSubstr("main.xml does not exist"))));
    fs::remove_all(m_folder.Path() / "plant");
    EXPECT_THAT(Faults(), testing::ElementsAre(AllOf(StartsWith("project\t"), HasSubstr("plant does not exist"))));
}

TEST(DiagnoseFont, NamesTheCharactersThatAFontLacks)
{
    Diagnosis diagnosis;
    const HDC screen = ::GetDC(nullptr);
    DiagnoseFont(diagnosis, screen, L"Symbol");
    DiagnoseFont(diagnosis, screen, L"Tahoma");
    ::ReleaseDC(nullptr, screen);
    ASSERT_EQ(diagnosis.size(), 2u);
    EXPECT_EQ(diagnosis[0].value, L"Symbol");
    EXPECT_NE(diagnosis[0].fault.find(L"ñ"), std::wstring::npos);
    EXPECT_EQ(diagnosis[1].value, L"Tahoma");
    EXPECT_EQ(diagnosis[1].fault, L"");
}
