#include "InformationRecord.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "ParameterNames.h"

namespace {

using namespace zep;

// A device document with the given children of "information".
class Device {
public:
    explicit Device(const std::string& children) : Device(children, true) {}
    Device(const std::string& content, bool wrapped) : m_document(L"device")
    {
        const auto inner = wrapped ? "<information>" + content + "</information>" : content;
        const auto result = m_document.Parse("<device>" + inner + "</device>");
        EXPECT_TRUE(result) << std::string(result.message.View().begin(), result.message.View().end());
    }

    [[nodiscard]] XmlDocument::XmlNode& Root() const { return *m_document.Root(); }
    [[nodiscard]] InformationRecord Read() const { return InformationRecord(Root()); }
    [[nodiscard]] std::string Text() const { return m_document.Serialize(); }
    [[nodiscard]] std::wstring Value(const wchar_t* path) const { return Root().Value(path, L"(none)"); }

private:
    XmlDocument m_document;
};

std::wstring Shown(const Device& device, InformationField field)
{
    return device.Read().Text(field).c_str();
}

constexpr InformationSettings SomeSettings{5, 0x801, 200, 50, 3};

TEST(InformationRecordReading, ShowsAQuestionMarkForIdentityThatIsMissing)
{
    const Device empty("", false);
    for (const auto field : {InformationField::Version, InformationField::SerialNumber, InformationField::Gamma})
        EXPECT_EQ(Shown(empty, field), L"?");
}

TEST(InformationRecordReading, ShowsNothingForNumbersThatAreMissing)
{
    const Device empty("", false);
    for (const auto field : {InformationField::TransformerRatio, InformationField::MinimumCurrent,
                             InformationField::UnitCount, InformationField::Algorithm, InformationField::Status}) {
        EXPECT_EQ(Shown(empty, field), L"");
        EXPECT_EQ(empty.Read().Number(field), 0);
    }
    EXPECT_EQ(empty.Read().Settings(), InformationSettings{});
}

TEST(InformationRecordReading, ShowsIdentityUnchanged)
{
    const Device device("<version> 1.02b </version><serialNum>00 &amp; 7</serialNum><gamma>60 A</gamma>");
    EXPECT_EQ(Shown(device, InformationField::Version), L" 1.02b ");
    EXPECT_EQ(Shown(device, InformationField::SerialNumber), L"00 & 7");
    EXPECT_EQ(Shown(device, InformationField::Gamma), L"60 A");
}

TEST(InformationRecordReading, ShowsNothingForIdentityThatIsEmpty)
{
    EXPECT_EQ(Shown(Device("<version></version>"), InformationField::Version), L"");
    EXPECT_EQ(Shown(Device("<version/>"), InformationField::Version), L"");
}

TEST(InformationRecordReading, ShowsANumberAsWrittenAndRemembersItsValue)
{
    const Device device("<minCurrent>007</minCurrent><transRatio>+0200 A</transRatio><numZEP> 3</numZEP>");
    EXPECT_EQ(Shown(device, InformationField::MinimumCurrent), L"007");
    EXPECT_EQ(Shown(device, InformationField::TransformerRatio), L"+0200 A");
    EXPECT_EQ(device.Read().Settings().minimumCurrent, 7);
    EXPECT_EQ(device.Read().Settings().transformerRatio, 200);
    EXPECT_EQ(device.Read().Settings().unitCount, 3);
}

TEST(InformationRecordReading, TakesTheFirstOfDoubledChildren)
{
    const Device device("<minCurrent>1</minCurrent><minCurrent>2</minCurrent>");
    EXPECT_EQ(device.Read().Settings().minimumCurrent, 1);
    const Device records("<information><numZEP>4</numZEP></information><information><numZEP>5</numZEP></information>",
                         false);
    EXPECT_EQ(records.Read().Settings().unitCount, 4);
}

struct Conversion {
    const char* name;
    const char* text;
    int value;
};

class InformationNumber : public testing::TestWithParam<Conversion> {};

TEST_P(InformationNumber, IsTheLeadingInteger)
{
    const Device device("<minCurrent>" + std::string(GetParam().text) + "</minCurrent>");
    EXPECT_EQ(device.Read().Settings().minimumCurrent, GetParam().value) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(Texts, InformationNumber,
                         testing::Values(Conversion{"Digits", "12", 12}, Conversion{"Minus", "-5", -5},
                                         Conversion{"Plus", "+5", 5}, Conversion{"BlanksAround", "  12 ", 12},
                                         Conversion{"Decimals", "12.9", 12}, Conversion{"LettersBehind", "12abc", 12},
                                         Conversion{"Letters", "abc", 0}, Conversion{"BlankAfterMinus", "- 5", 0},
                                         Conversion{"TwoMinuses", "--5", 0}, Conversion{"PlusAndMinus", "+-5", 0},
                                         Conversion{"Hexadecimal", "0x10", 0}, Conversion{"NotANumber", "NaN", 0},
                                         Conversion{"Infinity", "inf", 0}, Conversion{"Empty", "", 0},
                                         Conversion{"Blank", " ", 0}, Conversion{"Greatest", "2147483647", INT_MAX},
                                         Conversion{"Least", "-2147483648", INT_MIN},
                                         Conversion{"FarAbove", "99999999999999999999", INT_MAX},
                                         Conversion{"FarBelow", "-99999999999999999999", INT_MIN}),
                         kztest::ByName);

TEST(InformationRecordReading, SplitsTheModeIntoFourBits)
{
    EXPECT_EQ(Device("<mode>10</mode>").Read().Settings().modes, 0b1010);
    EXPECT_EQ(Device("<mode>255</mode>").Read().Settings().modes, 0b1111);
    EXPECT_EQ(Device("<mode>16</mode>").Read().Settings().modes, 0);
    EXPECT_EQ(Device("<mode>-1</mode>").Read().Settings().modes, 0b1111);
    EXPECT_EQ(Device("<mode>x</mode>").Read().Settings().modes, 0);
    for (int bit = 0; bit < ModeCount; ++bit)
        EXPECT_EQ(Device("<mode>" + std::to_string(1 << bit) + "</mode>").Read().Settings().modes, 1 << bit);
}

TEST(InformationRecordReading, SplitsTheFiltersIntoTwelveBits)
{
    EXPECT_EQ(Device("<filters>4095</filters>").Read().Settings().filters, 4095);
    EXPECT_EQ(Device("<filters>4096</filters>").Read().Settings().filters, 0);
    EXPECT_EQ(Device("<filters>4099</filters>").Read().Settings().filters, 3);
    for (int bit = 0; bit < FilterCount; ++bit)
        EXPECT_EQ(Device("<filters>" + std::to_string(1 << bit) + "</filters>").Read().Settings().filters, 1 << bit);
}

TEST(InformationRecordReading, FilterBitsStandForTheOddOrdersFrom3To25)
{
    EXPECT_EQ(FilteredOrder(0), 3);
    EXPECT_EQ(FilteredOrder(1), 5);
    EXPECT_EQ(FilteredOrder(11), 25);
}

TEST(InformationRecordReading, SelectsOnlyAlgorithmsOfTheList)
{
    const auto choice = [](const char* text) {
        return Device("<algorithm>" + std::string(text) + "</algorithm>").Read().AlgorithmChoice();
    };
    EXPECT_EQ(choice("0"), 0);
    EXPECT_EQ(choice("1"), 1);
    EXPECT_EQ(choice("2"), 2);
    EXPECT_EQ(choice("3"), -1);
    EXPECT_EQ(choice("-1"), -1);
    EXPECT_EQ(choice("99999999999"), -1);
    EXPECT_EQ(choice("x"), 0);
}

TEST(InformationRecordReading, SelectsOnlyStatesOfTheList)
{
    const auto choice = [](const char* text) {
        return Device("<status>" + std::string(text) + "</status>").Read().StatusChoice();
    };
    EXPECT_EQ(choice("0"), 0);
    EXPECT_EQ(choice("1"), 1);
    EXPECT_EQ(choice("2"), -1);
    EXPECT_EQ(choice("-1"), -1);
}

TEST(InformationRecordReading, SelectsNothingForChoicesThatAreMissing)
{
    for (const char* content : {"", "<information><algorithm/><status></status></information>"}) {
        const Device device(content, false);
        EXPECT_EQ(device.Read().AlgorithmChoice(), -1);
        EXPECT_EQ(device.Read().StatusChoice(), -1);
        EXPECT_EQ(device.Read().Number(InformationField::Algorithm), 0);
    }
}

TEST(InformationRecordWriting, WritesTheFourEditedChildrenAndNoOther)
{
    const Device device("<version>1</version><serialNum>2</serialNum><gamma>3</gamma><mode>0</mode><filters>0</filters>"
                        "<transRatio>4</transRatio><minCurrent>0</minCurrent><algorithm>5</algorithm><numZEP>0</numZEP>"
                        "<status>6</status>");
    WriteInformation(device.Root(), SomeSettings);
    EXPECT_EQ(device.Value(L"information/mode"), L"5");
    EXPECT_EQ(device.Value(L"information/filters"), L"2049");
    EXPECT_EQ(device.Value(L"information/minCurrent"), L"50");
    EXPECT_EQ(device.Value(L"information/numZEP"), L"3");
    EXPECT_EQ(device.Value(L"information/version"), L"1");
    EXPECT_EQ(device.Value(L"information/serialNum"), L"2");
    EXPECT_EQ(device.Value(L"information/gamma"), L"3");
    EXPECT_EQ(device.Value(L"information/transRatio"), L"4");
    EXPECT_EQ(device.Value(L"information/algorithm"), L"5");
    EXPECT_EQ(device.Value(L"information/status"), L"6");
}

TEST(InformationRecordWriting, CreatesTheRecordAtTheEndOfTheRoot)
{
    const Device device("<other>kept</other>", false);
    WriteInformation(device.Root(), SomeSettings);
    EXPECT_EQ(device.Value(L"information/mode"), L"5");
    EXPECT_EQ(device.Value(L"information/transRatio"), L"(none)");
    EXPECT_LT(device.Text().find("<other>kept</other>"), device.Text().find("<information>"));
    ASSERT_NE(device.Root().FirstChild(L"information"), nullptr);
    EXPECT_EQ(device.Root().FirstChild(L"information")->NextSibling(L"information"), nullptr);
}

TEST(InformationRecordWriting, CreatesTheChildrenThatAreMissing)
{
    const Device device("<gamma>60</gamma>");
    WriteInformation(device.Root(), SomeSettings);
    EXPECT_EQ(device.Read().Settings(), (InformationSettings{5, 0x801, 0, 50, 3}));
    EXPECT_EQ(device.Value(L"information/version"), L"(none)");
}

TEST(InformationRecordWriting, LeavesEverythingElseAsItWas)
{
    const std::string before = "<!-- plant 7 --><calibration unit=\"A\">  1,5<step/></calibration>";
    const std::string after = "<history><mode>99</mode></history>";
    const Device device(
        before + "<information a='1'><mode>1</mode><!-- c --><foreign x=\"&lt;\"/></information>" + after, false);
    WriteInformation(device.Root(), SomeSettings);
    const auto text = device.Text();
    EXPECT_NE(text.find("<!-- plant 7 -->"), std::string::npos) << text;
    EXPECT_NE(text.find("<calibration unit=\"A\">  1,5<step"), std::string::npos) << text;
    EXPECT_NE(text.find("<!-- c -->"), std::string::npos) << text;
    EXPECT_NE(text.find("<foreign x=\"&lt;\""), std::string::npos) << text;
    EXPECT_NE(text.find("<mode>99</mode>"), std::string::npos) << text;
    EXPECT_EQ(device.Value(L"information/mode"), L"5");
}

TEST(InformationRecordWriting, HighBitsAreGoneAfterAWrite)
{
    const Device device("<mode>255</mode><filters>65535</filters><numZEP>1</numZEP>");
    WriteInformation(device.Root(), device.Read().Settings());
    EXPECT_EQ(device.Value(L"information/mode"), L"15");
    EXPECT_EQ(device.Value(L"information/filters"), L"4095");
}

TEST(InformationRecordWriting, EverySettingReadsBackAsWritten)
{
    for (int modes = 0; modes < 16; ++modes)
        for (int filters = 0; filters < 4096; filters += 7) {
            const Device device("");
            const InformationSettings settings{modes, filters, 0, -modes, filters % 9};
            WriteInformation(device.Root(), settings);
            ASSERT_EQ(device.Read().Settings(), settings);
        }
}

}  // namespace
