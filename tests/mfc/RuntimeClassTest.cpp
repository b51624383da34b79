#include <gtest/gtest.h>

#include <afxcmn.h>
#include <afxwin.h>

#include <string>
#include <vector>

#include "MessageBoxes.h"

namespace {

class Animal : public CObject {
    DECLARE_DYNAMIC(Animal)
};

class Dog : public Animal {
    DECLARE_DYNAMIC(Dog)
};

IMPLEMENT_DYNAMIC(Animal, CObject)
IMPLEMENT_DYNAMIC(Dog, Animal)

TEST(RuntimeClass, KnowsItsNameAndBase)
{
    const CRuntimeClass* dog = RUNTIME_CLASS(Dog);
    EXPECT_STREQ(dog->m_lpszClassName, "Dog");
    EXPECT_EQ(dog->m_pfnGetBaseClass(), RUNTIME_CLASS(Animal));
    EXPECT_EQ(Dog::GetThisClass(), dog);
}

TEST(RuntimeClass, IsDerivedFromItselfAndItsBasesOnly)
{
    EXPECT_TRUE(RUNTIME_CLASS(Dog)->IsDerivedFrom(RUNTIME_CLASS(Dog)));
    EXPECT_TRUE(RUNTIME_CLASS(Dog)->IsDerivedFrom(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(RUNTIME_CLASS(Animal)->IsDerivedFrom(RUNTIME_CLASS(Dog)));
    EXPECT_FALSE(RUNTIME_CLASS(Dog)->IsDerivedFrom(RUNTIME_CLASS(CWnd)));
}

TEST(RuntimeClass, TellsWhatKindAnObjectIs)
{
    const Dog dog;
    const Animal animal;
    EXPECT_TRUE(dog.IsKindOf(RUNTIME_CLASS(Animal)));
    EXPECT_FALSE(animal.IsKindOf(RUNTIME_CLASS(Dog)));
}

// Classes that are there to be derived from.
class AnyTarget : public CCmdTarget {};
class AnyThread : public CWinThread {};

// An object of a class of the library knows the class, whose base is the given one.
template <class Class, class Derived = Class>
void ExpectClass(const char* name, const CRuntimeClass* base)
{
    const Derived object;
    const CRuntimeClass* const type = object.GetRuntimeClass();
    EXPECT_EQ(type, RUNTIME_CLASS(Class)) << name;
    EXPECT_STREQ(type->m_lpszClassName, name);
    EXPECT_EQ(type->m_pfnGetBaseClass(), base) << name;
    EXPECT_TRUE(object.IsKindOf(RUNTIME_CLASS(CObject))) << name;
}

TEST(RuntimeClass, IsKnownToEachClassOfTheLibrary)
{
    const CRuntimeClass* const object = RUNTIME_CLASS(CObject);
    const CRuntimeClass* const drawing = RUNTIME_CLASS(CGdiObject);
    const CRuntimeClass* const window = RUNTIME_CLASS(CWnd);
    ExpectClass<CCmdTarget, AnyTarget>("CCmdTarget", object);
    ExpectClass<CWinThread, AnyThread>("CWinThread", RUNTIME_CLASS(CCmdTarget));
    ExpectClass<CWinApp>("CWinApp", RUNTIME_CLASS(CWinThread));
    ExpectClass<CGdiObject>("CGdiObject", object);
    ExpectClass<CBitmap>("CBitmap", drawing);
    ExpectClass<CBrush>("CBrush", drawing);
    ExpectClass<CFont>("CFont", drawing);
    ExpectClass<CDC>("CDC", object);
    ExpectClass<CMenu>("CMenu", object);
    ExpectClass<CImageList>("CImageList", object);
    ExpectClass<CWnd>("CWnd", RUNTIME_CLASS(CCmdTarget));
    ExpectClass<CStatic>("CStatic", window);
    ExpectClass<CButton>("CButton", window);
    ExpectClass<CEdit>("CEdit", window);
    ExpectClass<CComboBox>("CComboBox", window);
    ExpectClass<CListBox>("CListBox", window);
    ExpectClass<CTabCtrl>("CTabCtrl", window);
    ExpectClass<CListCtrl>("CListCtrl", window);
    ExpectClass<CDialog>("CDialog", window);
    EXPECT_EQ(CClientDC(nullptr).GetRuntimeClass()->m_pfnGetBaseClass(), RUNTIME_CLASS(CDC));
    EXPECT_EQ(RUNTIME_CLASS(CObject)->m_pfnGetBaseClass, nullptr);
}

TEST(ExceptionClasses, AreCaughtAsTheirBaseAndSayWhatTheyAre)
{
    try {
        AfxThrowMemoryException();
    } catch (CException* exception) {
        wchar_t text[64];
        EXPECT_TRUE(exception->IsKindOf(RUNTIME_CLASS(CMemoryException)));
        EXPECT_TRUE(exception->GetErrorMessage(text, static_cast<UINT>(std::size(text))));
        EXPECT_STREQ(text, L"Out of memory.");
        exception->Delete();
    }
}

// Every kind of the library with what it says.
template <class Exception>
void ExpectException(void (*raise)(), const wchar_t* text)
{
    try {
        raise();
        ADD_FAILURE() << "nothing was thrown";
    } catch (Exception* exception) {
        const kztest::MessageBoxes messages;
        exception->ReportError();
        EXPECT_EQ(messages.Texts(), std::vector<std::wstring>{text});
        exception->Delete();
    }
}

TEST(ExceptionClasses, ReportWhatWentWrong)
{
    ExpectException<CMemoryException>(AfxThrowMemoryException, L"Out of memory.");
    ExpectException<CNotSupportedException>(AfxThrowNotSupportedException,
                                            L"An operation that is not supported was attempted.");
    ExpectException<CResourceException>(AfxThrowResourceException, L"A required resource was unavailable.");
    ExpectException<CInvalidArgException>(AfxThrowInvalidArgException, L"An invalid argument was encountered.");
    ExpectException<CUserException>(AfxThrowUserException, L"The input was not accepted.");
}

// A kind of exception that has nothing to say.
class Speechless : public CException {
    DECLARE_DYNAMIC(Speechless)

public:
    explicit Speechless(bool& gone) : m_gone(gone) {}
    ~Speechless() override { m_gone = true; }

private:
    bool& m_gone;
};
IMPLEMENT_DYNAMIC(Speechless, CException)

TEST(ExceptionClasses, ReportTheirClassWhenTheyHaveNoText)
{
    bool gone = false;
    auto* const exception = new Speechless(gone);
    wchar_t text[8] = L"old";
    UINT help = 3;
    EXPECT_FALSE(exception->GetErrorMessage(text, static_cast<UINT>(std::size(text)), &help));
    EXPECT_STREQ(text, L"");
    EXPECT_EQ(help, 0U);
    const kztest::MessageBoxes messages;
    exception->ReportError();
    EXPECT_EQ(messages.Texts(), std::vector<std::wstring>{L"The operation failed (Speechless)."});
    exception->Delete();
    EXPECT_TRUE(gone) << "one from the heap deletes itself";
}

TEST(ExceptionClasses, SayNothingWithoutABuffer)
{
    const CResourceException exception(FALSE);
    UINT help = 3;
    EXPECT_FALSE(exception.GetErrorMessage(nullptr, 0, &help));
    EXPECT_EQ(help, 0U);
}

TEST(ExceptionClasses, CutTheirTextAtTheBuffer)
{
    CResourceException exception(FALSE);
    wchar_t text[6];
    EXPECT_TRUE(exception.GetErrorMessage(text, static_cast<UINT>(std::size(text))));
    EXPECT_STREQ(text, L"A req");
}

}  // namespace
