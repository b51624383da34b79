// The options hub as a modal dialog, and what its sections do in either mode.
#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include <new>

#include "KZDriverDeviceZEP.h"
#include "KZMainCfg.h"
#include "KZQuorvelantaSetup.h"
#include "MessageBoxes.h"
#include "TestDialog.h"
#include "TestHub.h"

namespace {

constexpr char TwoDevices[] = R"(<configuration>
  <devices>
    <device><driverId>other</driverId><name>Other</name></device>
    <device><driverId>zep/1</driverId><name>Filter 1</name></device>
  </devices>
  <viewSetups>
    <viewSetup><driverId>other</driverId></viewSetup>
    <viewSetup><driverId>zep/1</driverId></viewSetup>
  </viewSetups>
</configuration>)";

LRESULT CALLBACK NoteChanges(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR changes)
{
    if (message == WM_KZ_OPTIONS_CHANGED) {
        EXPECT_EQ(lParam, 0);
        reinterpret_cast<std::vector<WPARAM>*>(changes)->push_back(wParam);
    }
    return ::DefSubclassProc(window, message, wParam, lParam);
}

class OptionsHub : public testing::Test {
protected:
    OptionsHub()
    {
        Configure(TwoDevices);
        ::SetWindowSubclass(m_owner.Window()->m_hWnd, NoteChanges, 1, reinterpret_cast<DWORD_PTR>(&m_changes));
    }
    ~OptionsHub() override
    {
        KZQuorvelantaSetup::Get()->SetLanguage(KZLanguage::English);
        Configure("<configuration/>");
    }
    static void Configure(const char* text) { ASSERT_TRUE(KZMainCfg::Get()->Parse(text)); }
    static XmlDocument::XmlNode* Find(const wchar_t* path) { return KZMainCfg::Get()->Node(path); }

    KZDriverDeviceZEP m_device{{L"zep/1", L"Filter 1", 1, L"ZEP", L"", {}}};
    TestDialog m_owner{};
    TestHub m_hub{m_owner.Window(), &m_device};
    std::vector<WPARAM> m_changes;
};

TEST_F(OptionsHub, ClosesWithOk)
{
    EXPECT_EQ(m_hub.Run([this] { m_hub.SendMessage(WM_COMMAND, IDOK); }), IDOK);
}

TEST_F(OptionsHub, ClosesWithCancelAndWithTheCloseBox)
{
    EXPECT_EQ(m_hub.Run([this] { m_hub.SendMessage(WM_COMMAND, IDCANCEL); }), IDCANCEL);
    EXPECT_EQ(m_hub.Run([this] { m_hub.SendMessage(WM_CLOSE); }), IDCANCEL);
}

TEST_F(OptionsHub, ClosesWithOkOnEnterAtOk)
{
    const auto enterAtOk = [this] {
        m_hub.GotoDlgCtrl(m_hub.GetDlgItem(IDOK));
        TestHub::Type(VK_RETURN);
    };
    EXPECT_EQ(m_hub.Run(enterAtOk), IDOK);
}

TEST_F(OptionsHub, ClosesWithCancelOnEscape)
{
    EXPECT_EQ(m_hub.Run([] { TestHub::Type(VK_ESCAPE); }), IDCANCEL);
}

TEST_F(OptionsHub, OpensTheFocusedSectionOnEnter)
{
    const auto enterAtUnits = [this] {
        m_hub.GotoDlgCtrl(m_hub.GetDlgItem(KZSectionButtonBase + KZSectionUnits));
        TestHub::Type(VK_RETURN);
    };
    EXPECT_EQ(m_hub.Run(enterAtUnits), TestHub::StillOpen);
    ASSERT_EQ(m_hub.calls.size(), 1u);
    EXPECT_EQ(m_hub.calls[0].hook, L"units");
}

TEST_F(OptionsHub, OpensASectionByItsAccessKey)
{
    EXPECT_EQ(m_hub.Run([] { ::PostMessageW(::GetFocus(), WM_SYSCHAR, L'l', 0x20000001); }), TestHub::StillOpen);
    ASSERT_EQ(m_hub.calls.size(), 1u);
    EXPECT_EQ(m_hub.calls[0].hook, L"limits");
}

TEST_F(OptionsHub, WalksThroughTheSectionsWithTab)
{
    int focused = 0;
    m_hub.Run([&] {
        m_hub.GotoDlgCtrl(m_hub.GetDlgItem(KZSectionButtonBase + KZSectionLimits));
        m_hub.NextDlgCtrl();
        focused = ::GetDlgCtrlID(::GetFocus());
    });
    EXPECT_EQ(focused, KZSectionButtonBase + KZSectionUnits);
}

