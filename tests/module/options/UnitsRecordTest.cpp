#include "UnitsRecord.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

namespace {

using namespace zep;

constexpr UnitChoice DefaultChoice{1, UnitChoice::Plain};

// A main configuration document with the given content.
class Configuration {
public:
    explicit Configuration(const std::string& content = "") : m_document(L"configuration")
    {
        EXPECT_TRUE(m_document.Parse("<configuration>" + content + "</configuration>"));
    }

    [[nodiscard]] UnitChoices Read(const wchar_t* driverId = L"zep1")
    {
        return UnitsRecord(m_document, driverId).Read();
    }
    void Write(const UnitChoices& choices, const wchar_t* driverId = L"zep1")
    {
        UnitsRecord(m_document, driverId).Write(choices);
    }

    [[nodiscard]] std::wstring Value(const wchar_t* path) const { return m_document.Root()->Value(path, L"(none)"); }
    [[nodiscard]] std::string Text() const { return m_document.Serialize(); }
    [[nodiscard]] XmlDocument& Document() noexcept { return m_document; }

private:
    XmlDocument m_document;
};

// The document with one unit of the driver "zep1".
std::string OneUnit(const std::string& unit)
{
    return "<unitSetups><unitSetup><driverId>zep1</driverId><unit>" + unit + "</unit></unitSetup></unitSetups>";
}

std::size_t Count(const std::string& text, const std::string& what)
{
    std::size_t count = 0;
    for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + 1))
        ++count;
    return count;
}

static_assert(!IsDecimalsChoice(-1) && IsDecimalsChoice(0));
static_assert(IsDecimalsChoice(3) && !IsDecimalsChoice(4));

TEST(UnitsReading, GivesPlainUnitsAndOneDecimalToADriverWithoutARecord)
{
    EXPECT_EQ(Configuration().Read(), (UnitChoices{DefaultChoice, DefaultChoice}));
    EXPECT_EQ(Configuration("<unitSetups/>").Read(), (UnitChoices{DefaultChoice, DefaultChoice}));
    EXPECT_EQ(Configuration(OneUnit("<name>RP</name><factor>3</factor>")).Read(L"zep2"),
              (UnitChoices{DefaultChoice, DefaultChoice}));
}

TEST(UnitsReading, GivesPlainUnitsAndOneDecimalToAUnitThatIsMissing)
{
    const auto choices = Configuration(OneUnit("<name>RP</name><decimals>3</decimals><factor>3</factor>")).Read();
    EXPECT_EQ(choices[0], DefaultChoice);
    EXPECT_EQ(choices[1], (UnitChoice{3, UnitChoice::Kilo}));
}

TEST(UnitsReading, GivesKiloUnitsToAUnitWithoutAFactor)
{
    EXPECT_EQ(Configuration(OneUnit("<name>AP-VA</name><decimals>2</decimals>")).Read()[0],
              (UnitChoice{2, UnitChoice::Kilo}));
}

TEST(UnitsReading, TakesOnlyAFactorOfExactlyZeroForPlainUnits)
{
    const auto scale = [](const std::string& factor) {
        return Configuration(OneUnit("<name>AP-VA</name><factor>" + factor + "</factor>")).Read()[0].scale;
    };
    EXPECT_EQ(scale("0"), UnitChoice::Plain);
    for (const auto* factor : {"1", "3", "00", "0.0", " 0", "0 ", "-0", "", "x", "nan"})
        EXPECT_EQ(scale(factor), UnitChoice::Kilo) << factor;
}

TEST(UnitsReading, GivesOneDecimalToAUnitWithoutDecimals)
{
    EXPECT_EQ(Configuration(OneUnit("<name>RP</name><factor>0</factor>")).Read()[1], DefaultChoice);
}

TEST(UnitsReading, TakesTheLeadingIntegerOfTheDecimals)
{
    const auto decimals = [](const std::string& text) {
        return Configuration(OneUnit("<name>RP</name><decimals>" + text + "</decimals>")).Read()[1].decimals;
    };
    EXPECT_EQ(decimals("0"), 0);
    EXPECT_EQ(decimals("3"), 3);
    EXPECT_EQ(decimals(" 2"), 2);
    EXPECT_EQ(decimals("2.9"), 2);
    EXPECT_EQ(decimals("2x"), 2);
    EXPECT_EQ(decimals("x"), 0);
    EXPECT_EQ(decimals("nan"), 0);
    EXPECT_EQ(decimals(""), 0);
    EXPECT_EQ(decimals("7"), 7);
    EXPECT_EQ(decimals("-1"), -1);
    EXPECT_EQ(decimals("99999999999"), 2147483647);
}

