// Clicks in the selection dialog beside the same changes to boxes that nobody listens to.
#include <afxcmn.h>
#include <afxwin.h>
#include <commctrl.h>

#include <array>
#include <list>

#include "BareDialog.h"
#include "BenchPlant.h"
#include "CDlgSelectVarZEP.h"
#include "Report.h"
#include "SelectVarControls.h"
#include "SelectVarMessages.h"

namespace {

using kzbench::Report;
using kzbench::RunInTurn;

CWinApp application;

constexpr int BoxCount = 39;
constexpr int ClicksAtOnce = 20;

// The harmonic page in its dialog, shown as it is after a click on its tab.
class HarmonicPage {
public:
    explicit HarmonicPage(KZDriverDeviceZEP& device) : m_dialog(nullptr, &device, &m_names, KZVariableGroups(0x74), 0)
    {
        m_dialog.Create(IDD_SELECTVAR, nullptr);
        CTabCtrl& tabs = *static_cast<CTabCtrl*>(m_dialog.GetDlgItem(IDC_SELECTVAR_TAB));
        tabs.SetCurSel(2);
        NMHDR header{tabs.m_hWnd, IDC_SELECTVAR_TAB, TCN_SELCHANGE};
        m_dialog.SendMessage(WM_NOTIFY, IDC_SELECTVAR_TAB, reinterpret_cast<LPARAM>(&header));
        m_dialog.ShowWindow(SW_SHOW);
        m_page = ::GetParent(FindBox(m_dialog.m_hWnd));
        for (int box = 0; box < BoxCount; ++box)
            m_boxes[static_cast<std::size_t>(box)] = ::GetDlgItem(m_page, IDC_HARMONIC_NET_BOX + box);
        Update();
    }
    ~HarmonicPage() { m_dialog.DestroyWindow(); }
    HarmonicPage(const HarmonicPage&) = delete;
    HarmonicPage& operator=(const HarmonicPage&) = delete;

    [[nodiscard]] HWND FirstBox() const noexcept { return m_boxes.front(); }
    void Clear()
    {
        SetChecks(BST_UNCHECKED);
        m_dialog.SendMessage(WM_SELECTVAR_UNSELECT, 1000, 0);
        Update();
    }
    void SetChecks(WPARAM state) const
    {
        for (const HWND box : m_boxes)
            ::SendMessageW(box, BM_SETCHECK, state, 0);
    }
    void ClickColumn() const
    {
        const HWND button = ::GetDlgItem(m_page, IDC_NET_COLUMN);
        ::SendMessageW(m_page, WM_COMMAND, IDC_NET_COLUMN, reinterpret_cast<LPARAM>(button));
    }
    void Update() { ::RedrawWindow(m_dialog.m_hWnd, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN); }

private:
    static HWND FindBox(HWND dialog)
    {
        for (HWND child = ::GetWindow(dialog, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
            if (const HWND box = ::GetDlgItem(child, IDC_HARMONIC_NET_BOX))
                return box;
        return nullptr;
    }

    std::list<KZBasicString> m_names;
    CDlgSelectVarZEP m_dialog;
    HWND m_page = nullptr;
    std::array<HWND, BoxCount> m_boxes{};
};

void CompareClicks(Report& report, KZDriverDeviceZEP& device)
{
    HarmonicPage page(device);
    const HWND bare = CreateBareDialog({::GetModuleHandleW(L"KZUsrZEP.dll"), IDD_SELECTVAR_HARMONIC, {}});
    const HWND bareBox = ::GetDlgItem(bare, IDC_HARMONIC_NET_BOX);
    // Several in one: the first of them brings its window to the front, which is no part of a click and costs more.
    const auto click = [](HWND box) {
        return [box] {
            for (int round = 0; round < ClicksAtOnce; ++round) {
                ::SendMessageW(box, BM_CLICK, 0, 0);
                ::UpdateWindow(box);
            }
        };
    };
    report.Add({"20 clicks on a box", "the box in a bare template", {}},
               RunInTurn(click(page.FirstBox()), click(bareBox), [&] { page.Update(); }));
    ::DestroyWindow(bare);

    report.Add({"group click on 39 boxes", "39 BM_SETCHECK", 1.60},
               RunInTurn([&] { page.ClickColumn(); }, [&] { page.SetChecks(BST_CHECKED); }, [&] { page.Clear(); }));
}

}  // namespace

int main()
{
    INITCOMMONCONTROLSEX controls{sizeof controls, ICC_WIN95_CLASSES};
    ::InitCommonControlsEx(&controls);
    Report report;
    BenchPlant plant;
    CompareClicks(report, plant.Device());
    return report.ExitCode();
}