TEST_F(OptionsHub, NamesModelAndDeviceInItsCaption)
{
    for (const KZLanguage language : {KZLanguage::English, KZLanguage::Spanish}) {
        KZQuorvelantaSetup::Get()->SetLanguage(language);
        CString caption;
        m_hub.Run([&] { m_hub.GetWindowText(caption); });
        const std::wstring text(caption);
        EXPECT_NE(text.find(KZQuorvelantaSetup::Get()->DriverName(L"ZEP").View()), std::wstring::npos);
        EXPECT_NE(text.find(L"Filter 1"), std::wstring::npos);
    }
}

TEST_F(OptionsHub, HandsTheDevicesElementToTheSectionsOfTheDevice)
{
    XmlDocument::XmlNode* device = Find(L"devices/device?driverId=zep/1?");
    ASSERT_TRUE(device);
    m_hub.Run([this] {
        for (const auto section : {KZSectionDriver, KZSectionDevice, KZSectionInputsOutputs})
            m_hub.Press(section);
    });
    ASSERT_EQ(m_hub.calls.size(), 3u);
    EXPECT_EQ(m_hub.calls[0].hook, L"driver");
    EXPECT_EQ(m_hub.calls[1].hook, L"device");
    EXPECT_EQ(m_hub.calls[2].hook, L"inputs and outputs");
    for (const TestHub::Call& call : m_hub.calls)
        EXPECT_EQ(call.node, device);
}

TEST_F(OptionsHub, HandsTheDriversViewSetupToTheLimits)
{
    m_hub.Run([this] { m_hub.Press(KZSectionLimits); });
    ASSERT_EQ(m_hub.calls.size(), 1u);
    EXPECT_EQ(m_hub.calls[0].hook, L"limits");
    EXPECT_EQ(m_hub.calls[0].node, Find(L"viewSetups/viewSetup?driverId=zep/1?"));
    EXPECT_TRUE(m_hub.calls[0].node);
}

TEST_F(OptionsHub, HandsNothingOnWhenTheConfigurationHasNothing)
{
    Configure("<configuration/>");
    m_hub.Run([this] {
        m_hub.Press(KZSectionDevice);
        m_hub.Press(KZSectionLimits);
    });
    ASSERT_EQ(m_hub.calls.size(), 2u);
    EXPECT_FALSE(m_hub.calls[0].node);
    EXPECT_FALSE(m_hub.calls[1].node);
}

TEST_F(OptionsHub, CallsTheHookOfEachOtherSection)
{
    m_hub.Run([this] {
        for (const auto section : {KZSectionUnits, KZSectionGeneric1, KZSectionGeneric2, KZSectionGeneric3})
            m_hub.Press(section);
    });
    std::vector<std::wstring> hooks;
    for (const TestHub::Call& call : m_hub.calls)
        hooks.push_back(call.hook);
    EXPECT_EQ(hooks, (std::vector<std::wstring>{L"units", L"generic 1", L"generic 2", L"generic 3"}));
}

TEST_F(OptionsHub, TellsItsOwnerWhichSectionHasChangedSomething)
{
    m_hub.Run([this] {
        m_hub.Press(KZSectionUnits);
        m_hub.Press(KZSectionDevice);
    });
    EXPECT_EQ(m_changes, (std::vector<WPARAM>{KZSectionUnits, KZSectionDevice}));
}

TEST_F(OptionsHub, TellsItsOwnerNothingWhenNothingHasChanged)
{
    m_hub.answer = false;
    m_hub.Run([this] { m_hub.Press(KZSectionUnits); });
    EXPECT_EQ(m_hub.calls.size(), 1u);
    EXPECT_TRUE(m_changes.empty());
}

// A driver that overrides no hook.
class BareHub : public KZDlgOptions {
public:
    using KZDlgOptions::KZDlgOptions;
};

