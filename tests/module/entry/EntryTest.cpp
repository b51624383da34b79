// The module as the host sees it: a DLL that is attached, registered, called and detached.
#include <afxcmn.h>
#include <afxwin.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <list>
#include <set>
#include <stdexcept>

#include "Controls.h"
#include "FaultyMemory.h"
#include "GuiResources.h"
#include "ImportPatch.h"
#include "KZDlgOptions.h"
#include "KZDriverDeviceZEP.h"
#include "KZDriverServices.h"
#include "KZLoadString.h"
#include "KZStringIds.h"
#include "MessageBoxes.h"
#include "SelectVarControls.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Entry = bool (*)();

const CRuntimeClass* ZepClass()
{
    return KZDriverDeviceZEP::GetThisClass();
}

// The module, loaded for one test.
class LoadedModule {
public:
    LoadedModule() : m_module(::LoadLibraryW(L"KZUsrZEP.dll")) {}
    ~LoadedModule()
    {
        KZDriverServices::Remove(ZepClass());
        ::FreeLibrary(m_module);
    }
    LoadedModule(const LoadedModule&) = delete;
    LoadedModule& operator=(const LoadedModule&) = delete;

    [[nodiscard]] HMODULE Handle() const noexcept { return m_module; }
    [[nodiscard]] bool Initialize() const
    {
        const auto entry =
            reinterpret_cast<Entry>(reinterpret_cast<void*>(::GetProcAddress(m_module, "InitializeUsrDriver_ZEP")));
        return entry && entry();
    }

private:
    HMODULE m_module;
};

class DriverModule : public testing::Test {
protected:
    [[nodiscard]] bool Select(unsigned long long groups, const wchar_t* text = nullptr)
    {
        return KZDriverServices::Find(ZepClass())
            ->selectVariables(nullptr, &m_device, m_names, KZVariableGroups(groups), 0, text);
    }

    LoadedModule m_module;
    KZDriverDeviceZEP m_device{{L"zep-1", L"DEV1", 1, L"ZEP", L"", KZVariableGroups(0x74)}};
    std::list<KZBasicString> m_names;
};

// Ends every dialog that opens on this thread with a command, and counts them.
class NextDialog {
public:
    explicit NextDialog(WPARAM command)
    {
        s_command = command;
        s_seen.clear();
        m_hook = ::SetWindowsHookExW(WH_CBT, Hook, nullptr, ::GetCurrentThreadId());
    }
    ~NextDialog() { ::UnhookWindowsHookEx(m_hook); }
    NextDialog(const NextDialog&) = delete;
    NextDialog& operator=(const NextDialog&) = delete;

    [[nodiscard]] static std::size_t Count() { return s_seen.size(); }

private:
    static LRESULT CALLBACK Hook(int code, WPARAM wParam, LPARAM lParam)
    {
        if (code == HCBT_ACTIVATE) {
            const auto window = reinterpret_cast<HWND>(wParam);
            if (kztest::ClassOf(window) == L"#32770" && s_seen.insert(window).second)
                ::PostMessageW(window, WM_COMMAND, s_command, 0);
        }
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }

    static inline WPARAM s_command = IDOK;
    static inline std::set<HWND> s_seen;
    HHOOK m_hook = nullptr;
};

TEST_F(DriverModule, RegistersItsFourCallbacks)
{
    ASSERT_TRUE(m_module.Initialize());
    const KZDriverCallbacks* callbacks = KZDriverServices::Find(ZepClass());
    ASSERT_TRUE(callbacks);
    EXPECT_TRUE(callbacks->options);
    EXPECT_TRUE(callbacks->selectVariables);
    EXPECT_TRUE(callbacks->third);
    EXPECT_TRUE(callbacks->createChildOptions);
    EXPECT_NE(callbacks->options, callbacks->third);
}

bool RefuseOptions(CWnd*, KZDriver*)
{
    return false;
}
bool RefuseSelection(CWnd*, KZDriver*, std::list<KZBasicString>&, const KZVariableGroups&, int, const wchar_t*)
{
    return false;
}

TEST_F(DriverModule, AnswersFalseAndRegistersNoFactoryWhenTheHostRefuses)
{
    ASSERT_TRUE(KZDriverServices::Add(ZepClass(), RefuseOptions, RefuseSelection, RefuseOptions));
    EXPECT_FALSE(m_module.Initialize());
    EXPECT_FALSE(KZDriverServices::Find(ZepClass())->createChildOptions);
    EXPECT_EQ(KZDriverServices::Find(ZepClass())->options, RefuseOptions);
}

bool RefuseFactory(const CRuntimeClass*, KZChildOptionsFactory)
{
    return false;
}

TEST_F(DriverModule, AnswersTrueThoughTheHostRefusesTheFactory)
{
    const kztest::ImportPatch patch(
        m_module.Handle(),
        "_ZN16KZDriverServices24AddCreateChildOptionsDlgEPK13CRuntimeClassPFP7CDialogP4CWndP8KZDriverE",
        reinterpret_cast<void*>(RefuseFactory));
    EXPECT_TRUE(m_module.Initialize());
    EXPECT_FALSE(KZDriverServices::Find(ZepClass())->createChildOptions);
}

