#include <gtest/gtest.h>

#include "KZUtf8.h"
#include "KZXmlDocument.h"
#include "TemporaryFolder.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace {

class Save : public testing::Test {
protected:
    Save()
    {
        document.Root()->SetValue(L"v", L"1");
        document.SetDirty(true);
    }

    void ExpectRefusal(const std::filesystem::path& file, const char* reason)
    {
        const std::size_t files = folder.Count();
        const KZDocumentResult result = document.Save(file);
        EXPECT_FALSE(result);
        EXPECT_EQ(ToUtf8(result.message.View()), file.string() + ": " + reason);
        EXPECT_TRUE(document.IsDirty());
        EXPECT_EQ(folder.Count(), files) << "something was left behind";
    }

    const kztest::TemporaryFolder folder;
    XmlDocument document{L"configuration"};
};

TEST_F(Save, WritesTheDocumentAndMakesItClean)
{
    const KZDocumentResult result = document.Save(folder.Path() / "main.xml");
    EXPECT_TRUE(result) << ToUtf8(result.message.View());
    EXPECT_FALSE(document.IsDirty());
    EXPECT_EQ(folder.Read("main.xml"), document.Serialize());
    EXPECT_EQ(folder.Count(), 1u);
}

TEST_F(Save, ReplacesALongerFileWhole)
{
    folder.Write("main.xml", std::string(100000, 'x'));
    EXPECT_TRUE(document.Save(folder.Path() / "main.xml"));
    EXPECT_EQ(folder.Read("main.xml"), document.Serialize());
    EXPECT_EQ(folder.Count(), 1u);
}

TEST_F(Save, RefusesADocumentTooLargeToBeReadAgain)
{
    folder.Write("main.xml", "old");
    document.Root()->SetValue(L"v", std::wstring(std::size_t{64} << 20, L'x').c_str());
    ExpectRefusal(folder.Path() / "main.xml", "the document is larger than 64 MB");
    EXPECT_EQ(folder.Read("main.xml"), "old");
}

TEST_F(Save, WritesWhatLoadReads)
{
    const std::string text = "\xEF\xBB\xBF<configuration a='1'>\r\n  <v>\xC3\xB1</v >\r\n</configuration>\r\n";
    folder.Write("main.xml", text);
    ASSERT_TRUE(document.Load(folder.Path() / "main.xml"));
    ASSERT_TRUE(document.Save(folder.Path() / "copy.xml"));
    EXPECT_EQ(folder.Read("copy.xml"), text);
}

TEST_F(Save, KeepsGoingAfterASave)
{
    ASSERT_TRUE(document.Save(folder.Path() / "main.xml"));
    XmlDocument::XmlNode* const root = document.Root();
    root->SetValue(L"v", L"2");
    ASSERT_TRUE(document.Save(folder.Path() / "main.xml"));
    XmlDocument again(L"configuration");
    ASSERT_TRUE(again.Load(folder.Path() / "main.xml"));
    EXPECT_STREQ(again.Root()->Value(L"v", L""), L"2");
    EXPECT_EQ(document.Root(), root);
}

TEST_F(Save, AllowsFileNamesOutsideLatin)
{
    const std::filesystem::path file = folder.Path() / std::filesystem::path(u8"configuraci\u00F3n \u4E2D.xml");
    ASSERT_TRUE(document.Save(file));
    XmlDocument again(L"configuration");
    EXPECT_TRUE(again.Load(file));
}

TEST_F(Save, RefusesAReadOnlyFileAndLeavesIt)
{
    folder.Write("main.xml", "old");
    std::filesystem::permissions(folder.Path() / "main.xml",
                                 std::filesystem::perms::owner_read | std::filesystem::perms::group_read);
    ExpectRefusal(folder.Path() / "main.xml", "the file is read-only");
    EXPECT_EQ(folder.Read("main.xml"), "old");
}

TEST_F(Save, RefusesAFolderInTheFilesPlace)
{
    std::filesystem::create_directory(folder.Path() / "main.xml");
    ExpectRefusal(folder.Path() / "main.xml", "this is a folder, not a file");
}

TEST_F(Save, RefusesAFolderThatDoesNotExist)
{
    ExpectRefusal(folder.Path() / "none/main.xml", "the file does not exist");
}

#ifdef _WIN32
TEST_F(Save, LeavesAFileThatAnotherProgramHoldsOpen)
{
    folder.Write("main.xml", "old");
    const HANDLE holder =
        ::CreateFileW((folder.Path() / "main.xml").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(holder, INVALID_HANDLE_VALUE);
    const KZDocumentResult result = document.Save(folder.Path() / "main.xml");
    ::CloseHandle(holder);
    EXPECT_FALSE(result);
    EXPECT_FALSE(result.message.IsEmpty());
    EXPECT_TRUE(document.IsDirty());
    EXPECT_EQ(folder.Read("main.xml"), "old");
    EXPECT_EQ(folder.Count(), 1u);
}
#else
TEST_F(Save, KeepsTheFilesPermissions)
{
    folder.Write("main.xml", "old");
    const auto wanted = std::filesystem::perms::owner_read | std::filesystem::perms::owner_write;
    std::filesystem::permissions(folder.Path() / "main.xml", wanted);
    ASSERT_TRUE(document.Save(folder.Path() / "main.xml"));
    EXPECT_EQ(std::filesystem::status(folder.Path() / "main.xml").permissions(), wanted);
}

TEST_F(Save, ReportsAFullDisk)
{
    const KZDocumentResult result = document.Save("/dev/full/main.xml");
    EXPECT_FALSE(result);
    EXPECT_TRUE(document.IsDirty());
}
#endif

}  // namespace
