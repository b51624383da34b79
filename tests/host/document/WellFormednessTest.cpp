#include "WellFormedness.h"

#include <gtest/gtest.h>

#include "KZUtf8.h"
#include "KZXmlDocument.h"
#include "ParameterNames.h"

namespace {

using namespace std::string_literals;

struct Faulty {
    const char* name;
    std::string text;
    const char* message;

    friend void PrintTo(const Faulty& faulty, std::ostream* out) { *out << faulty.text; }
};

class NotWellFormed : public testing::TestWithParam<Faulty> {};

TEST_P(NotWellFormed, IsRefusedWithPlaceAndReason)
{
    XmlDocument document(L"r");
    const std::string before = document.Serialize();
    EXPECT_EQ(ToUtf8(document.Parse(GetParam().text).message.View()), GetParam().message);
    EXPECT_EQ(document.Serialize(), before);
}

#define WRONG_CHARACTER(line, column) "line " #line ", column " #column ": a character stands here that may not"
#define UNFINISHED(line, column) "line " #line ", column " #column ": what begins here does not end"

INSTANTIATE_TEST_SUITE_P(
    Prolog, NotWellFormed,
    testing::Values(Faulty{"TextBeforeTheRoot", "text<r/>", WRONG_CHARACTER(1, 5)},
                    Faulty{"SecondByteOrderMark", "\xEF\xBB\xBF\xEF\xBB\xBF<r/>",
                           "line 1, column 1: a second byte order mark stands here"},
                    Faulty{"ReferenceBeforeTheRoot", "&amp;<r/>", WRONG_CHARACTER(1, 1)},
                    Faulty{"DeclarationAfterABlank", " <?xml version='1.0'?><r/>",
                           "line 1, column 2: an XML declaration may stand only at the very start"},
                    Faulty{"SecondDeclaration", "<?xml version='1.0'?><?xml version='1.0'?><r/>",
                           "line 1, column 22: an XML declaration may stand only at the very start"},
                    Faulty{"DeclarationWithoutVersion", "<?xml encoding='UTF-8'?><r/>",
                           "line 1, column 7: the XML declaration is malformed"},
                    Faulty{"DeclarationInWrongOrder", "<?xml encoding='UTF-8' version='1.0'?><r/>",
                           "line 1, column 7: the XML declaration is malformed"},
                    Faulty{"StandaloneNeitherYesNorNo", "<?xml version='1.0' standalone='si'?><r/>",
                           "line 1, column 33: the XML declaration is malformed"},
                    Faulty{"DeclarationInCapitals", "<?XML version='1.0'?><r/>", WRONG_CHARACTER(1, 6)},
                    Faulty{"UnfinishedDeclaration", "<?xml version='1.0'", UNFINISHED(1, 1)}),
    kztest::ByName);

INSTANTIATE_TEST_SUITE_P(
    Root, NotWellFormed,
    testing::Values(Faulty{"None", "<!-- nothing else -->", "line 1, column 22: there is no root element"},
                    Faulty{"TextBehindIt", "<r/>text", "line 1, column 5: this may not follow the root element"},
                    Faulty{"SecondRoot", "<r/>\n<r/>", "line 2, column 1: this may not follow the root element"},
                    Faulty{"EndTagTooMany", "<r/></r>", WRONG_CHARACTER(1, 6)},
                    Faulty{"NotClosed", "<r><a></a>\n", "line 2, column 1: the document ends too early"},
                    Faulty{"OtherEndTag", "<r>\r\n<a></b></r>",
                           "line 2, column 6: the end tag does not match the element that is open here"},
                    Faulty{"Overlap", "<r><a><b></a></b></r>",
                           "line 1, column 12: the end tag does not match the element that is open here"}),
    kztest::ByName);

INSTANTIATE_TEST_SUITE_P(Tags, NotWellFormed,
                         testing::Values(Faulty{"NameBeginsWithADigit", "<r><1/></r>", WRONG_CHARACTER(1, 5)},
                                         Faulty{"NoName", "<r>< a/></r>", WRONG_CHARACTER(1, 5)},
                                         Faulty{"BlankAfterTheSlash", "<r/ >", WRONG_CHARACTER(1, 4)},
                                         Faulty{"EndTagWithAttribute", "<r></r a='1'>", WRONG_CHARACTER(1, 8)},
                                         Faulty{"Unfinished", "<r><a b='1'", UNFINISHED(1, 4)}),
                         kztest::ByName);

INSTANTIATE_TEST_SUITE_P(Attributes, NotWellFormed,
                         testing::Values(Faulty{"Twice", "<r a='1' b='2' a='3'/>",
                                                "line 1, column 16: the element has this attribute twice"},
                                         Faulty{"WithoutValue", "<r a/>", WRONG_CHARACTER(1, 5)},
                                         Faulty{"WithoutQuotes", "<r a=1/>", WRONG_CHARACTER(1, 6)},
                                         Faulty{"NoBlankBetween", "<r a='1'b='2'/>", WRONG_CHARACTER(1, 9)},
                                         Faulty{"TagInside", "<r a='<'/>", WRONG_CHARACTER(1, 7)},
                                         Faulty{"BareAmpersand", "<r a='R&D'/>", WRONG_CHARACTER(1, 10)},
                                         Faulty{"UnknownEntity", "<r a='&ohm;'/>",
                                                "line 1, column 1: the entity is not one of XML's own"},
                                         Faulty{"ControlCharacter", "<r a='\x01'/>", WRONG_CHARACTER(1, 7)},
                                         Faulty{"Unfinished", "<r a='1/>", UNFINISHED(1, 1)}),
                         kztest::ByName);

INSTANTIATE_TEST_SUITE_P(
    Texts, NotWellFormed,
    testing::Values(Faulty{"BareAmpersand", "<r>R & D</r>", WRONG_CHARACTER(1, 7)},
                    Faulty{"ReferenceWithoutSemicolon", "<r>&amp</r>", WRONG_CHARACTER(1, 8)},
                    Faulty{"UnknownEntity", "<r>\n&ohm;</r>", "line 2, column 1: the entity is not one of XML's own"},
                    Faulty{"NumberZero", "<r>&#0;</r>", "line 1, column 4: the number stands for no character of XML"},
                    Faulty{"NumberOfAControlCharacter", "<r>&#x1F;</r>",
                           "line 1, column 4: the number stands for no character of XML"},
                    Faulty{"NumberOfASurrogate", "<r>&#xD800;</r>",
                           "line 1, column 4: the number stands for no character of XML"},
                    Faulty{"NumberOfANonCharacter", "<r>&#xFFFE;</r>",
                           "line 1, column 4: the number stands for no character of XML"},
                    Faulty{"NumberBeyondUnicode", "<r>&#x110000;</r>",
                           "line 1, column 4: the number stands for no character of XML"},
                    Faulty{"NumberWithoutDigits", "<r>&#;</r>", WRONG_CHARACTER(1, 6)},
                    Faulty{"EndOfCData", "<r>a]]>b</r>", WRONG_CHARACTER(1, 7)},
                    Faulty{"ControlCharacter", "<r>\x0B</r>", WRONG_CHARACTER(1, 4)},
                    Faulty{"ZeroCharacter", "<r>\0</r>"s, WRONG_CHARACTER(1, 4)},
                    Faulty{"NonCharacter", "<r>\xEF\xBF\xBF</r>", WRONG_CHARACTER(1, 4)},
                    Faulty{"ColumnsAreCharacters", "<r>\xC3\xB1\xC3\xB1&</r>", WRONG_CHARACTER(1, 7)}),
    kztest::ByName);

INSTANTIATE_TEST_SUITE_P(Comments, NotWellFormed,
                         testing::Values(Faulty{"TwoDashes", "<r><!-- a -- b --></r>", WRONG_CHARACTER(1, 13)},
                                         Faulty{"ThreeDashesAtTheEnd", "<r><!-- a ---></r>", WRONG_CHARACTER(1, 13)},
                                         Faulty{"Unfinished", "<r><!-- a </r>", UNFINISHED(1, 4)}),
                         kztest::ByName);

INSTANTIATE_TEST_SUITE_P(
    Sections, NotWellFormed,
    testing::Values(Faulty{"UnfinishedCData", "<r><![CDATA[ a </r>", "line 1, column 20: a CDATA section does not end"},
                    Faulty{"CDataInSmallLetters", "<r><![cdata[a]]></r>", WRONG_CHARACTER(1, 7)},
                    Faulty{"CDataOutsideTheRoot", "<![CDATA[a]]><r/>",
                           "line 1, column 1: this may not stand outside the root element"},
                    Faulty{"InstructionWithoutTarget", "<r><? a?></r>", WRONG_CHARACTER(1, 6)},
                    Faulty{"InstructionNamedXml", "<r><?xml a?></r>",
                           "line 1, column 4: an XML declaration may stand only at the very start"},
                    Faulty{"UnfinishedInstruction", "<r><?a ></r>", UNFINISHED(1, 4)}),
    kztest::ByName);

INSTANTIATE_TEST_SUITE_P(
    Refused, NotWellFormed,
    testing::Values(Faulty{"DocumentType", "<!DOCTYPE r><r/>",
                           "line 1, column 12: a document type declaration is not accepted; take it out"},
                    Faulty{"DocumentTypeWithEntities", "<!DOCTYPE r [<!ENTITY a 'b'>]>\n<r>&a;</r>",
                           "line 1, column 13: a document type declaration is not accepted; take it out"},
                    Faulty{"DocumentTypeElsewhere", "<!DOCTYPE r SYSTEM 'file:///etc/passwd'><r/>",
                           "line 1, column 40: a document type declaration is not accepted; take it out"},
                    Faulty{"Latin1", "<?xml version='1.0' encoding='ISO-8859-1'?><r/>",
                           "line 1, column 1: the declared encoding is ISO-8859-1 instead of UTF-8"},
                    Faulty{"Windows1252", "<?xml version='1.0' encoding='windows-1252'?><r/>",
                           "line 1, column 1: the declared encoding is windows-1252 instead of UTF-8"},
                    Faulty{"Utf16InAUtf8Text", "<?xml version='1.0' encoding='UTF-16'?><r/>",
                           "line 1, column 1: the declared encoding is UTF-16 instead of UTF-8"},
                    Faulty{"AsciiWithOtherCharacters", "<?xml version='1.0' encoding='US-ASCII'?><r>\xC3\xB1</r>",
                           WRONG_CHARACTER(1, 45)},
                    Faulty{"Utf16", "\xFF\xFE<\0r\0/\0>\0"s, "line 1, column 1: the text is not UTF-8"}),
    kztest::ByName);

struct Accepted {
    const char* name;
    std::string text;

