// What a crash of the editor leaves, and what the next start makes of it. The crashes are real ones, in a module.
#include "crash/CrashReport.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <regex>

#include "EditorFixture.h"
#include "KZUtf8.h"
#include "resources/EditorIds.h"

namespace fs = std::filesystem;

namespace {

using editor_tests::EditorTest;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

// GoogleTest's own expressions have no classes of characters here.
bool Holds(const std::string& report, const char* expression)
{
    return std::regex_search(report, std::regex(expression));
}

class CrashReports : public EditorTest {
protected:
    CrashReports() { m_program.AddModule("crashing"); }

    [[nodiscard]] std::vector<fs::path> Files() const
    {
        std::error_code none;
        std::vector<fs::path> files;
        for (const auto& entry : fs::directory_iterator(m_program.CrashReports(), none))
            files.push_back(entry.path());
        return files;
    }

    // Lets the options crash in that way, and gives the report.
    std::string Crash(const wchar_t* kind)
    {
        ::SetEnvironmentVariableW(L"KZ_TEST_CRASH", kind);
        const int status = Start({"options", "GRÚA.1"}).Wait();
        EXPECT_NE(status, -1);
        EXPECT_GT(static_cast<unsigned>(status), 2u);
        return TheReport();
    }

    [[nodiscard]] std::string TheReport() const
    {
        const std::vector<fs::path> files = Files();
        EXPECT_THAT(files, SizeIs(1));
        return files.empty() ? "" : kztest::BytesOf(files[0]);
    }

    // Puts a report there, as an editor that crashed then would have.
    fs::path Leave(const std::string& name, const std::string& text) const
    {
        fs::create_directories(m_program.CrashReports());
        return m_folder.Write(m_program.CrashReports() / name, text);
    }
};

}  // namespace

// tests/editor/resolve-crash.sh takes the report from here.
TEST_F(CrashReports, AFaultLeavesVersionsCallsAndCommands)
{
    const std::string report = Crash(L"fault");
    EXPECT_THAT(report, StartsWith("KZEditor " KZ_VERSION ".0\r\nwindows "));
    EXPECT_THAT(report, HasSubstr(" UTC\r\ncrash access violation c0000005\r\ncommands 2\r\n"));
    EXPECT_TRUE(Holds(report, "\nmodule KZEditor.exe " KZ_VERSION ".0 [0-9a-f]+\r\n")) << report;
    EXPECT_TRUE(Holds(report, "\nframe KZUsrZEP.dll [0-9a-f]+\r\nframe KZEditor.exe [0-9a-f]+\r\n")) << report;
    if (const char* copy = std::getenv("KZ_TEST_REPORT"))
        fs::copy_file(Files()[0], copy, fs::copy_options::overwrite_existing);
}

TEST_F(CrashReports, AnExceptionThatNobodyCatchesLeavesItsType)
{
    const std::string report = Crash(L"exception");
    EXPECT_THAT(report, HasSubstr("crash exception i\r\n"));
    EXPECT_THAT(report, HasSubstr("\nframe KZUsrZEP.dll "));
}

TEST_F(CrashReports, ACallToNowhereLeavesTheCaller)
{
    const std::string report = Crash(L"nowhere");
    EXPECT_TRUE(Holds(report, "\nframe - 0\r\nframe KZUsrZEP.dll [0-9a-f]+\r\n")) << report;
}

TEST_F(CrashReports, HoldNothingOfTheProjectOrTheUser)
{
    for (const wchar_t* kind : {L"fault", L"exception"}) {
        const std::string report = Crash(kind);
        EXPECT_THAT(report, Not(HasSubstr("\\")));
        EXPECT_THAT(report, Not(HasSubstr("plant")));
        EXPECT_THAT(report, Not(HasSubstr("GR")));
        fs::remove(Files()[0]);
    }
}

TEST_F(CrashReports, NameTheCommandsOfTheWindow)
{
    ::SetEnvironmentVariableW(L"KZ_TEST_CRASH", L"fault");
    const HWND window = Start({}).WindowTitled(L"KZEditor – plant");
    ASSERT_NE(window, nullptr);
    ::PostMessageW(window, WM_COMMAND, IDC_SAVE, 0);
    ::PostMessageW(window, WM_COMMAND, IDC_OPTIONS, 0);
    EXPECT_NE(m_editor->Wait(), -1);
    EXPECT_THAT(TheReport(),
                HasSubstr("\r\ncommands 0 " + std::to_string(IDC_SAVE) + " " + std::to_string(IDC_OPTIONS) + "\r\n"));
}

TEST_F(CrashReports, AreShownOnceAtTheNextStartAndCopied)
{
    const std::string text = "KZEditor 0.9\r\ncrash ñ\r\n";
    Leave("2026-01-01 10-00-00 1.new.txt", "older");
    Leave("2026-01-02 10-00-00 1.new.txt", text);
    const HWND dialog = Start({}).WindowTitled(L"KZEditor ended unexpectedly");
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(editor_tests::TextOf(::GetDlgItem(dialog, IDC_CRASH_REPORT)), FromUtf8(text));
    EXPECT_THAT(ToUtf8(editor_tests::TextOf(::GetDlgItem(dialog, IDC_CRASH_FILE))),
                testing::EndsWith("2026-01-02 10-00-00 1.txt"));
    editor_tests::Press(dialog, IDC_CRASH_COPY);
    std::wstring copied;
    EXPECT_TRUE(editor_tests::WaitUntil([&] {
        if (!::OpenClipboard(nullptr))
            return false;
        if (const HANDLE memory = ::GetClipboardData(CF_UNICODETEXT)) {
            copied = static_cast<const wchar_t*>(::GlobalLock(memory));
            ::GlobalUnlock(memory);
        }
        ::CloseClipboard();
        return copied == FromUtf8(text);
    }));
    editor_tests::Press(dialog, IDCANCEL);
    const HWND window = m_editor->WindowTitled(L"KZEditor – plant");
    EXPECT_TRUE(editor_tests::WaitUntil([&] { return ::IsWindowEnabled(window) != FALSE; }));
    ::PostMessageW(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(m_editor->Wait(), 0);
    EXPECT_FALSE(TakeNewCrash(m_program.CrashReports()).has_value());
}

TEST_F(CrashReports, AreNotShownByCommands)
{
    const fs::path report = Leave("2026-01-01 10-00-00 1.new.txt", "text");
    EXPECT_EQ(Start({"devices"}).Wait(), 0);
    EXPECT_TRUE(fs::exists(report));
}

TEST_F(CrashReports, OfTheTenLatestAreKept)
{
    for (int day = 10; day < 25; ++day)
        Leave("2026-01-" + std::to_string(day) + " 10-00-00 1.txt", "text");
    EXPECT_FALSE(TakeNewCrash(m_program.CrashReports()).has_value());
    EXPECT_THAT(Files(), SizeIs(10));
    EXPECT_FALSE(fs::exists(m_program.CrashReports() / "2026-01-14 10-00-00 1.txt"));
    EXPECT_TRUE(fs::exists(m_program.CrashReports() / "2026-01-15 10-00-00 1.txt"));
}

TEST_F(CrashReports, NeedNoFolder)
{
    EXPECT_FALSE(TakeNewCrash({}).has_value());
    EXPECT_FALSE(TakeNewCrash(m_folder.Path() / "nowhere").has_value());
}
