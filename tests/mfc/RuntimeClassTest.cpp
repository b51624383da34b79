#include <gtest/gtest.h>

#include <afxwin.h>

#include <memory>
#include <string>

namespace {

class Animal : public CObject {
    DECLARE_DYNAMIC(Animal)
};

class Dog : public Animal {
    DECLARE_DYNCREATE(Dog)
};

IMPLEMENT_DYNAMIC(Animal, CObject)
IMPLEMENT_DYNCREATE(Dog, Animal)

TEST(RuntimeClass, KnowsItsNameSizeAndBase)
{
    const CRuntimeClass* dog = RUNTIME_CLASS(Dog);
    EXPECT_STREQ(dog->m_lpszClassName, "Dog");
    EXPECT_EQ(dog->m_nObjectSize, static_cast<int>(sizeof(Dog)));
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

TEST(RuntimeClass, CreatesObjectsOfClassesThatAllowIt)
{
    const std::unique_ptr<CObject> object(RUNTIME_CLASS(Dog)->CreateObject());
    ASSERT_NE(object, nullptr);
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(Animal)));
    EXPECT_EQ(RUNTIME_CLASS(Animal)->CreateObject(), nullptr);
}

TEST(RuntimeClass, IsFoundByNameWhenItCanBeCreated)
{
    EXPECT_EQ(CRuntimeClass::FromName("Dog"), RUNTIME_CLASS(Dog));
    EXPECT_EQ(CRuntimeClass::FromName("Unicorn"), nullptr);
}

TEST(DynamicDownCast, GivesTheObjectOrNull)
{
    Dog dog;
    CObject* object = &dog;
    EXPECT_EQ(DYNAMIC_DOWNCAST(Animal, object), &dog);
    EXPECT_EQ(DYNAMIC_DOWNCAST(CWnd, object), nullptr);
    EXPECT_EQ(DYNAMIC_DOWNCAST(Dog, static_cast<CObject*>(nullptr)), nullptr);
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

TEST(ExceptionClasses, CutTheirTextAtTheBuffer)
{
    CResourceException exception(FALSE);
    wchar_t text[6];
    EXPECT_TRUE(exception.GetErrorMessage(text, static_cast<UINT>(std::size(text))));
    EXPECT_STREQ(text, L"A req");
}

}  // namespace
