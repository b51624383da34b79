// The module when the host or Windows refuses what it asks for.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "GuiResources.h"
#include "ImportPatch.h"
#include "ScriptedUser.h"
#include "ZepProject.h"

namespace {

using testing::SizeIs;

bool RefuseToWrite(KZDriver*, bool)
{
    return false;
}
int RefuseToCreate(CDialog*, CWnd*)
{
    return 0;
}

// Lets one of the dialogs that the MFC library asks Windows for not be made.
class RefusedWindow {
public:
    explicit RefusedWindow(int refused)
        : m_patch(::GetModuleHandleW(L"KZMfc.dll"), "CreateDialogIndirectParamW", reinterpret_cast<void*>(&Create))
    {
        s_refused = refused;
        s_count = 0;
    }
    [[nodiscard]] static bool WasRefused() noexcept { return s_count >= s_refused; }

private:
    static HWND WINAPI Create(HINSTANCE module, const DLGTEMPLATE* dialog, HWND parent, DLGPROC procedure, LPARAM value)
    {
        if (++s_count == s_refused)
            return nullptr;
        return ::CreateDialogIndirectParamW(module, dialog, parent, procedure, value);
    }
    static inline int s_refused = 0;
    static inline int s_count = 0;
    kztest::ImportPatch m_patch;
};

class Refusals : public testing::Test {
protected:
    ZepProject m_project;
};

TEST_F(Refusals, OfTheHostToWriteLeaveTheDeviceDialogOpenAndTheDocumentAsItWas)
{
    const std::string before = m_project.plant.DeviceText();
    const kztest::ImportPatch patch(m_project.Module(), "_ZN15KZBaseDeviceCfg8writeCfgEb",
                                    reinterpret_cast<void*>(&RefuseToWrite));
    const ScriptedUser user(KZSectionDevice);
    EXPECT_TRUE(m_project.Options());
    // Asked at the first OK and, since the dialog was still there, at the second.
    EXPECT_THAT(user.Messages(), SizeIs(2));
    EXPECT_EQ(m_project.plant.DeviceText(), before);
}

TEST_F(Refusals, OfAChildWindowGiveNullAndLeaveNothing)
{
    CWnd parent;
    ASSERT_TRUE(parent.CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPEDWINDOW, 0, 0, 800, 600, nullptr, nullptr));
    const kztest::ImportPatch patch(m_project.Module(), "_ZN12KZDlgOptions6CreateEP4CWnd",
                                    reinterpret_cast<void*>(&RefuseToCreate));
    const auto before = kztest::CountGuiResources();
    for (int round = 0; round < 20; ++round)
        EXPECT_FALSE(ZepProject::Callbacks().createChildOptions(&parent, &m_project.device));
    EXPECT_EQ(kztest::CountGuiResources(), before);
    parent.DestroyWindow();
}

TEST_F(Refusals, OfAnyOneDialogOrPageLeaveTheDocumentsAsTheyWere)
{
    for (const OptionalSection section : OptionsRoads) {
        SCOPED_TRACE(section ? "section " + std::to_string(*section) : "the hub alone");
        // One more each time, until the call makes it through.
        for (int refused = 1;; ++refused) {
            ASSERT_LT(refused, 10);
            const RefusedWindow window(refused);
            const ScriptedUser user(section);
            const std::string configuration = Plant::Configuration();
            const std::string device = m_project.plant.DeviceText();
            const bool answer = m_project.Options();
            if (!RefusedWindow::WasRefused())
                break;
            EXPECT_EQ(answer, refused > 1);  // the hub is the first
            EXPECT_EQ(Plant::Configuration(), configuration) << refused;
            EXPECT_EQ(m_project.plant.DeviceText(), device) << refused;
        }
    }
}

TEST_F(Refusals, OfASelectionPageLeaveTheOthersToPickFrom)
{
    constexpr int Pages = 3;
    for (int refused = 1; refused <= 1 + Pages; ++refused) {
        const RefusedWindow window(refused);
        const ScriptedUser user;
        std::list<KZBasicString> names{L"DEV1.HZIN"};
        const bool answer = m_project.Select(names);
        ASSERT_TRUE(RefusedWindow::WasRefused());
        EXPECT_EQ(answer, refused > 1) << refused;
        // The user takes the whole net side of the first page: of the general one, one of whose ten names was chosen
        // before, or of the power page that is the first without it. Without the dialog itself the list is as it was.
        EXPECT_THAT(names, SizeIs(refused == 1 ? 1 : refused == 2 ? 12 : 9)) << refused;
    }
}

}  // namespace
