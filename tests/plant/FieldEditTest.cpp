// Values that are wanted for devices: what is changed, what is refused, and what the documents hold afterwards.
#include "changes/FieldEdit.h"

#include "KZStringIds.h"
#include "ProjectFixture.h"

namespace {

using plant::Assignment;
using plant::Field;
using plant::FieldEdit;
using plant::Finding;

constexpr const char* Devices = "  <devices>\n"
                                "    <device><driverId>a</driverId><name>CPD</name><type>ZEP</type></device>\n"
                                "    <device><driverId>b</driverId><name>TREN</name><type>ZEP</type></device>\n"
                                "  </devices>\n";

std::string MainWith(const std::string& sections)
{
    return std::string("<configuration>\n") + Devices + sections + "</configuration>\n";
}

class FieldEdits : public kztest::ProjectFixture {
protected:
    void Start(const std::string& sections, const std::string& information)
    {
        m_folder.Write("main.xml", MainWith(sections));
        m_folder.Write("devices/a.xml", "<device>" + information + "</device>\n");
        Open();
    }
    [[nodiscard]] static Assignment Wanted(const std::string& key, const std::string& value)
    {
        return {plant::FindField(*plant::FieldsOfType(L"ZEP"), key), value};
    }
    // "key before -> after" for each change, "key: text" for what is refused.
    std::vector<std::string> Told(const std::vector<Assignment>& values,
                                  FieldEdit::Unsettable same = FieldEdit::Unsettable::Refused)
    {
        m_edit.emplace(*m_project, same);
        m_edit->Add(0, values);
        std::vector<std::string> lines;
        for (const plant::FieldChange& change : m_edit->Changes())
            lines.push_back(change.field->key + " " + change.before + " -> " + change.after);
        for (const Finding& finding : m_edit->Findings())
            lines.push_back(finding.device + " " + finding.place + ": " + std::to_string(finding.reason.text));
        return lines;
    }
    void Set(const std::vector<Assignment>& values)
    {
        Told(values);
        ASSERT_EQ(m_edit->Findings(), std::vector<Finding>());
        ASSERT_EQ(m_edit->Save("set"), Outcome::Done);
    }
    [[nodiscard]] std::string DeviceA() const { return m_folder.Read("devices/a.xml"); }

