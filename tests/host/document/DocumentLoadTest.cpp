#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "KZUtf8.h"
#include "KZXmlDocument.h"
#include "ParameterNames.h"
#include "TemporaryFolder.h"

namespace {

using namespace std::string_literals;
using testing::HasSubstr;
using testing::StartsWith;

struct Fault {
    const char* name;
    std::string text;
    const char* message;
};

class Parse : public testing::TestWithParam<Fault> {};

TEST_P(Parse, SaysWhatIsWrongAndWhere)
{
    XmlDocument document(L"configuration");
    const KZDocumentResult result = document.Parse(GetParam().text);
    EXPECT_FALSE(result);
    EXPECT_EQ(ToUtf8(result.message.View()), GetParam().message);
}

TEST_P(Parse, LeavesTheDocumentAsItWas)
{
    XmlDocument document(L"configuration");
    XmlDocument::XmlNode* const devices = document.Root()->NewChild(L"devices", nullptr);
    document.SetDirty(true);
    const std::string before = document.Serialize();
    EXPECT_FALSE(document.Parse(GetParam().text));
    EXPECT_EQ(document.Serialize(), before);
    EXPECT_EQ(document.Node(L"devices"), devices);
    EXPECT_TRUE(document.IsDirty());
}

INSTANTIATE_TEST_SUITE_P(
    Faults, Parse,
    testing::Values(Fault{"Empty", "", "the document is empty"}, Fault{"Blanks", " \r\n\t", "the document is empty"},
                    Fault{"ByteOrderMarkAlone", "\xEF\xBB\xBF", "the document is empty"},
                    Fault{"EndInAnElement", "<configuration>\n  <devices>",
                          "line 2, column 12: the document ends too early"},
                    Fault{"OtherRoot", "<device/>",
                          "line 1, column 1: the root element is \"device\" instead of \"configuration\""},
                    Fault{"RootInCapitals", "<?xml version=\"1.0\"?>\n  <Configuration/>",
                          "line 2, column 3: the root element is \"Configuration\" instead of \"configuration\""},
                    Fault{"OtherEndTag", "<configuration>\r\n  <a></b>\r\n</configuration>",
                          "line 2, column 8: the end tag does not match the element that is open here"},
                    Fault{"BytesThatAreNoUtf8", "<configuration>\n\xC3\xB1\xC3\xB1\xFF</configuration>",
                          "line 2, column 3: the text is not UTF-8"},
                    Fault{"Utf16", "\xFF\xFE<\0c\0"s, "line 1, column 1: the text is not UTF-8"},
                    Fault{"CommentAlone", "<!-- nothing else -->", "line 1, column 22: there is no root element"}),
    kztest::ByName);

TEST(ParseDepth, IsLimited)
{
    const auto nested = [](std::size_t depth) {
        std::string text = "<configuration>";
        for (std::size_t level = 1; level < depth; ++level)
            text += "<a>";
        for (std::size_t level = 1; level < depth; ++level)
            text += "</a>";
        return text + "</configuration>";
    };
    XmlDocument document(L"configuration");
    EXPECT_TRUE(document.Parse(nested(256)));
    EXPECT_EQ(document.Serialize(), nested(256));
    EXPECT_FALSE(document.Parse(nested(257)));
    EXPECT_EQ(ToUtf8(document.Parse(nested(100000)).message.View()),
              "line 1, column 781: the elements are nested more than 256 deep");
}

TEST(Load, ReadsAFileAndIsClean)
{
    const kztest::TemporaryFolder folder;
    folder.Write("main.xml", "<configuration><devices/></configuration>");
    XmlDocument document(L"configuration");
    document.SetDirty(true);
    const KZDocumentResult result = document.Load(folder.Path() / "main.xml");
    EXPECT_TRUE(result);
    EXPECT_TRUE(result.message.IsEmpty());
    EXPECT_FALSE(document.IsDirty());
    EXPECT_NE(document.Node(L"devices"), nullptr);
}

TEST(Load, ReadsFilesOfAnySize)
{
    const kztest::TemporaryFolder folder;
    const std::string text = "<configuration><v>" + std::string(300000, 'x') + "</v></configuration>";
    folder.Write("main.xml", text);
    XmlDocument document(L"configuration");
    EXPECT_TRUE(document.Load(folder.Path() / "main.xml"));
    EXPECT_EQ(document.Serialize(), text);
}

TEST(Load, LooksAtTheSizeBeforeItReads)
{
    const kztest::TemporaryFolder folder;
    folder.Write("main.xml", "<configuration/>");
    std::filesystem::resize_file(folder.Path() / "main.xml", (std::uintmax_t{64} << 20) + 1);
    XmlDocument document(L"configuration");
    const std::string message = ToUtf8(document.Load(folder.Path() / "main.xml").message.View());
    EXPECT_THAT(message, HasSubstr("main.xml: the document is larger than 64 MB"));
}

std::string MessageOf(const std::filesystem::path& file)
{
    XmlDocument document(L"configuration");
    const KZDocumentResult result = document.Load(file);
    EXPECT_FALSE(result);
    return ToUtf8(result.message.View());
}

std::string NameOf(const std::filesystem::path& file)
{
    const std::u8string name = file.u8string();
    return {name.begin(), name.end()};
}

TEST(Load, NamesAFileThatIsMissing)
{
    const kztest::TemporaryFolder folder;
    EXPECT_EQ(MessageOf(folder.Path() / "main.xml"), NameOf(folder.Path() / "main.xml") + ": the file does not exist");
    EXPECT_EQ(MessageOf(folder.Path() / "none/main.xml"),
              NameOf(folder.Path() / "none/main.xml") + ": the file does not exist");
}

TEST(Load, NamesAFolderInTheFilesPlace)
{
    const kztest::TemporaryFolder folder;
    EXPECT_EQ(MessageOf(folder.Path()), NameOf(folder.Path()) + ": this is a folder, not a file");
}

TEST(Load, NamesTheFilePlaceAndReason)
{
    const kztest::TemporaryFolder folder;
    folder.Write("main.xml", "<configuration>\n  <devices>");
    EXPECT_EQ(MessageOf(folder.Path() / "main.xml"),
              NameOf(folder.Path() / "main.xml") + ": line 2, column 12: the document ends too early");
    folder.Write("main.xml", "");
    EXPECT_EQ(MessageOf(folder.Path() / "main.xml"), NameOf(folder.Path() / "main.xml") + ": the document is empty");
}

}  // namespace
