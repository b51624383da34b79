// Device dialogs whose documents an application keeps itself.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "DeviceDialog.h"
#include "KZDocumentStore.h"

namespace {

using testing::ElementsAre;

// A store of one document, which remembers the name that it was last asked for.
class MemoryStore : public KZDocumentStore {
public:
    KZDocumentResult Read(const KZBasicString& fileName, XmlDocument& document) override
    {
        Enter(fileName);
        if (!refusal.IsEmpty())
            return {false, refusal};
        return text.empty() ? KZDocumentResult{} : document.Parse(text);
    }
    KZDocumentResult Write(const KZBasicString& fileName, const XmlDocument& document) override
    {
        Enter(fileName);
        if (!refusal.IsEmpty())
            return {false, refusal};
        text = document.Serialize();
        return {};
    }

    std::string text;
    KZBasicString name;
    KZBasicString refusal;
    void (*fail)() = nullptr;

private:
    void Enter(const KZBasicString& fileName)
    {
        name = fileName;
        if (fail)
            fail();
    }
};

class DeviceCfgWithStore : public DeviceCfg {
protected:
    DeviceCfgWithStore() { KZMainCfg::SetDocumentStore(&m_store); }
    ~DeviceCfgWithStore() override { KZMainCfg::SetDocumentStore(nullptr); }

    MemoryStore m_store;
};

TEST_F(DeviceCfgWithStore, ReadsFromTheStoreAndNotTheFile)
{
    WriteDocument("<device><information><version>of the file</version></information></device>");
    m_store.text = Version3;
    std::wstring version;
    m_dialog.Run([&] { version = m_dialog.Version(); });
    EXPECT_EQ(version, L"3.1");
    EXPECT_EQ(m_store.name, KZBasicString(L"zep-01.xml"));
    EXPECT_TRUE(m_boxes.Texts().empty());
}

TEST_F(DeviceCfgWithStore, TakesADocumentThatTheStoreLacksForAnEmptyOne)
{
    EXPECT_EQ(m_dialog.Run(), Closed);
    EXPECT_EQ(m_dialog.Version(), L"?");
    EXPECT_TRUE(m_boxes.Texts().empty());
}

TEST_F(DeviceCfgWithStore, HandsTheDocumentToTheStoreAndMakesItClean)
{
    m_dialog.uriParams = L"?channel=2";
    m_dialog.Run([&] {
        m_dialog.Document()->Root()->NewChild(L"information", nullptr)->SetValue(L"version", L"4");
        m_dialog.Document()->SetDirty(true);
        EXPECT_TRUE(m_dialog.Write());
    });
    EXPECT_FALSE(m_dialog.Document()->IsDirty());
    EXPECT_EQ(m_store.name, KZBasicString(L"zep-01%3Fchannel%3D2.xml"));
    EXPECT_NE(m_store.text.find("<version>4</version>"), std::string::npos);
    EXPECT_TRUE(fs::is_empty(m_project.Path())) << "the store alone decides what is written";
}

TEST_F(DeviceCfgWithStore, ReportsWhatTheStoreRefuses)
{
    m_dialog.Run();
    m_dialog.Document()->SetDirty(true);
    m_store.refusal = L"devices/zep-01.xml: somebody else has it; close the other editor";
    EXPECT_FALSE(m_dialog.Write(true));
    EXPECT_TRUE(m_boxes.Texts().empty()) << "nothing is said when quiet";
    EXPECT_FALSE(m_dialog.Write());
    EXPECT_THAT(m_boxes.Take(),
                ElementsAre(kztest::SeenMessage{L"The device's configuration could not be saved.\n\n"
                                                L"devices/zep-01.xml: somebody else has it; close the other editor"}));
    EXPECT_TRUE(m_dialog.Document()->IsDirty());
}

TEST_F(DeviceCfgWithStore, NeverOverwritesWhatTheStoreCouldNotRead)
{
    m_store.text = Version3;
    m_store.refusal = L"zep-01.xml: it is damaged";
    EXPECT_EQ(m_dialog.Run(), Closed);
    m_store.refusal.Clear();
    EXPECT_FALSE(m_dialog.Write());
    EXPECT_EQ(m_store.text, Version3);
    EXPECT_EQ(m_boxes.Texts().size(), 2u) << "one when it is read, one when it is to be written";
}

TEST_F(DeviceCfgWithStore, SaysThatThereIsNoMemory)
{
    m_dialog.Run();
    for (const auto failure : MemoryFailures) {
        m_store.fail = failure;
        EXPECT_FALSE(m_dialog.Write());
        EXPECT_EQ(m_dialog.Run(), -1);
        EXPECT_THAT(
            m_boxes.Take(),
            ElementsAre(kztest::SeenMessage{L"The device's configuration could not be saved.\n\n"
                                            L"There is not enough memory for this operation."},
                        kztest::SeenMessage{L"The device's configuration could not be opened. Nothing was changed."}));
    }
}

}  // namespace
