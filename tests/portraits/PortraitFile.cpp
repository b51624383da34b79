#include "PortraitFile.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <vector>

#include "KZQuorvelantaSetup.h"

namespace {

using Lines = std::vector<std::string>;

std::filesystem::path FileOf(const std::string& name)
{
    const HDC screen = ::GetDC(nullptr);
    const int dpi = ::GetDeviceCaps(screen, LOGPIXELSX);
    ::ReleaseDC(nullptr, screen);
    const char* const language = KZQuorvelantaSetup::Get()->Language() == KZLanguage::Spanish ? "es" : "en";
    return std::filesystem::path(KZ_PORTRAITS) / (name + '.' + language + '.' + std::to_string(dpi) + ".txt");
}

Lines LinesOf(const std::string& text)
{
    Lines lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

// Length of the longest common subsequence of the lines from each pair of positions on.
std::vector<std::vector<int>> CommonLengths(const Lines& before, const Lines& now)
{
    std::vector lengths(before.size() + 1, std::vector<int>(now.size() + 1, 0));
    for (std::size_t i = before.size(); i-- > 0;)
        for (std::size_t j = now.size(); j-- > 0;)
            lengths[i][j] =
                before[i] == now[j] ? lengths[i + 1][j + 1] + 1 : std::max(lengths[i + 1][j], lengths[i][j + 1]);
    return lengths;
}

// The lines that only one of the two has, as "-" and "+" lines; the first ones, where there are many.
std::string Difference(const Lines& before, const Lines& now)
{
    constexpr int MostLines = 20;
    const auto lengths = CommonLengths(before, now);
    std::string difference;
    int count = 0;
    const auto add = [&](char sign, const std::string& line) {
        if (++count <= MostLines)
            difference += sign + line + '\n';
    };
    std::size_t i = 0;
    std::size_t j = 0;
    while (i < before.size() || j < now.size()) {
        if (i < before.size() && j < now.size() && before[i] == now[j]) {
            ++i;
            ++j;
        } else if (j == now.size() || (i < before.size() && lengths[i + 1][j] >= lengths[i][j + 1])) {
            add('-', before[i++]);
        } else {
            add('+', now[j++]);
        }
    }
    if (count > MostLines)
        difference += "and " + std::to_string(count - MostLines) + " lines more\n";
    return difference;
}

}  // namespace

void ExpectPortrait(const std::string& name, const std::string& portrait)
{
    ASSERT_FALSE(portrait.empty()) << "the dialog was not drawn";
    const std::filesystem::path file = FileOf(name);
    if (::GetEnvironmentVariableW(L"KZ_PORTRAITS_RENEW", nullptr, 0) != 0) {
        std::ofstream(file, std::ios::binary) << portrait;
        return;
    }
    std::ifstream stream(file, std::ios::binary);
    const std::string recorded(std::istreambuf_iterator<char>(stream), {});
    if (recorded != portrait)
        ADD_FAILURE() << "tests/portraits/" << file.filename().string()
                      << " has another picture (- recorded, + shown now):\n"
                      << Difference(LinesOf(recorded), LinesOf(portrait))
                      << "If it should look so: ./dev portraits records it anew, git diff shows what changed.";
}