bool FailOnFactory(const CRuntimeClass*, KZChildOptionsFactory)
{
    throw std::runtime_error("no room in the registry");
}

TEST_F(DriverModule, AnswersTrueThoughTheHostFailsOnTheFactory)
{
    const kztest::ImportPatch patch(
        m_module.Handle(),
        "_ZN16KZDriverServices24AddCreateChildOptionsDlgEPK13CRuntimeClassPFP7CDialogP4CWndP8KZDriverE",
        reinterpret_cast<void*>(FailOnFactory));
    kztest::MessageBoxes boxes;
    EXPECT_TRUE(m_module.Initialize());
    EXPECT_TRUE(KZDriverServices::Find(ZepClass())->options) << "the callbacks are registered and stay";
    ASSERT_EQ(boxes.Texts().size(), 1U);
    EXPECT_NE(boxes.Texts()[0].find(L"no room in the registry"), std::wstring::npos);
}

// A device of another model.
class OtherDevice : public KZDriverDevice {
public:
    OtherDevice() : KZDriverDevice({L"other", L"OTHER", 1, L"OTHER", L"", KZVariableGroups(0x74)}) {}
};

TEST_F(DriverModule, RefusesADriverThatIsNoneOfItsOwn)
{
    ASSERT_TRUE(m_module.Initialize());
    const KZDriverCallbacks& callbacks = *KZDriverServices::Find(ZepClass());
    CWnd parent;
    ASSERT_TRUE(parent.CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPEDWINDOW, 0, 0, 800, 600, nullptr, nullptr));
    OtherDevice other;
    m_names = {L"OTHER.HZIN"};
    const NextDialog none(IDOK);
    for (KZDriver* driver : {static_cast<KZDriver*>(nullptr), static_cast<KZDriver*>(&other)}) {
        EXPECT_FALSE(callbacks.options(&parent, driver));
        EXPECT_FALSE(callbacks.selectVariables(&parent, driver, m_names, KZVariableGroups(0x74), 0, nullptr));
        EXPECT_FALSE(callbacks.third(&parent, driver));
        EXPECT_FALSE(callbacks.createChildOptions(&parent, driver));
    }
    EXPECT_EQ(NextDialog::Count(), 0U);
    EXPECT_THAT(m_names, ElementsAre(L"OTHER.HZIN"));
    parent.DestroyWindow();
}

TEST_F(DriverModule, ThirdCallbackShowsNothingAndAnswersFalse)
{
    ASSERT_TRUE(m_module.Initialize());
    const NextDialog none(IDOK);
    EXPECT_FALSE(KZDriverServices::Find(ZepClass())->third(nullptr, &m_device));
    EXPECT_EQ(NextDialog::Count(), 0U);
}

TEST_F(DriverModule, OptionsAnswerTrueForOkAlone)
{
    ASSERT_TRUE(m_module.Initialize());
    const auto options = KZDriverServices::Find(ZepClass())->options;
    {
        const NextDialog ok(IDOK);
        EXPECT_TRUE(options(nullptr, &m_device));
    }
    {
        const NextDialog cancel(IDCANCEL);
        EXPECT_FALSE(options(nullptr, &m_device));
    }
}

TEST_F(DriverModule, SelectionAnswersTrueForOkAlone)
{
    ASSERT_TRUE(m_module.Initialize());
    {
        const NextDialog ok(IDOK);
        EXPECT_TRUE(Select(0x74));
    }
    {
        const NextDialog cancel(IDCANCEL);
        EXPECT_FALSE(Select(0x74));
    }
}

TEST_F(DriverModule, SaysSoWhenTheDeviceHasNoneOfTheGroups)
{
    ASSERT_TRUE(m_module.Initialize());
    m_names = {L"DEV1.HZIN"};
    for (const unsigned long long groups : {0ULL, 1ULL, 1ULL << 33, ~0x74ULL & ((1ULL << 34) - 1)}) {
        kztest::MessageBoxes boxes;
        EXPECT_FALSE(Select(groups));
        EXPECT_THAT(boxes.Texts(), ElementsAre(std::wstring(KZLoadString(KZS_NO_SUCH_VARIABLES).View())));
    }
    EXPECT_EQ(m_names.size(), 1U);
}

TEST_F(DriverModule, OpensForOneCommonGroupAndHandsOnTheWholeMask)
{
    ASSERT_TRUE(m_module.Initialize());
    // Only bit 0 is common, yet bit 2 of the host's mask makes the pages: OK then empties the list.
    KZDriverDeviceZEP device({L"zep-2", L"DEV2", 2, L"ZEP", L"", KZVariableGroups(1)});
    m_names = {L"DEV2.HZIN"};
    const NextDialog ok(IDOK);
    EXPECT_TRUE(KZDriverServices::Find(ZepClass())
                    ->selectVariables(nullptr, &device, m_names, KZVariableGroups(0b101), 0, nullptr));
    EXPECT_EQ(NextDialog::Count(), 1U);
    EXPECT_THAT(m_names, IsEmpty());
}

