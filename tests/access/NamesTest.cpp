// What screen readers call the controls: in every dialog each control that can be worked has a name of its own.
#include "EveryDialog.h"

#include <initguid.h>

#include <oleacc.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <map>

#include "Controls.h"
#include "DeviceControls.h"
#include "LimitsControls.h"
#include "PlatformNames.h"
#include "SelectVarControls.h"
#include "UnitsControls.h"

namespace {

using kztest::PlatformName;
using kztest::WithoutAccessKey;
using kztest::WorkableControls;
using testing::IsEmpty;

class Names : public testing::TestWithParam<DialogCase> {
protected:
    Names() { KZQuorvelantaSetup::Get()->SetLanguage(GetParam().language); }

    DialogUser m_user;
};

TEST_P(Names, AreThereAndNoneIsDoubled)
{
    m_user.Use(GetParam().dialog, [this](HWND dialog) {
        EXPECT_GT(kztest::ExpectNamesOfTheirOwn(dialog, m_user.accessibility.names), 4);
    });
    EXPECT_THAT(m_user.accessibility.names, IsEmpty()) << "names outlive the dialog";
}

INSTANTIATE_TEST_SUITE_P(Dialogs, Names, testing::ValuesIn(EveryDialogInEveryLanguage()), NameOf);

class GivenNames : public testing::Test {
protected:
    std::wstring Given(HWND dialog, int id)
    {
        return PlatformName(FindControl(dialog, id), m_user.accessibility.names);
    }

    DialogUser m_user;
};

TEST_F(GivenNames, OfTheDevicesFieldsAreThoseOfTheirBoxes)
{
    m_user.Use(OpenDialog::Device, [this](HWND dialog) {
        EXPECT_EQ(Given(dialog, IDC_CURRENT), L"Minimum current");
        EXPECT_EQ(Given(dialog, IDC_UNITS), L"Number of ZEP units");
        EXPECT_EQ(Given(dialog, IDC_STATUS), L"Status");
    });
}

TEST_F(GivenNames, OfTheUnitsChoicesSayWhatIsChosen)
{
    m_user.Use(OpenDialog::Units, [this](HWND dialog) {
        EXPECT_EQ(Given(dialog, IDC_APPARENT_KILO), L"Active and apparent power, Unit, kW / kVA");
        EXPECT_EQ(Given(dialog, IDC_REACTIVE_DEC_2), L"Reactive power, Precision, 2 decimals");
    });
}

TEST_F(GivenNames, OfLimitsSayRowSideAndColumn)
{
    m_user.Use(OpenDialog::Limits, [this](HWND dialog) {
        EXPECT_EQ(Given(dialog, IDC_PF_MIND), L"Power factor, Minimum, alarm");
        ::SendDlgItemMessageW(dialog, IDC_LIMITS_TAB, TCM_SETCURFOCUS, 2, 0);
        EXPECT_EQ(Given(dialog, IDC_HARMONIC_MAXW + 2), L"Harmonic 5, Load, Maximum, warning");
        ::SendDlgItemMessageW(dialog, IDC_LIMITS_TAB, TCM_SETCURFOCUS, 1, 0);
        EXPECT_EQ(Given(dialog, IDC_HARMONIC_NOMINAL), L"Fundamental, Network, Nominal value");
        EXPECT_EQ(Given(dialog, IDC_LIMITS_TAB), L"Limits of variables - ZEP active harmonic filter");
    });
}

TEST_F(GivenNames, OfTheSelectionSayRowAndSide)
{
    m_user.Use(OpenDialog::Selection, [this](HWND dialog) {
        EXPECT_EQ(Given(dialog, IDC_HARMONIC_LOAD_ROW + 1), L"Harmonic 3, Load");
        EXPECT_EQ(Given(dialog, IDC_HARMONIC_NET_BOX + 2 + 13), L"Harmonic 5, Network, L2");
        EXPECT_EQ(Given(dialog, IDC_NET_COLUMN), L"General, Network, All");
    });
}

std::wstring MsaaName(HWND window)
{
    void* object = nullptr;
    if (FAILED(::AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible, &object)))
        return L"(none)";
    auto* const accessible = static_cast<IAccessible*>(object);
    VARIANT self{};
    self.vt = VT_I4;
    BSTR text = nullptr;
    std::wstring name;
    if (accessible->get_accName(self, &text) == S_OK && text)
        name = text;
    ::SysFreeString(text);
    accessible->Release();
    return name;
}

// What Wine's own accessibility service gives: boxes and buttons, which have texts.
TEST_P(Names, OfBoxesAndButtonsAreWhatTheSystemGives)
{
    m_user.Use(GetParam().dialog, [](HWND dialog) {
        int seen = 0;
        for (const HWND control : WorkableControls(dialog)) {
            if (kztest::ClassOf(control) != L"Button" || ::GetWindowTextLengthW(control) == 0)
                continue;
            EXPECT_EQ(MsaaName(control), WithoutAccessKey(kztest::TextOf(control)));
            ++seen;
        }
        EXPECT_GT(seen, 1);
    });
}

}  // namespace