TEST(UnitsReading, TakesTheFirstOfDoubledElements)
{
    const std::string unit = "<unit><name>RP</name><decimals>2</decimals><decimals>3</decimals></unit>";
    Configuration configuration("<unitSetups><unitSetup><driverId>zep1</driverId>" + unit +
                                "<unit><name>RP</name><decimals>0</decimals></unit></unitSetup>"
                                "<unitSetup><driverId>zep1</driverId></unitSetup></unitSetups>");
    EXPECT_EQ(configuration.Read()[1].decimals, 2);
}

TEST(UnitsWriting, MakesTheWholeRecordInOrderAtFirstUse)
{
    Configuration configuration("<devices/>");
    configuration.Write({UnitChoice{2, UnitChoice::Kilo}, UnitChoice{0, UnitChoice::Plain}});
    std::string text = configuration.Text();
    text.erase(std::remove_if(text.begin(), text.end(), [](char c) { return c == '\n' || c == '\t' || c == '\r'; }),
               text.end());
    std::size_t at = 0;
    for (const auto* part :
         {"<devices", "<unitSetups>", "<unitSetup>", "<driverId>zep1</driverId>", "<unit>", "<name>AP-VA</name>",
          "<decimals>2</decimals>", "<factor>3</factor>", "</unit>", "<unit>", "<name>RP</name>",
          "<decimals>0</decimals>", "<factor>0</factor>", "</unit>", "</unitSetup>", "</unitSetups>"}) {
        at = text.find(part, at);
        ASSERT_NE(at, std::string::npos) << part << " in " << text;
    }
}

TEST(UnitsWriting, MarksTheDocumentDirtyAndReadingDoesNot)
{
    Configuration configuration;
    static_cast<void>(configuration.Read());
    EXPECT_FALSE(configuration.Document().IsDirty());
    configuration.Write({});
    EXPECT_TRUE(configuration.Document().IsDirty());
}

TEST(UnitsWriting, LooksUpWithoutChangingTheDocument)
{
    Configuration configuration("<devices/>");
    const auto before = configuration.Text();
    const UnitsRecord record(configuration.Document(), L"zep1");
    EXPECT_EQ(configuration.Text(), before);
}

TEST(UnitsWriting, WritesBothUnitsWheneverItWrites)
{
    Configuration configuration(OneUnit("<name>RP</name><decimals>7</decimals><factor>1</factor>"));
    configuration.Write({UnitChoice{1, UnitChoice::Plain}, UnitChoice{3, UnitChoice::Kilo}});
    const auto text = configuration.Text();
    EXPECT_EQ(Count(text, "<unit>"), 2U);
    EXPECT_EQ(Count(text, "<factor>0</factor>"), 1U);
    EXPECT_EQ(Count(text, "<factor>3</factor>"), 1U);
    // The unit that was there keeps its place; the other comes after it.
    EXPECT_LT(text.find("RP"), text.find("AP-VA"));
}

TEST(UnitsWriting, WritesMinusOneAndPlainUnitsWhenNoRadioIsChecked)
{
    Configuration configuration;
    configuration.Write({UnitChoice{-1, -1}, DefaultChoice});
    const auto text = configuration.Text();
    EXPECT_EQ(Count(text, "<decimals>-1</decimals>"), 1U);
    EXPECT_EQ(Count(text, "<factor>0</factor>"), 2U);
}

TEST(UnitsWriting, WritingTwiceUpdatesTheSameElements)
{
    Configuration configuration;
    UnitsRecord record(configuration.Document(), L"zep1");
    record.Write({UnitChoice{1, UnitChoice::Kilo}, DefaultChoice});
    record.Write({UnitChoice{3, UnitChoice::Kilo}, DefaultChoice});
    configuration.Write({UnitChoice{2, UnitChoice::Kilo}, DefaultChoice});
    EXPECT_EQ(Count(configuration.Text(), "<unitSetup>"), 1U);
    EXPECT_EQ(Count(configuration.Text(), "<unit>"), 2U);
    EXPECT_EQ(configuration.Read()[0], (UnitChoice{2, UnitChoice::Kilo}));
}