TEST_F(DriverModule, MakesTheOptionsAsAChildOfTheParent)
{
    ASSERT_TRUE(m_module.Initialize());
    CWnd parent;
    ASSERT_TRUE(parent.CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPEDWINDOW, 0, 0, 800, 600, nullptr, nullptr));
    CDialog* child = KZDriverServices::Find(ZepClass())->createChildOptions(&parent, &m_device);
    ASSERT_TRUE(child);
    EXPECT_EQ(::GetParent(child->m_hWnd), parent.m_hWnd);
    EXPECT_NE(child->GetStyle() & WS_CHILD, 0U);
    child->DestroyWindow();
    delete child;
    parent.DestroyWindow();
}

HIMAGELIST PictureOf(const CWnd& hub, int section)
{
    BUTTON_IMAGELIST picture{};
    ::SendDlgItemMessageW(hub.m_hWnd, KZSectionButtonBase + section, BCM_GETIMAGELIST, 0,
                          reinterpret_cast<LPARAM>(&picture));
    return picture.himl;
}

TEST_F(DriverModule, ShowsItsDevicesPictureOnTheDeviceSectionAlone)
{
    ASSERT_TRUE(m_module.Initialize());
    CWnd parent;
    ASSERT_TRUE(parent.CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPEDWINDOW, 0, 0, 800, 600, nullptr, nullptr));
    KZDlgOptions plain(&parent, &m_device);
    plain.SetChild();
    ASSERT_TRUE(plain.Create(&parent));
    CDialog* child = KZDriverServices::Find(ZepClass())->createChildOptions(&parent, &m_device);
    ASSERT_TRUE(child);
    for (int section = 0; section < KZSectionCount; ++section) {
        EXPECT_TRUE(PictureOf(*child, section)) << section;
        EXPECT_EQ(PictureOf(*child, section) != PictureOf(plain, section), section == KZSectionDevice) << section;
    }
    child->DestroyWindow();
    delete child;
    plain.DestroyWindow();
    parent.DestroyWindow();
}

TEST_F(DriverModule, AnswersNullForAChildWithoutAParentWindow)
{
    ASSERT_TRUE(m_module.Initialize());
    CWnd noWindow;
    EXPECT_FALSE(KZDriverServices::Find(ZepClass())->createChildOptions(&noWindow, &m_device));
}

TEST_F(DriverModule, LeavesNothingBehindOfAChildThatCannotBeMade)
{
    ASSERT_TRUE(m_module.Initialize());
    CWnd noWindow;
    const auto factory = KZDriverServices::Find(ZepClass())->createChildOptions;
    factory(&noWindow, &m_device);
    const auto before = kztest::CountGuiResources();
    const kztest::FaultyMemory memory(m_module.Handle(), [](std::size_t) { return false; });
    for (int round = 0; round < 50; ++round)
        EXPECT_FALSE(factory(&noWindow, &m_device));
    EXPECT_EQ(kztest::FaultyMemory::Live(), 0U);
    EXPECT_EQ(kztest::CountGuiResources(), before);
}

// What MFC's operator new does.
bool FailAsMfcDoes(std::size_t)
{
    AfxThrowMemoryException();
}

bool Fail(std::size_t)
{
    return true;
}

TEST_F(DriverModule, ReportsRunningOutOfMemoryWithoutMemoryAndAnswersNull)
{
    ASSERT_TRUE(m_module.Initialize());
    CWnd parent;
    for (const auto fail : {Fail, FailAsMfcDoes}) {
        kztest::MessageBoxes boxes;
        int requests = 0;
        const kztest::FaultyMemory memory(m_module.Handle(), [&](std::size_t size) { return ++requests, fail(size); });
        EXPECT_FALSE(KZDriverServices::Find(ZepClass())->createChildOptions(&parent, &m_device));
        EXPECT_THAT(boxes.Texts(), ElementsAre(std::wstring(KZLoadString(KZS_OUT_OF_MEMORY).View())));
        EXPECT_EQ(requests, 1) << "the message asked for memory";
    }
}

TEST(DriverModuleFile, LeavesNoResourcesBehindWhenFreed)
{
    for (int round = 0; round < 20; ++round) {
        LoadedModule module;
        EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCEW(IDD_SELECTVAR), RT_DIALOG), module.Handle());
    }
    EXPECT_NE(AfxFindResourceHandle(MAKEINTRESOURCEW(IDD_SELECTVAR), RT_DIALOG), ::GetModuleHandleW(L"KZUsrZEP.dll"));
}

TEST(DriverModuleFile, HoldsItsTemplates)
{
    LoadedModule module;
    for (const int id : {IDD_SELECTVAR, IDD_SELECTVAR_GENERAL, IDD_SELECTVAR_POWER, IDD_SELECTVAR_HARMONIC})
        EXPECT_TRUE(::FindResourceW(module.Handle(), MAKEINTRESOURCEW(id), RT_DIALOG)) << id;
}

}  // namespace