    friend void PrintTo(const Accepted& accepted, std::ostream* out) { *out << accepted.text; }
};

class WellFormed : public testing::TestWithParam<Accepted> {};

TEST_P(WellFormed, IsTakenAndWrittenBackByteForByte)
{
    XmlDocument document(L"r");
    const KZDocumentResult result = document.Parse(GetParam().text);
    EXPECT_TRUE(result) << ToUtf8(result.message.View());
    EXPECT_EQ(document.Serialize(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Documents, WellFormed,
    testing::Values(Accepted{"ByteOrderMark", "\xEF\xBB\xBF<?xml version='1.0' encoding='utf-8'?>\r\n<r/>\r\n"},
                    Accepted{"Ascii", "<?xml version='1.0' encoding='us-ascii' standalone='yes' ?><r>&#241;</r>"},
                    Accepted{"MiscellanyAroundTheRoot", "<?a?><!-- b -->\n<r/>\n<!-- c --><?d e?>\n"},
                    Accepted{"BlanksInTags", "<r\n a = '1'\tb\r\n=\"2\" ><c d='>'  /></r >"},
                    Accepted{"QuotesInQuotes", "<r a='\"' b=\"'\" c='&quot;&apos;&lt;'/>"},
                    Accepted{"References", "<r>&amp;&lt;&gt;&quot;&apos;&#65;&#x10FFFF;&#9;</r>"},
                    Accepted{"MarkupInCData", "<r><![CDATA[<a>&b;]]]]><![CDATA[>]]></r>"},
                    Accepted{"EmptyCDataAndComment", "<r><![CDATA[]]><!----></r>"},
                    Accepted{"BracketsInText", "<r>]] ] > ></r>"},
                    Accepted{"Names", "<r><_a/><b.c-d/><e:f/><\xC3\xB1\xC3\xA9/><\xCE\xA9 \xD0\xB1='1'/></r>"},
                    Accepted{"CharactersBeyondTheBasicPlane", "<r a='\xF0\x9F\x94\x8C'>\xF0\x9F\x94\x8C</r>"},
                    Accepted{"OldLineEnds", "<r>\r<a>\rb\r</a>\r</r>\r"}, Accepted{"DeleteCharacter", "<r>\x7F</r>"}),
    kztest::ByName);

TEST(Bounds, NestingEndsAt256)
{
    const auto nested = [](std::size_t depth) {
        std::string text;
        for (std::size_t level = 0; level < depth; ++level)
            text += "<r>";
        for (std::size_t level = 0; level < depth; ++level)
            text += "</r>";
        return text;
    };
    EXPECT_FALSE(CheckWellFormedness(nested(256)));
    EXPECT_EQ(CheckWellFormedness(nested(257)).value().reason, L"the elements are nested more than 256 deep");
    EXPECT_EQ(CheckWellFormedness(nested(257)).value().column, 769U);
    EXPECT_TRUE(CheckWellFormedness(nested(100000)));
}

TEST(Bounds, ManyElementsAreNotDeep)
{
    std::string text = "<r>";
    for (int i = 0; i < 1000; ++i)
        text += "<a/>";
    EXPECT_FALSE(CheckWellFormedness(text + "</r>"));
}

TEST(Bounds, NamesEndAt1000Bytes)
{
    const std::wstring reason = L"a name is longer than 1000 bytes";
    const std::string most(1000, 'n');
    EXPECT_FALSE(CheckWellFormedness("<" + most + "/>"));
    EXPECT_EQ(CheckWellFormedness("<" + most + "n/>").value().reason, reason);
    EXPECT_FALSE(CheckWellFormedness("<r a='' " + most + "=''/>"));
    EXPECT_EQ(CheckWellFormedness("<r a='' " + most + "n=''/>").value().reason, reason);
}

TEST(Bounds, AttributesEndAt1000)
{
    const auto with = [](int count) {
        std::string text = "<r";
        for (int i = 0; i < count; ++i)
            text += " a" + std::to_string(i) + "=''";
        return text + "/>";
    };
    EXPECT_FALSE(CheckWellFormedness(with(1000)));
    EXPECT_EQ(CheckWellFormedness(with(1001)).value().reason, L"an element has more than 1000 attributes");
}

TEST(Bounds, DocumentsEndAt64MB)
{
    std::string text = "<r>" + std::string(KZLargestDocument - 7, 'x') + "</r>";
    ASSERT_EQ(text.size(), std::size_t{64} * 1024 * 1024);
    EXPECT_FALSE(CheckWellFormedness(text));
    text += '\n';
    EXPECT_EQ(CheckWellFormedness(text).value().reason, L"the document is larger than 64 MB");
}

}  // namespace
