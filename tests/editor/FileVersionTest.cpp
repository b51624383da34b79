// What the properties of the built files tell of their version.
#include "modules/PeFile.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "EditorProcess.h"
#include "KZUtf8.h"

namespace fs = std::filesystem;

namespace {

using editor_tests::EditorFolder;

// A text of the version resource, such as "OriginalFilename"; empty when the file has none.
std::string VersionText(const fs::path& file, const std::wstring& name)
{
    std::vector<char> resource(::GetFileVersionInfoSizeW(file.c_str(), nullptr));
    void* text = nullptr;
    UINT size = 0;
    if (resource.empty() ||
        !::GetFileVersionInfoW(file.c_str(), 0, static_cast<DWORD>(resource.size()), resource.data()) ||
        !::VerQueryValueW(resource.data(), (L"\\StringFileInfo\\040904B0\\" + name).c_str(), &text, &size))
        return {};
    return ToUtf8(static_cast<const wchar_t*>(text));
}

class VersionOfFile : public testing::TestWithParam<const char*> {
protected:
    fs::path m_file = EditorFolder::Products() / GetParam();
};

std::string NameOf(const testing::TestParamInfo<const char*>& parameter)
{
    return fs::path(parameter.param).stem().string();
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(Ours, VersionOfFile,
                         testing::Values("KZEditor.exe", "KZHost.dll", "KZMfc.dll", "KZUsrZEP.dll"), NameOf);

TEST_P(VersionOfFile, IsTheVersionOfTheProject)
{
    EXPECT_EQ(ToUtf8(FileVersion(m_file)), KZ_VERSION ".0");
    EXPECT_EQ(VersionText(m_file, L"FileVersion"), KZ_VERSION);
    EXPECT_EQ(VersionText(m_file, L"ProductVersion"), KZ_VERSION);
}

TEST_P(VersionOfFile, NamesFileAndProductAndSaysWhatTheFileIs)
{
    EXPECT_EQ(VersionText(m_file, L"OriginalFilename"), GetParam());
    EXPECT_EQ(VersionText(m_file, L"InternalName"), m_file.stem().string());
    EXPECT_EQ(VersionText(m_file, L"ProductName"), "KZEditor");
    EXPECT_GT(VersionText(m_file, L"FileDescription").size(), 10u);
}

TEST(VersionOfLibrary, IsTheLibrarysOwnBesideTheVersionOfTheProduct)
{
    const fs::path file = EditorFolder::Products() / "libcsv.dll";
    EXPECT_EQ(ToUtf8(FileVersion(file)), "3.0.3.0");
    EXPECT_EQ(VersionText(file, L"FileVersion"), "3.0.3");
    EXPECT_EQ(VersionText(file, L"ProductVersion"), KZ_VERSION);
}
