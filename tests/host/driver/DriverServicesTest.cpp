#include "KZDriverServices.h"

#include <gtest/gtest.h>

#include "KZDriverDeviceZEP.h"

namespace {

bool Options(CWnd*, KZDriver*)
{
    return true;
}

bool Select(CWnd*, KZDriver*, std::list<KZBasicString>&, const KZVariableGroups&, int, const wchar_t*)
{
    return true;
}

bool Third(CWnd*, KZDriver*)
{
    return false;
}

CDialog* Factory(CWnd*, KZDriver*)
{
    return nullptr;
}

class DriverServices : public testing::Test {
protected:
    ~DriverServices() override
    {
        KZDriverServices::Remove(Zep());
        KZDriverServices::Remove(RUNTIME_CLASS(KZDriverDevice));
    }
    static const CRuntimeClass* Zep() { return KZDriverDeviceZEP::GetThisClass(); }
    static bool AddZep() { return KZDriverServices::Add(Zep(), Options, Select, Third); }
};

TEST_F(DriverServices, RecordTheCallbacksOfAClass)
{
    ASSERT_TRUE(AddZep());
    const KZDriverCallbacks* callbacks = KZDriverServices::Find(Zep());
    ASSERT_TRUE(callbacks);
    EXPECT_EQ(callbacks->options, &Options);
    EXPECT_EQ(callbacks->selectVariables, &Select);
    EXPECT_EQ(callbacks->third, &Third);
    EXPECT_EQ(callbacks->createChildOptions, nullptr);
}

TEST_F(DriverServices, KnowNothingOfOtherClasses)
{
    ASSERT_TRUE(AddZep());
    EXPECT_EQ(KZDriverServices::Find(RUNTIME_CLASS(KZDriverDevice)), nullptr);
    EXPECT_EQ(KZDriverServices::Find(nullptr), nullptr);
}

TEST_F(DriverServices, RefuseAClassTwice)
{
    ASSERT_TRUE(AddZep());
    EXPECT_FALSE(KZDriverServices::Add(Zep(), Third, Select, Third));
    EXPECT_EQ(KZDriverServices::Find(Zep())->options, &Options);
}

TEST_F(DriverServices, RefuseIncompleteCallbacks)
{
    EXPECT_FALSE(KZDriverServices::Add(nullptr, Options, Select, Third));
    EXPECT_FALSE(KZDriverServices::Add(Zep(), nullptr, Select, Third));
    EXPECT_FALSE(KZDriverServices::Add(Zep(), Options, nullptr, Third));
    EXPECT_FALSE(KZDriverServices::Add(Zep(), Options, Select, nullptr));
    EXPECT_EQ(KZDriverServices::Find(Zep()), nullptr);
}

TEST_F(DriverServices, TakeAFactoryForAKnownClassOnce)
{
    EXPECT_FALSE(KZDriverServices::AddCreateChildOptionsDlg(Zep(), Factory)) << "the class is not known yet";
    ASSERT_TRUE(AddZep());
    EXPECT_FALSE(KZDriverServices::AddCreateChildOptionsDlg(Zep(), nullptr));
    EXPECT_TRUE(KZDriverServices::AddCreateChildOptionsDlg(Zep(), Factory));
    EXPECT_EQ(KZDriverServices::Find(Zep())->createChildOptions, &Factory);
    EXPECT_FALSE(KZDriverServices::AddCreateChildOptionsDlg(Zep(), Factory)) << "it has one already";
}

TEST_F(DriverServices, KeepAnEntryInPlaceWhileOthersComeAndGo)
{
    ASSERT_TRUE(AddZep());
    const KZDriverCallbacks* callbacks = KZDriverServices::Find(Zep());
    ASSERT_TRUE(KZDriverServices::Add(RUNTIME_CLASS(KZDriverDevice), Options, Select, Third));
    KZDriverServices::Remove(RUNTIME_CLASS(KZDriverDevice));
    EXPECT_EQ(KZDriverServices::Find(Zep()), callbacks);
}

TEST_F(DriverServices, ForgetAClassAndTakeItAnew)
{
    ASSERT_TRUE(AddZep());
    KZDriverServices::Remove(Zep());
    KZDriverServices::Remove(Zep());
    EXPECT_EQ(KZDriverServices::Find(Zep()), nullptr);
    EXPECT_TRUE(AddZep());
}

TEST(DriverDevice, TellsItsIdentity)
{
    const KZDriverDeviceZEP device({L"zep-01", L"Filter 1", 7, L"ZEP", L"Cellar", KZVariableGroups(0x74)});
    const KZDriver& driver = device;
    EXPECT_EQ(driver.DriverId(), KZBasicString(L"zep-01"));
    EXPECT_EQ(driver.Name(), KZBasicString(L"Filter 1"));
    EXPECT_EQ(driver.Number(), 7);
    EXPECT_EQ(driver.TypeName(), KZBasicString(L"ZEP"));
    EXPECT_EQ(driver.Description(), KZBasicString(L"Cellar"));
    EXPECT_EQ(driver.VariableGroups().to_ullong(), 0x74u);
}

TEST(DriverDevice, KnowsItsRunTimeClass)
{
    const KZDriverDeviceZEP device({});
    EXPECT_EQ(device.GetRuntimeClass(), KZDriverDeviceZEP::GetThisClass());
    EXPECT_TRUE(device.IsKindOf(RUNTIME_CLASS(KZDriver)));
    EXPECT_STREQ(KZDriverDeviceZEP::GetThisClass()->m_lpszClassName, "KZDriverDeviceZEP");
}

}  // namespace
