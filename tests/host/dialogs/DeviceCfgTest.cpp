// The base of device dialogs: where a device's document is, how it is read and stored.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "DeviceDialog.h"
#include "ParameterNames.h"

namespace {

using testing::ElementsAre;

TEST_F(DeviceCfg, ReadsTheDevicesDocumentBeforeTheDialogOpens)
{
    WriteDocument(Version3);
    std::wstring version;
    EXPECT_EQ(m_dialog.Run([&] { version = m_dialog.Version(); }), Closed);
    EXPECT_EQ(version, L"3.1");
    EXPECT_TRUE(m_boxes.Texts().empty());
}

TEST_F(DeviceCfg, TakesAMissingFileForAnEmptyDocument)
{
    EXPECT_EQ(m_dialog.Run(), Closed);
    EXPECT_EQ(m_dialog.Version(), L"?");
    EXPECT_TRUE(m_boxes.Texts().empty());
    EXPECT_FALSE(fs::exists(DocumentFile()));
}

TEST_F(DeviceCfg, TakesAnEmptyFileForAnEmptyDocument)
{
    WriteDocument("");
    EXPECT_EQ(m_dialog.Run(), Closed);
    EXPECT_EQ(m_dialog.Version(), L"?");
    EXPECT_TRUE(m_boxes.Texts().empty());
}

TEST_F(DeviceCfg, OpensWithoutAProject)
{
    KZMainCfg::SetProjectFolder({});
    EXPECT_EQ(m_dialog.Run(), Closed);
    EXPECT_TRUE(m_boxes.Texts().empty());
}

TEST_F(DeviceCfg, StoresTheDocumentAndItsFolder)
{
    bool stored = false;
    m_dialog.Run([&] {
        m_dialog.Document()->Root()->NewChild(L"information", nullptr)->SetValue(L"version", L"4");
        stored = m_dialog.Write();
    });
    EXPECT_TRUE(stored);
    EXPECT_NE(m_project.Read(L"devices/zep-01.xml").find("<version>4</version>"), std::string::npos);
    DeviceDialog again(&m_device);
    again.Run();
    EXPECT_EQ(again.Version(), L"4");
}

TEST_F(DeviceCfg, ReadsTheFileAnewEachTimeItRuns)
{
    WriteDocument(Version3);
    m_dialog.Run();
    fs::remove(DocumentFile());
    m_dialog.Run();
    EXPECT_EQ(m_dialog.Version(), L"?");
}

using Text = kztest::Named<const char*>;

class BrokenDeviceCfg : public DeviceCfg, public testing::WithParamInterface<Text> {};

TEST_P(BrokenDeviceCfg, SaysSoAndLeavesTheFileAlone)
{
    WriteDocument(GetParam().value);
    bool stored = true;
    EXPECT_EQ(m_dialog.Run([&] { stored = m_dialog.Write(); }), Closed) << "the dialog opens all the same";
    EXPECT_FALSE(stored);
    EXPECT_EQ(m_dialog.Version(), L"?");
    EXPECT_EQ(m_project.Read(L"devices/zep-01.xml"), GetParam().value);
    ASSERT_EQ(m_boxes.Texts().size(), 2u) << "one when it is read, one when it is to be written";
    for (const std::wstring& text : m_boxes.Texts())
        EXPECT_NE(text.find(L"zep-01.xml"), std::wstring::npos) << "the file is named";
}

INSTANTIATE_TEST_SUITE_P(Documents, BrokenDeviceCfg,
                         testing::Values(Text{"EndsTooEarly", "<device><information>"}, Text{"OtherRoot", "<other/>"},
                                         Text{"NoDocument", "no document at all"}),
                         kztest::ByName);

TEST_F(DeviceCfg, ReportsThatItCannotStore)
{
    m_project.Write(L"devices", "a file where the folder should be");
    m_dialog.Run();
    EXPECT_FALSE(m_dialog.Write());
    ASSERT_FALSE(m_boxes.Texts().empty());
    EXPECT_NE(m_boxes.Texts().back().find(L"zep-01.xml"), std::wstring::npos);
}

TEST_F(DeviceCfg, ReportsThatThereIsNoProjectToStoreIn)
{
    KZMainCfg::SetProjectFolder({});
    EXPECT_FALSE(m_dialog.Write());
    EXPECT_EQ(m_boxes.Texts().size(), 1u);
}

TEST_F(DeviceCfg, SaysThatThereIsNoMemoryToStoreWith)
{
    WriteDocument(Version3);
    m_dialog.Run();
    for (const auto failure : MemoryFailures) {
        m_dialog.fail = failure;
        EXPECT_FALSE(m_dialog.Write());
        EXPECT_THAT(m_boxes.Take(),
                    ElementsAre(kztest::SeenMessage{L"The device's configuration could not be saved.\n\n"
                                                    L"There is not enough memory for this operation."}));
        EXPECT_EQ(kztest::BytesOf(DocumentFile()), Version3);
    }
}

TEST_F(DeviceCfg, SaysThatThereIsNoMemoryToOpenWith)
{
    for (const auto failure : MemoryFailures) {
        m_dialog.fail = failure;
        EXPECT_EQ(m_dialog.Run(), -1);
        EXPECT_THAT(m_boxes.Take(), ElementsAre(kztest::SeenMessage{
                                        L"The device's configuration could not be opened. Nothing was changed."}));
    }
}

TEST_F(DeviceCfg, KeepsSilentWhenAskedTo)
{
    KZMainCfg::SetProjectFolder({});
    EXPECT_FALSE(m_dialog.Write(true));
    for (const auto failure : MemoryFailures) {
        KZMainCfg::SetProjectFolder(m_project.Path().wstring());
        m_dialog.fail = failure;
        EXPECT_FALSE(m_dialog.Write(true));
    }
    EXPECT_TRUE(m_boxes.Texts().empty());
}

TEST_F(DeviceCfg, AddsWhatADriverAddsToTheName)
{
    m_dialog.uriParams = L"?channel=2";
    m_project.Write(L"devices/zep-01%3Fchannel%3D2.xml", Version3);
    m_dialog.Run();
    EXPECT_EQ(m_dialog.Version(), L"3.1");
}

TEST(DeviceDocumentFile, IsNamedAfterTheDriverId)
{
    const auto name = [](const wchar_t* id) { return KZBaseDeviceCfg::DocumentFileName(id); };
    EXPECT_EQ(name(L"zep-01"), KZBasicString(L"zep-01.xml"));
    EXPECT_EQ(name(L"Filter_2 B.1"), KZBasicString(L"Filter_2 B.1.xml"));
}

TEST(DeviceDocumentFile, HasNoCharacterThatFileNamesForbid)
{
    const auto name = [](const wchar_t* id) { return KZBaseDeviceCfg::DocumentFileName(id); };
    EXPECT_EQ(name(L"a/b\\c"), KZBasicString(L"a%2Fb%5Cc.xml"));
    EXPECT_EQ(name(L"\"<>|?*:%"), KZBasicString(L"%22%3C%3E%7C%3F%2A%3A%25.xml"));
    EXPECT_EQ(name(L"ñ"), KZBasicString(L"%C3%B1.xml"));
    EXPECT_EQ(name(L"\u20AC"), KZBasicString(L"%E2%82%AC.xml"));
    EXPECT_EQ(name(L"\U0001F50C"), KZBasicString(L"%F0%9F%94%8C.xml"));
    EXPECT_EQ(name(L"\xD83D"), KZBasicString(L"%ED%A0%BD.xml")) << "half a pair";
    EXPECT_EQ(name(L"\t"), KZBasicString(L"%09.xml"));
}

TEST(DeviceDocumentFile, HasNoNameThatWindowsReserves)
{
    const auto name = [](const wchar_t* id) { return KZBaseDeviceCfg::DocumentFileName(id); };
    EXPECT_EQ(name(L"CON"), KZBasicString(L"%43ON.xml"));
    EXPECT_EQ(name(L"nul.1"), KZBasicString(L"%6Eul.1.xml"));
    EXPECT_EQ(name(L"COM7"), KZBasicString(L"%43OM7.xml"));
    EXPECT_EQ(name(L"COM77"), KZBasicString(L"COM77.xml"));
    EXPECT_EQ(name(L"control"), KZBasicString(L"control.xml"));
    EXPECT_EQ(name(L""), KZBasicString(L"%.xml"));
}

TEST(DeviceDocumentFile, IsAnotherOneForEveryId)
{
    const wchar_t* const ids[] = {L"a/b", L"a%2Fb", L"a%252Fb", L"", L"%", L"CON", L"%43ON", L" ", L"ñ", L"%C3%B1"};
    for (const wchar_t* one : ids) {
        for (const wchar_t* other : ids) {
            if (one != other) {
                EXPECT_NE(KZBaseDeviceCfg::DocumentFileName(one), KZBaseDeviceCfg::DocumentFileName(other));
            }
        }
    }
}

}  // namespace