    std::optional<FieldEdit> m_edit;
};

using Lines = std::vector<std::string>;

std::string Line(const std::string& key, unsigned text)
{
    return "CPD " + key + ": " + std::to_string(text);
}

TEST_F(FieldEdits, TellWhatDiffersFromTheDefaultsThatDialogsShow)
{
    Start("", "");
    EXPECT_EQ(
        Told({Wanted("limits.PF.maxD", "0.5"), Wanted("limits.PF.maxW", "0.5"), Wanted("limits.PF.minW", "0.5"),
              Wanted("limits.PF.minD", "1"), Wanted("device.mode", "neutral"), Wanted("units.RP.scale", "plain"),
              Wanted("device.minCurrent", "007")}),
        (Lines{"limits.PF.maxD 1 -> 0.5", "limits.PF.maxW 1 -> 0.5", "limits.PF.minW 1 -> 0.5",
               "device.mode none -> neutral", "device.minCurrent  -> 7", Line("limits.PF.minW", KZS_LIMITS_ORDER)}));
}

TEST_F(FieldEdits, WriteTheNamedChildOfTheInformationAlone)
{
    Start("", "<information><version>1</version><minCurrent>007</minCurrent><!-- kept --></information>");
    Set({Wanted("device.minCurrent", "8")});
    EXPECT_EQ(
        DeviceA(),
        "<device><information><version>1</version><minCurrent>8</minCurrent><!-- kept --></information></device>\n");
    EXPECT_EQ(ReadMain(), MainWith(""));
}

TEST_F(FieldEdits, LeaveWhatReadsTheSameAsItIsStored)
{
    Start("", "<information><minCurrent>007</minCurrent><numZEP>99</numZEP></information>");
    EXPECT_EQ(Told({Wanted("device.minCurrent", "7"), Wanted("device.numZEP", "99")}), Lines());
}

TEST_F(FieldEdits, GiveADeviceWithoutADocumentOne)
{
    Start("", "");
    plant::RealDisk().Remove(m_folder.Path() / "devices" / "a.xml");
    Open();
    Set({Wanted("device.numZEP", "8")});
    EXPECT_NE(DeviceA().find("<numZEP>8</numZEP>"), std::string::npos);
}

TEST_F(FieldEdits, MakeANewUnitSetupOfBothUnits)
{
    Start("", "");
    Set({Wanted("units.RP.decimals", "3")});
    const auto* setup = KZMainCfg::Get()->Node(L"unitSetups/unitSetup?driverId=a?");
    ASSERT_NE(setup, nullptr);
    EXPECT_STREQ(setup->Node(L"unit?name=AP-VA?")->Value(L"decimals", L""), L"1");
    EXPECT_STREQ(setup->Node(L"unit?name=AP-VA?")->Value(L"factor", L""), L"0");
    EXPECT_STREQ(setup->Node(L"unit?name=RP?")->Value(L"decimals", L""), L"3");
    EXPECT_STREQ(setup->Node(L"unit?name=RP?")->Value(L"factor", L""), L"0");
}

TEST_F(FieldEdits, MakeAUnitThatIsMissingWhole)
{
    Start("  <unitSetups><unitSetup><driverId>a</driverId></unitSetup></unitSetups>\n", "");
    Set({Wanted("units.RP.scale", "kilo")});
    EXPECT_EQ(KZMainCfg::Get()->Node(L"unitSetups/unitSetup?driverId=a?/unit?name=AP-VA?"), nullptr);
    const auto* unit = KZMainCfg::Get()->Node(L"unitSetups/unitSetup?driverId=a?/unit?name=RP?");
    ASSERT_NE(unit, nullptr);
    EXPECT_STREQ(unit->Value(L"decimals", L""), L"1");
    EXPECT_STREQ(unit->Value(L"factor", L""), L"3");
}

TEST_F(FieldEdits, ChangeTheNamedValueOfAUnitAlone)
{
    const std::string before = "  <unitSetups><unitSetup><driverId>a</driverId><unit><name>RP</name><decimals>2"
                               "</decimals></unit></unitSetup></unitSetups>\n";
    Start(before, "");
    EXPECT_EQ(Told({Wanted("units.RP.scale", "kilo"), Wanted("units.AP-VA.scale", "plain")}), Lines());
    Set({Wanted("units.RP.decimals", "3")});
    std::string after = before;
    after.replace(after.find(">2<"), 3, ">3<");
    EXPECT_EQ(ReadMain(), MainWith(after));
}

TEST_F(FieldEdits, MakeANewCheckWholeAndChangeAnExistingOneAlone)
{
    Start("  <viewSetups><viewSetup><driverId>a</driverId><check><var>AP</var><maxD>80</maxD></check></viewSetup>"
          "</viewSetups>\n",
          "");
    Set({Wanted("limits.AP.maxW", "40"), Wanted("limits.PF.nominal", "1")});
    const auto* setup = KZMainCfg::Get()->Node(L"viewSetups/viewSetup?driverId=a?");
    const auto* power = setup->Node(L"check?var=AP?");
    EXPECT_STREQ(power->Value(L"maxW", L""), L"40.000000");
    EXPECT_STREQ(power->Value(L"maxD", L""), L"80");
    EXPECT_STREQ(power->Value(L"nominal", L"none"), L"none");
    const auto* factor = setup->Node(L"check?var=PF?");
    ASSERT_NE(factor, nullptr);
    for (const wchar_t* limit : {L"nominal", L"maxW", L"maxD", L"minW", L"minD"})
        EXPECT_STREQ(factor->Value(limit, L""), L"1.000000") << limit;
    EXPECT_EQ(setup->Node(L"check?var=RP?"), nullptr);
}

TEST_F(FieldEdits, JudgeALimitTogetherWithTheOthersOfItsVariable)
{
    Start("", "");
    EXPECT_EQ(Told({Wanted("limits.ARM3AN.maxW", "2")}),
              (Lines{"limits.ARM3AN.maxW 1 -> 2", Line("limits.ARM3AN.maxW", KZS_LIMITS_ORDER)}));
    EXPECT_EQ(Told({Wanted("limits.ARM3AN.maxW", "2"), Wanted("limits.ARM3AN.maxD", "2")}),
              (Lines{"limits.ARM3AN.maxW 1 -> 2", "limits.ARM3AN.maxD 1 -> 2"}));
    EXPECT_EQ(Told({Wanted("limits.AP.maxW", "2")}).back(), Line("limits.AP.maxW", KZS_LIMITS_ORDER));
}

TEST_F(FieldEdits, TellEveryRangeThatIsNotKept)
{
    Start("", "");
    EXPECT_EQ(Told({Wanted("limits.AP.maxW", "100"), Wanted("limits.AP.maxD", "0"), Wanted("device.numZEP", "9"),
                    Wanted("device.version", "2"), Wanted("units.RP.decimals", "")}),
              (Lines{"limits.AP.maxW 1 -> 100", "limits.AP.maxD 1 -> 0", Line("device.numZEP", KZS_OUT_OF_RANGE),
                     Line("device.version", IDS_PLANT_FIELD_READ_ONLY), Line("units.RP.decimals", KZS_FIELD_EMPTY),
                     Line("limits.AP.maxW", KZS_LIMIT_RANGE), Line("limits.AP.maxD", KZS_LIMIT_RANGE)}));
}

TEST_F(FieldEdits, LeaveAloneWhatWasWrongBeforeAndIsNotTouched)
{
    Start("  <viewSetups><viewSetup><driverId>a</driverId><check><var>AP</var><maxW>500</maxW></check></viewSetup>"
          "</viewSetups>\n",
          "<information><numZEP>99</numZEP></information>");
    EXPECT_EQ(Told({Wanted("limits.RP.nominal", "5"), Wanted("device.minCurrent", "5")}),
              (Lines{"limits.RP.nominal 0 -> 5", "device.minCurrent  -> 5"}));
}

TEST_F(FieldEdits, RefuseWhatCannotBeSetEvenIfItIsTheSameOrLetItBe)
{
    Start("", "<information><version>2</version></information>");
    const std::vector<Assignment> same{Wanted("device.version", "2"), Wanted("device.minCurrent", "")};
    EXPECT_EQ(Told(same),
              (Lines{Line("device.version", IDS_PLANT_FIELD_READ_ONLY), Line("device.minCurrent", KZS_FIELD_EMPTY)}));
    EXPECT_EQ(Told(same, FieldEdit::Unsettable::MayStay), Lines());
    EXPECT_EQ(Told({Wanted("device.version", "3")}, FieldEdit::Unsettable::MayStay),
              (Lines{Line("device.version", IDS_PLANT_FIELD_READ_ONLY)}));
}

TEST_F(FieldEdits, RefuseAValueThatIsGivenTwice)
{
    Start("", "");
    EXPECT_EQ(Told({Wanted("device.numZEP", "2"), Wanted("device.numZEP", "2")}),
              (Lines{"device.numZEP  -> 2", Line("device.numZEP", IDS_PLANT_FIELD_TWICE)}));
}

TEST_F(FieldEdits, AreOneSaveOfAllDocuments)
{
    Start("", "");
    const std::size_t before = CountEntries();
    FieldEdit edit(*m_project);
    const std::vector<Assignment> values{Wanted("device.numZEP", "2"), Wanted("limits.RP.nominal", "5")};
    edit.Add(0, values);
    edit.Add(1, values);
    ASSERT_EQ(edit.Save("set"), Outcome::Done);
    EXPECT_EQ(CountEntries(), before + 1);
    EXPECT_EQ(m_project->Entries().back().cause, "set");
    EXPECT_EQ(m_project->Entries().back().documents, (Names{"devices/a.xml", "devices/b.xml", "main.xml"}));
    EXPECT_FALSE(m_project->IsDirty());
}

TEST_F(FieldEdits, AreUnsavedChangesWhenTheyCannotBeWritten)
{
    Start("", "");
    FieldEdit edit(*m_project);
    edit.Add(0, std::vector<Assignment>{Wanted("device.numZEP", "2"), Wanted("limits.RP.nominal", "5")});
    const kztest::Files before = Documents();
    m_folder.Write("devices/a.xml", "<device><note>theirs</note></device>\n");
    m_project->SetUser(nullptr);
    EXPECT_EQ(kztest::Refused([&] { return edit.Save("set"); }), IDS_PLANT_FOREIGN_CHANGES);
    EXPECT_EQ(ReadMain(), before.at("main.xml"));
    EXPECT_TRUE(m_project->IsUnsaved("main.xml"));
    EXPECT_TRUE(m_project->IsUnsaved("devices/a.xml"));
}

}  // namespace