TEST(UnitsWriting, AppendsARecordBesideThoseOfOtherDriversAndLeavesThemAsTheyWere)
{
    const std::string other = "<unitSetup a=\"1\"><driverId>zep2</driverId><!-- mine --><unit><name>RP</name>"
                              "<decimals> 2</decimals><factor>9</factor><colour/></unit></unitSetup>";
    Configuration configuration("<unitSetups>" + other + "</unitSetups><viewSetups><x/></viewSetups>");
    const auto before = configuration.Text();
    const auto start = before.find("<unitSetup a");
    const auto otherText = before.substr(start, before.find("</unitSetup>") - start);
    configuration.Write({UnitChoice{0, UnitChoice::Kilo}, DefaultChoice});
    const auto text = configuration.Text();
    EXPECT_NE(text.find(otherText), std::string::npos) << text;
    EXPECT_EQ(Count(text, "<unitSetup"), 3U);  // the section, the other's and this driver's
    EXPECT_LT(text.find("zep2"), text.find("zep1"));
    EXPECT_EQ(configuration.Read(L"zep2")[1], (UnitChoice{2, UnitChoice::Kilo}));
}

TEST(UnitsWriting, KeepsUnknownElementsOfTheDriversOwnRecord)
{
    Configuration configuration(OneUnit("<name>RP</name><colour>red</colour><!-- c --><decimals>0</decimals>"));
    configuration.Write({DefaultChoice, UnitChoice{2, UnitChoice::Plain}});
    const auto text = configuration.Text();
    EXPECT_NE(text.find("<colour>red</colour>"), std::string::npos);
    EXPECT_NE(text.find("<!-- c -->"), std::string::npos);
    EXPECT_EQ(configuration.Read()[1], (UnitChoice{2, UnitChoice::Plain}));
}

TEST(UnitsWriting, FindsDriversWhateverTheirIdentifierHolds)
{
    for (const auto* id :
         {L"", L" ", L"a?b", L"a/b", L"a=b?", L"?", L"'\"<&>", L"%s%d%n", L"zep1\u00F1\u4E2D", L"zep"}) {
        Configuration configuration(OneUnit("<name>RP</name>"));
        configuration.Write({UnitChoice{3, UnitChoice::Kilo}, DefaultChoice}, id);
        configuration.Write({UnitChoice{2, UnitChoice::Kilo}, DefaultChoice}, id);
        EXPECT_EQ(Count(configuration.Text(), "<unitSetup>"), 2U) << testing::PrintToString(std::wstring(id));
        EXPECT_EQ(configuration.Read(id)[0], (UnitChoice{2, UnitChoice::Kilo}));
        EXPECT_EQ(configuration.Read()[1], (UnitChoice{1, UnitChoice::Kilo}));
    }
}

TEST(UnitsWriting, EveryChoiceReadsBackAsWritten)
{
    std::mt19937 random(7);
    const auto pick = [&](int lowest, int highest) { return std::uniform_int_distribution(lowest, highest)(random); };
    Configuration configuration;
    std::array<UnitChoices, 3> expected;
    const std::array<const wchar_t*, 3> drivers{L"zep1", L"zep2", L"zep3"};
    for (int round = 0; round < 10000; ++round) {
        const auto driver = static_cast<std::size_t>(pick(0, 2));
        expected[driver] = {UnitChoice{pick(-1, 3), pick(0, 1)}, UnitChoice{pick(-1, 3), pick(0, 1)}};
        configuration.Write(expected[driver], drivers[driver]);
        for (std::size_t i = 0; i < drivers.size(); ++i)
            ASSERT_EQ(configuration.Read(drivers[i]), expected[i]) << round;
    }
    EXPECT_EQ(Count(configuration.Text(), "<unit>"), 6U);
}

TEST(UnitsChange, IsAnyDifferenceInEitherUnit)
{
    const UnitChoices initial{DefaultChoice, DefaultChoice};
    EXPECT_EQ(initial, UnitChoices());
    EXPECT_NE((UnitChoices{UnitChoice{2, UnitChoice::Plain}, DefaultChoice}), initial);
    EXPECT_NE((UnitChoices{UnitChoice{1, UnitChoice::Kilo}, DefaultChoice}), initial);
    EXPECT_NE((UnitChoices{DefaultChoice, UnitChoice{0, UnitChoice::Plain}}), initial);
    EXPECT_NE((UnitChoices{DefaultChoice, UnitChoice{1, UnitChoice::Kilo}}), initial);
}

}  // namespace