TEST_F(OptionsHub, SaysInOneMessageThatADriverHasNothingToSetUpInASection)
{
    for (const KZLanguage language : {KZLanguage::English, KZLanguage::Spanish}) {
        KZQuorvelantaSetup::Get()->SetLanguage(language);
        BareHub hub(m_owner.Window(), &m_device);
        hub.SetChild();
        ASSERT_TRUE(hub.Create(m_owner.Window()));
        for (int section = 0; section < KZSectionCount; ++section) {
            kztest::MessageBoxes boxes;
            hub.SendMessage(WM_COMMAND, static_cast<WPARAM>(KZSectionButtonBase + section));
            CString caption;
            hub.GetDlgItem(KZSectionButtonBase + section)->GetWindowText(caption);
            ASSERT_EQ(boxes.Texts().size(), 1u);
            std::wstring name = static_cast<LPCWSTR>(caption);
            EXPECT_EQ(std::erase(name, L'&'), 1U) << "its access key";
            EXPECT_NE(boxes.Texts()[0].find(name), std::wstring::npos) << "the section is named";
            EXPECT_EQ(boxes.Texts()[0].find(L'&'), std::wstring::npos);
        }
    }
    EXPECT_TRUE(m_changes.empty());
}

// A driver whose hook fails.
class FailingHub : public BareHub {
public:
    using BareHub::BareHub;
    void (*fail)() = nullptr;

protected:
    bool SetupUnits() override
    {
        fail();
        return true;
    }
};

TEST_F(OptionsHub, SaysThatASectionHasFailed)
{
    FailingHub hub(m_owner.Window(), &m_device);
    hub.SetChild();
    ASSERT_TRUE(hub.Create(m_owner.Window()));
    constexpr void (*Failures[])() = {[] { throw std::bad_alloc(); }, [] { AfxThrowMemoryException(); }};
    for (const auto failure : Failures) {
        const kztest::MessageBoxes boxes;
        hub.fail = failure;
        hub.SendMessage(WM_COMMAND, static_cast<WPARAM>(KZSectionButtonBase + KZSectionUnits));
        EXPECT_EQ(boxes.Texts(), (std::vector<std::wstring>{
                                     L"This section was ended by an error. What was saved before stays saved."}));
    }
    EXPECT_TRUE(m_changes.empty());
}

TEST_F(OptionsHub, IgnoresCommandsThatAreNoSection)
{
    m_hub.Run([this] {
        m_hub.SendMessage(WM_COMMAND, KZSectionButtonBase - 1);
        m_hub.SendMessage(WM_COMMAND, KZSectionButtonBase + KZSectionCount);
    });
    EXPECT_TRUE(m_hub.calls.empty());
}

TEST_F(OptionsHub, ShowsAPictureOnEverySection)
{
    m_hub.Run([this] {
        for (int section = 0; section < KZSectionCount; ++section) {
            BUTTON_IMAGELIST shown{};
            m_hub.GetDlgItem(KZSectionButtonBase + section)
                ->SendMessage(BCM_GETIMAGELIST, 0, reinterpret_cast<LPARAM>(&shown));
            EXPECT_TRUE(shown.himl) << section;
            EXPECT_EQ(shown.uAlign, UINT{BUTTON_IMAGELIST_ALIGN_TOP});
        }
    });
}

TEST_F(OptionsHub, ShowsTheirPicturesBesideTheTextsOfOkAndCancel)
{
    m_hub.Run([this] {
        for (const int id : {IDOK, IDCANCEL}) {
            BUTTON_IMAGELIST shown{};
            m_hub.GetDlgItem(id)->SendMessage(BCM_GETIMAGELIST, 0, reinterpret_cast<LPARAM>(&shown));
            EXPECT_TRUE(shown.himl) << id;
            EXPECT_EQ(shown.uAlign, UINT{BUTTON_IMAGELIST_ALIGN_LEFT});
        }
    });
}

TEST_F(OptionsHub, TakesAnotherPictureForASectionAndIgnoresOtherNumbers)
{
    m_hub.Run([this] {
        const auto shown = [this] {
            BUTTON_IMAGELIST list{};
            m_hub.GetDlgItem(KZSectionButtonBase + KZSectionDevice)
                ->SendMessage(BCM_GETIMAGELIST, 0, reinterpret_cast<LPARAM>(&list));
            return list.himl;
        };
        const HIMAGELIST before = shown();
        m_hub.SetButtonImage(-1, L"ZEP-50.png");
        m_hub.SetButtonImage(KZSectionCount, L"ZEP-50.png");
        EXPECT_EQ(shown(), before);
        m_hub.SetButtonImage(KZSectionDevice, L"ZEP-50.png");
        EXPECT_NE(shown(), before);
        EXPECT_TRUE(shown());
    });
}

TEST_F(OptionsHub, CanDoWithoutADriver)
{
    TestHub hub(m_owner.Window(), nullptr);
    hub.Run([&] { hub.Press(KZSectionDevice); });
    ASSERT_EQ(hub.calls.size(), 1u);
    EXPECT_FALSE(hub.calls[0].node);
}

}  // namespace
