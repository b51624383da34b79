#include "EdgeGuard.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

#include "Controls.h"
#include "HostText.h"
#include "ImportPatch.h"
#include "KZQuorvelantaSetup.h"
#include "KZStringIds.h"
#include "MessageBoxes.h"
#include "ModalScript.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// What the guard gives for an operation that throws; its failure value is -1.
template <typename Operation>
int Guarded(Operation operation, const CWnd* parent = nullptr)
{
    return zep::AtEdge(
        parent,
        [&] {
            operation();
            return 1;
        },
        -1);
}

// What the user is told of an operation that throws.
template <typename Operation>
std::vector<std::wstring> Told(Operation operation)
{
    const kztest::MessageBoxes boxes;
    EXPECT_EQ(Guarded(operation), -1);
    return boxes.Texts();
}

std::wstring Sentence(unsigned id, const std::wstring& reason = {})
{
    return std::wstring(HostText(id).View()) + reason;
}

bool HaveNoText(unsigned, KZBasicString& text)
{
    text.Clear();
    return false;
}

bool FindNoMemoryForAText(unsigned, KZBasicString&)
{
    throw std::bad_alloc();
}

TEST(EdgeGuard, HandsOnWhatAnOperationGives)
{
    const kztest::MessageBoxes boxes;
    EXPECT_EQ(Guarded([] {}), 1);
    EXPECT_THAT(boxes.Texts(), IsEmpty());
}

TEST(EdgeGuard, TellsTheReasonOfAStandardException)
{
    EXPECT_THAT(Told([] { throw std::runtime_error("the reason"); }),
                ElementsAre(Sentence(KZS_OPERATION_FAILED, L"\n\nthe reason")));
}

TEST(EdgeGuard, TellsTheReasonOfAnMfcException)
{
    EXPECT_THAT(Told([] { AfxThrowResourceException(); }),
                ElementsAre(Sentence(KZS_OPERATION_FAILED, L"\n\nA required resource was unavailable.")));
}

TEST(EdgeGuard, ReportsWhateverElseIsThrown)
{
    EXPECT_THAT(Told([] { throw 7; }), ElementsAre(Sentence(KZS_OPERATION_FAILED)));
}

TEST(EdgeGuard, CutsAReasonThatIsTooLong)
{
    EXPECT_THAT(Told([] { throw std::runtime_error(std::string(1000, 'x')); }),
                ElementsAre(Sentence(KZS_OPERATION_FAILED, L"\n\n" + std::wstring(199, L'x'))));
}

TEST(EdgeGuard, SaysInTheUsersLanguageThatMemoryHasRunOut)
{
    for (const KZLanguage language : {KZLanguage::Spanish, KZLanguage::English}) {
        KZQuorvelantaSetup::Get()->SetLanguage(language);
        EXPECT_THAT(Told([] { throw std::bad_alloc(); }), ElementsAre(Sentence(KZS_OUT_OF_MEMORY)));
        EXPECT_THAT(Told([] { AfxThrowMemoryException(); }), ElementsAre(Sentence(KZS_OUT_OF_MEMORY)));
    }
}

TEST(EdgeGuard, SpeaksEnglishWhenTheHostHasNoText)
{
    for (const auto loadString : {HaveNoText, FindNoMemoryForAText}) {
        const kztest::ImportPatch patch(::GetModuleHandleW(nullptr), "_Z12KZLoadStringjR13KZBasicString",
                                        reinterpret_cast<void*>(loadString));
        EXPECT_THAT(Told([] { throw 7; }), ElementsAre(L"This operation could not be completed."));
        EXPECT_THAT(Told([] { throw std::bad_alloc(); }),
                    ElementsAre(L"There is not enough memory for this operation."));
    }
}

TEST(EdgeGuard, ShowsItsMessageOverTheParentsWindow)
{
    CWnd parent;
    ASSERT_TRUE(parent.CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPEDWINDOW, 0, 0, 100, 100, nullptr, nullptr));
    HWND owner = nullptr;
    {
        const kztest::ModalScript script([&] {
            const HWND box = kztest::WaitForDialog();
            owner = ::GetWindow(box, GW_OWNER);
            kztest::PostClick(box, IDOK);
        });
        Guarded([] { throw 7; }, &parent);
    }
    EXPECT_EQ(owner, parent.m_hWnd);
    parent.DestroyWindow();
}

}  // namespace
