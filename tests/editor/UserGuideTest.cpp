// Every command that the user guide shows is run on the example plant, and prints what the guide says. In the guide two
// or more blanks stand for a tab, and "…" for lines that it leaves out.
#include <windows.h>

#include <shellapi.h>

#include <gmock/gmock.h>

#include <fstream>
#include <regex>
#include <sstream>

#include "EditorFixture.h"
#include "KZUtf8.h"

namespace fs = std::filesystem;

namespace {

using editor_tests::EditorProcess;
using testing::IsEmpty;
using testing::Not;

using Lines = std::vector<std::string>;

struct Example {
    std::string command;
    Lines output;
};

constexpr const char* Prompt = "> ";

std::vector<Example> Examples()
{
    std::vector<Example> examples;
    std::ifstream guide(fs::path(KZ_DOCS) / "user-guide.md");
    bool isInBlock = false;
    for (std::string line; std::getline(guide, line);) {
        if (line.starts_with("```"))
            isInBlock = !isInBlock;
        else if (isInBlock && line.starts_with(Prompt))
            examples.push_back({line.substr(2), {}});
        else if (isInBlock && !examples.empty())
            examples.back().output.push_back(std::regex_replace(line, std::regex("  +"), "\t"));
    }
    return examples;
}

std::vector<std::string> WordsOf(const std::string& command)
{
    int count = 0;
    wchar_t** const words = ::CommandLineToArgvW(FromUtf8(command).c_str(), &count);
    std::vector<std::string> arguments{"--language", "en"};
    for (int index = 1; index < count; ++index)
        arguments.push_back(ToUtf8(words[index]));
    ::LocalFree(words);
    return arguments;
}

// Whether the lines are as in the guide.
bool Agrees(const Lines& printed, const Lines& guide)
{
    std::size_t place = 0;
    bool mayLeaveOut = false;
    for (const std::string& line : guide) {
        if (line == "…") {
            mayLeaveOut = true;
            continue;
        }
        while (mayLeaveOut && place < printed.size() && printed[place] != line)
            ++place;
        if (place == printed.size() || printed[place] != line)
            return false;
        ++place;
        mayLeaveOut = false;
    }
    return mayLeaveOut || place == printed.size();
}

class UserGuide : public editor_tests::EditorTest {
protected:
    // The plant is the folder in which commands are typed; "before" is a copy of it.
    UserGuide()
    {
        m_program.AddRealModule();
        for (const char* folder : {"program", "program/before"}) {
            fs::create_directory(m_folder.Path() / folder);
            // Entry by entry: libstdc++ for Windows copies no folder into one that is there on the same drive.
            for (const fs::directory_entry& entry : fs::directory_iterator(fs::path(KZ_EXAMPLES) / "plant"))
                fs::copy(entry, m_folder.Path() / folder / entry.path().filename(), fs::copy_options::recursive);
        }
    }

    Lines Run(const std::string& command)
    {
        EditorProcess& editor = StartBare(WordsOf(command));
        EXPECT_LT(editor.Wait(), 2) << command;
        EXPECT_EQ(editor.Errors(), "") << command;
        Lines lines;
        std::istringstream output(editor.Output());
        for (std::string line; std::getline(output, line);)
            lines.push_back(line);
        return lines;
    }
};

}  // namespace

TEST_F(UserGuide, ShowsWhatItsCommandsPrint)
{
    const std::vector<Example> examples = Examples();
    ASSERT_THAT(examples, Not(IsEmpty()));
    for (const auto& [command, output] : examples) {
        const Lines printed = Run(command);
        EXPECT_TRUE(Agrees(printed, output)) << command << '\n' << testing::PrintToString(printed);
    }
}

TEST_F(UserGuide, ShowsEachCommandOfTheFields)
{
    for (const char* command :
         {"fields", "get", "set", "copy", "export", "import", "check", "diff", "modules", "diagnose"}) {
        const std::string start = std::string("KZEditor.exe ") + command + " ";
        const auto examples = Examples();
        EXPECT_TRUE(std::any_of(examples.begin(), examples.end(), [&](const Example& example) {
            return (example.command + " ").starts_with(start);
        })) << command;
    }
}
