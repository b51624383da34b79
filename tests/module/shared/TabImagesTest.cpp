#include "TabImages.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "ImportPatch.h"
#include "KZQuorvelantaSetup.h"
#include "TemporaryFolder.h"

namespace {

// An image folder of the test's own, with one picture of the host's.
class TabImages : public testing::Test {
protected:
    TabImages() : m_old(KZQuorvelantaSetup::Get()->getImageFilePath())
    {
        std::filesystem::copy_file(std::filesystem::path(m_old.c_str()) / L"OK-16.png", m_folder.Path() / L"there.png");
        KZQuorvelantaSetup::Get()->SetImageFilePath(m_folder.Path().wstring());
    }
    ~TabImages() override { KZQuorvelantaSetup::Get()->SetImageFilePath(m_old); }

    CImageList m_list;

private:
    KZBasicString m_old;
    kztest::TemporaryFolder m_folder;
};

TEST_F(TabImages, AreAsLargeAsTheFirstPicture)
{
    EXPECT_EQ(CreateTabImages(m_list, {L"there.png", L"there.png"}), 2);
    int width = 0;
    int height = 0;
    ASSERT_TRUE(::ImageList_GetIconSize(m_list.GetSafeHandle(), &width, &height));
    EXPECT_EQ(width, 16);
    EXPECT_EQ(height, 16);
    EXPECT_EQ(m_list.GetImageCount(), 2);
}

TEST_F(TabImages, KeepThePlaceOfAPictureThatIsMissing)
{
    EXPECT_EQ(CreateTabImages(m_list, {L"missing.png", L"missing.png", L"there.png"}), 1);
    EXPECT_EQ(m_list.GetImageCount(), 3);
}

TEST_F(TabImages, AreNoListWhenAllPicturesAreMissing)
{
    EXPECT_EQ(CreateTabImages(m_list, {L"missing.png", L"missing.png"}), 0);
    EXPECT_EQ(m_list.GetSafeHandle(), nullptr);
}

HIMAGELIST WINAPI CreateNothing(int, int, UINT, int, int)
{
    return nullptr;
}
int WINAPI KnowNothing(HANDLE, int, LPVOID)
{
    return 0;
}

TEST_F(TabImages, AreNoListWhenTheSystemMakesNone)
{
    const kztest::ImportPatch patch(::GetModuleHandleW(L"KZMfc.dll"), "ImageList_Create",
                                    reinterpret_cast<void*>(CreateNothing));
    CreateTabImages(m_list, {L"there.png"});
    EXPECT_EQ(m_list.GetSafeHandle(), nullptr);
}

TEST_F(TabImages, AreNoListWhenAPictureHasNoSize)
{
    const kztest::ImportPatch patch(::GetModuleHandleW(nullptr), "GetObjectW", reinterpret_cast<void*>(KnowNothing));
    CreateTabImages(m_list, {L"there.png"});
    EXPECT_EQ(m_list.GetSafeHandle(), nullptr);
}

}  // namespace
