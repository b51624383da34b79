#include <gtest/gtest.h>

#include "KZMainCfg.h"
#include "KZQuorvelantaSetup.h"

namespace {

class Setup : public testing::Test {
protected:
    ~Setup() override
    {
        setup->SetProgramIDResource(0);
        setup->SetImageFilePath(images);
        setup->SetLanguage(KZLanguage::English);
    }

    KZQuorvelantaSetup* const setup = KZQuorvelantaSetup::Get();
    const KZBasicString images = setup->getImageFilePath();
};

TEST_F(Setup, IsOneForTheProcess)
{
    EXPECT_EQ(KZQuorvelantaSetup::Get(), setup);
    EXPECT_EQ(KZMainCfg::Get(), KZMainCfg::Get());
}

TEST_F(Setup, HasNoIconUntilTheProgramSetsOne)
{
    EXPECT_EQ(setup->ProgramIDResource(), 0u);
    setup->SetProgramIDResource(128);
    EXPECT_EQ(setup->ProgramIDResource(), 128u);
}

TEST_F(Setup, LooksForImagesBesideTheHostLibrary)
{
    EXPECT_TRUE(images.View().ends_with(L"\\images\\"));
    EXPECT_NE(images.View().find(L":\\"), std::wstring_view::npos) << "not a whole path";
}

TEST_F(Setup, GivesAnImageFolderThatAFileNameIsAppendedTo)
{
    setup->SetImageFilePath(L"C:\\plant\\images");
    EXPECT_EQ(setup->getImageFilePath().View(), L"C:\\plant\\images\\");
    setup->SetImageFilePath(L"C:\\plant\\images\\");
    EXPECT_EQ(setup->getImageFilePath().View(), L"C:\\plant\\images\\");
    setup->SetImageFilePath(L"C:/plant/");
    EXPECT_EQ(setup->getImageFilePath().View(), L"C:/plant/");
    setup->SetImageFilePath(L"");
    EXPECT_TRUE(setup->getImageFilePath().IsEmpty());
}

TEST_F(Setup, NamesAModelInTheChosenLanguage)
{
    EXPECT_EQ(setup->DriverName(L"ZEP").View(), L"ZEP active harmonic filter");
    setup->SetLanguage(KZLanguage::Spanish);
    EXPECT_EQ(setup->DriverName(L"ZEP").View(), L"Filtro activo de arm\u00F3nicos ZEP");
}

TEST_F(Setup, CallsAnUnknownModelByItsTypeName)
{
    EXPECT_EQ(setup->DriverName(L"zep").View(), L"zep");
    EXPECT_EQ(setup->DriverName(L"Other").View(), L"Other");
    EXPECT_TRUE(setup->DriverName(nullptr).IsEmpty());
}

TEST_F(Setup, SpeaksEnglishUntilToldOtherwise)
{
    EXPECT_EQ(setup->Language(), KZLanguage::English);
}

TEST(MainConfiguration, StartsEmptyUnderItsRoot)
{
    EXPECT_STREQ(KZMainCfg::Get()->Root()->Name(), L"configuration");
    EXPECT_EQ(KZMainCfg::Get()->Node(L"devices"), nullptr);
    EXPECT_FALSE(KZMainCfg::Get()->IsDirty());
}

}  // namespace
