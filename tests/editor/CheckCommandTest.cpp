// The command that looks for faults, run as a script runs it.
#include "FieldCommandsFixture.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

namespace {

class CheckCommand : public editor_tests::FieldCommandsTest {
protected:
    // The other device's model is none that the editor knows.
    void TakeOtherDeviceAway()
    {
        m_folder.Write("plant/main.xml", "<configuration><devices><device><driverId>zep-1</driverId>"
                                         "<name>CPD</name><type>ZEP</type></device></devices></configuration>");
        for (const auto& file : std::filesystem::directory_iterator(m_folder.Path() / "plant/devices"))
            if (file.path().stem() != "zep-1")
                std::filesystem::remove(file.path());
    }
};

}  // namespace

TEST_F(CheckCommand, PrintsNothingForAProjectInOrder)
{
    TakeOtherDeviceAway();
    EXPECT_THAT(Run({"check"}), IsEmpty());
    EXPECT_THAT(Run({"check", "CPD"}), IsEmpty());
}

TEST_F(CheckCommand, PrintsDeviceFieldAndReasonInTheDialogsWords)
{
    TakeOtherDeviceAway();
    m_folder.Write("plant/devices/zep-1.xml", "<device><information><numZEP>9</numZEP></information></device>");
    m_folder.Write("plant/devices/left.xml", "<device/>");
    const Lines lines = Run({"check"}, 1);
    EXPECT_THAT(lines, ElementsAre("CPD\tdevice.numZEP\tEnter a value between 1 and 8.",
                                   StartsWith("-\tdevices/left.xml\tThis is the document of no device;")));
    EXPECT_THAT(Run({"check", "zep-1"}, 1), ElementsAre(lines.front()));
}

TEST_F(CheckCommand, TellsOfABrokenMainDocument)
{
    m_folder.Write("plant/main.xml", "<configuration>");
    const Lines lines = Run({"check"}, 1);
    ASSERT_FALSE(lines.empty());
    EXPECT_THAT(lines.front(), StartsWith("-\tmain.xml\t"));
}

TEST_F(CheckCommand, RefusesADeviceThatIsNotThere)
{
    ExpectError(Start({"check", "NOBODY"}), {"NOBODY"});
}
