#include "CImageButton.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

#include "GuiResources.h"
#include "KZQuorvelantaSetup.h"
#include "TemporaryFolder.h"
#include "TestDialog.h"

namespace fs = std::filesystem;
using namespace controls;

namespace {

KZBasicString ImageFile(const wchar_t* name)
{
    return KZQuorvelantaSetup::Get()->getImageFilePath() + name;
}

BUTTON_IMAGELIST ShownOn(HWND button)
{
    BUTTON_IMAGELIST shown{};
    ::SendMessageW(button, BCM_GETIMAGELIST, 0, reinterpret_cast<LPARAM>(&shown));
    return shown;
}

int ScaledForScreen(int pixels)
{
    const HDC screen = ::GetDC(nullptr);
    const int dpi = ::GetDeviceCaps(screen, LOGPIXELSX);
    ::ReleaseDC(nullptr, screen);
    return ::MulDiv(pixels, dpi, 96);
}

class ImageButton : public testing::Test {
protected:
    ImageButton()
    {
        m_first.SubclassDlgItem(1, m_dialog.Window());
        m_second.SubclassDlgItem(2, m_dialog.Window());
    }

    static bool Set(CImageButton& button, const KZBasicString& path)
    {
        return button.SetImage(path, 0xFFFFFFFF, false);
    }

    TestDialog m_dialog{Push(1, L"OK"), Push(2, L"Cancel"), Push(3, L"")};
    CImageButton m_first;
    CImageButton m_second;
    kztest::TemporaryFolder m_folder;
};

TEST_F(ImageButton, ShowsThePictureOfAFileBesideItsText)
{
    EXPECT_TRUE(Set(m_first, ImageFile(L"OK-16.png")));
    const BUTTON_IMAGELIST shown = ShownOn(m_first.m_hWnd);
    ASSERT_TRUE(shown.himl);
    EXPECT_EQ(shown.uAlign, UINT{BUTTON_IMAGELIST_ALIGN_LEFT});
    int width = 0;
    int height = 0;
    ImageList_GetIconSize(shown.himl, &width, &height);
    EXPECT_EQ(width, ScaledForScreen(16));
    EXPECT_EQ(height, ScaledForScreen(16));
}

TEST_F(ImageButton, PutsThePictureAboveTheTextWhenAskedTo)
{
    EXPECT_TRUE(m_first.SetImage(ImageFile(L"OK-16.png"), 0xFFFFFFFF, true));
    EXPECT_EQ(ShownOn(m_first.m_hWnd).uAlign, UINT{BUTTON_IMAGELIST_ALIGN_TOP});
}

TEST_F(ImageButton, CentresThePictureWhereThereIsNoText)
{
    CImageButton button;
    button.SubclassDlgItem(3, m_dialog.Window());
    EXPECT_TRUE(Set(button, ImageFile(L"OK-16.png")));
    EXPECT_EQ(ShownOn(button.m_hWnd).uAlign, UINT{BUTTON_IMAGELIST_ALIGN_CENTER});
}

TEST_F(ImageButton, LooksABareNameUpInTheImageFolder)
{
    EXPECT_TRUE(Set(m_first, L"SYSTEM-check.png"));
    EXPECT_TRUE(Set(m_second, ImageFile(L"SYSTEM-check.png")));
    EXPECT_EQ(ShownOn(m_first.m_hWnd).himl, ShownOn(m_second.m_hWnd).himl);
}

TEST_F(ImageButton, SharesOnePictureAmongButtons)
{
    EXPECT_TRUE(Set(m_first, ImageFile(L"OK-16.png")));
    EXPECT_TRUE(Set(m_second, ImageFile(L"OK-16.png")));
    EXPECT_EQ(ShownOn(m_first.m_hWnd).himl, ShownOn(m_second.m_hWnd).himl);
    EXPECT_TRUE(Set(m_second, ImageFile(L"CANCEL-16.png")));
    EXPECT_NE(ShownOn(m_first.m_hWnd).himl, ShownOn(m_second.m_hWnd).himl);
}

int g_imageListsSet = 0;

LRESULT CALLBACK CountImageLists(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR)
{
    g_imageListsSet += message == BCM_SETIMAGELIST ? 1 : 0;
    return ::DefSubclassProc(window, message, wParam, lParam);
}

TEST_F(ImageButton, DoesNothingWhenThePictureIsShownAlready)
{
    ASSERT_TRUE(Set(m_first, ImageFile(L"OK-16.png")));
    ASSERT_TRUE(::SetWindowSubclass(m_first.m_hWnd, CountImageLists, 1, 0));
    g_imageListsSet = 0;
    EXPECT_TRUE(Set(m_first, ImageFile(L"OK-16.png")));
    EXPECT_EQ(g_imageListsSet, 0);
    EXPECT_TRUE(Set(m_first, ImageFile(L"CANCEL-16.png")));
    EXPECT_EQ(g_imageListsSet, 1);
    ::RemoveWindowSubclass(m_first.m_hWnd, CountImageLists, 1);
}

TEST_F(ImageButton, ShowsThePictureOnItsNextWindowToo)
{
    ASSERT_TRUE(Set(m_first, ImageFile(L"OK-16.png")));
    m_first.DestroyWindow();
    ASSERT_TRUE(m_first.SubclassDlgItem(3, m_dialog.Window()));
    EXPECT_TRUE(Set(m_first, ImageFile(L"OK-16.png")));
    EXPECT_TRUE(ShownOn(m_first.m_hWnd).himl);
}

TEST_F(ImageButton, MovesThePictureWhenTheTextHasGone)
{
    ASSERT_TRUE(Set(m_first, ImageFile(L"OK-16.png")));
    m_first.SetWindowTextW(L"");
    EXPECT_TRUE(Set(m_first, ImageFile(L"OK-16.png")));
    EXPECT_EQ(ShownOn(m_first.m_hWnd).uAlign, UINT{BUTTON_IMAGELIST_ALIGN_CENTER});
}

int WidthShownOn(const CImageButton& button)
{
    int width = 0;
    int height = 0;
    ImageList_GetIconSize(ShownOn(button.m_hWnd).himl, &width, &height);
    return width;
}

TEST_F(ImageButton, ShowsAFileAsItIsWhenItIsFirstAskedForIt)
{
    const auto take = [&](const wchar_t* name) {
        return m_folder.Write(L"changing.png", kztest::BytesOf(ImageFile(name).c_str()));
    };
    const fs::path file = take(L"OK-16.png");
    ASSERT_TRUE(Set(m_first, file.wstring()));
    take(L"ZEP-50.png");
    ASSERT_TRUE(Set(m_first, file.wstring()));
    ASSERT_TRUE(Set(m_second, file.wstring()));
    EXPECT_EQ(WidthShownOn(m_first), ScaledForScreen(16)) << "it keeps what it was asked for already";
    EXPECT_EQ(WidthShownOn(m_second), ScaledForScreen(50));
}

TEST_F(ImageButton, ShowsAFileThatWasMissingBefore)
{
    const fs::path file = m_folder.Path() / L"late.png";
    ASSERT_FALSE(Set(m_first, file.wstring()));
    fs::copy_file(ImageFile(L"OK-16.png").c_str(), file);
    EXPECT_TRUE(Set(m_second, file.wstring()));
    fs::remove(file);
    ASSERT_TRUE(Set(m_first, ImageFile(L"OK-16.png")));
    EXPECT_FALSE(Set(m_first, file.wstring()));
    EXPECT_FALSE(ShownOn(m_first.m_hWnd).himl);
}

TEST_F(ImageButton, ShowsItsTextAloneWhenTheFileIsMissing)
{
    ASSERT_TRUE(Set(m_first, ImageFile(L"OK-16.png")));
    for (int i = 0; i < 13; ++i)
        EXPECT_FALSE(Set(m_first, L"no-such-picture.png"));
    EXPECT_FALSE(ShownOn(m_first.m_hWnd).himl);
    CString text;
    m_first.GetWindowTextW(text);
    EXPECT_STREQ(text, L"OK");
}

TEST_F(ImageButton, ShowsItsTextAloneWhenTheFileIsNoPicture)
{
    EXPECT_FALSE(Set(m_first, m_folder.Write(L"text.png", "This is no picture.").wstring()));
    EXPECT_FALSE(Set(m_first, m_folder.Write(L"empty.png", "").wstring()));
    EXPECT_FALSE(Set(m_first, m_folder.Write(L"cut.png", "\x89PNG\r\n\x1a\n").wstring()));
    EXPECT_FALSE(Set(m_first, fs::temp_directory_path().wstring())) << "a folder";
    EXPECT_FALSE(ShownOn(m_first.m_hWnd).himl);
}

TEST_F(ImageButton, RefusesAPictureBeforeItHasAWindow)
{
    CImageButton button;
    EXPECT_FALSE(Set(button, ImageFile(L"OK-16.png")));
}

TEST_F(ImageButton, LeavesNothingBehindHoweverOftenItsPictureChanges)
{
    const auto change = [this] {
        for (const wchar_t* name : {L"OK-16.png", L"no-such-picture.png", L"CANCEL-16.png"})
            Set(m_first, ImageFile(name));
    };
    change();
    const kztest::GuiResources before = kztest::CountGuiResources();
    for (int i = 0; i < 1000; ++i)
        change();
    EXPECT_EQ(kztest::CountGuiResources(), before);
}

TEST(ImageButtonLifetime, KeepsNoMorePicturesThanThereAreFiles)
{
    const auto openAndClose = [] {
        TestDialog dialog{Push(1), Push(2)};
        CImageButton first;
        CImageButton second;
        first.SubclassDlgItem(1, dialog.Window());
        second.SubclassDlgItem(2, dialog.Window());
        EXPECT_TRUE(first.SetImage(ImageFile(L"OK-16.png"), 0xFFFFFFFF, false));
        EXPECT_TRUE(second.SetImage(ImageFile(L"ZEP-50.png"), 0xFFFFFFFF, true));
    };
    openAndClose();
    const kztest::GuiResources before = kztest::CountGuiResources();
    for (int i = 0; i < 50; ++i)
        openAndClose();
    EXPECT_EQ(kztest::CountGuiResources(), before);
}

TEST(ImageButtonBitmap, LeavesNothingBehind)
{
    const auto load = [] {
        CBitmap bitmap;
        EXPECT_TRUE(CImageButton::GetBitmap(L"ZEP-var_power.png", bitmap, nullptr));
    };
    load();
    const kztest::GuiResources before = kztest::CountGuiResources();
    for (int i = 0; i < 1000; ++i)
        load();
    EXPECT_EQ(kztest::CountGuiResources(), before);
}

std::vector<DWORD> Drawn(HIMAGELIST list, int size, DWORD background)
{
    BITMAPINFO info{};
    info.bmiHeader = {sizeof(info.bmiHeader), size, -size, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    const HBITMAP bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    const HDC dc = ::CreateCompatibleDC(nullptr);
    const HGDIOBJ old = ::SelectObject(dc, bitmap);
    auto* pixels = static_cast<DWORD*>(bits);
    std::fill(pixels, pixels + size * size, background);
    ImageList_Draw(list, 0, dc, 0, 0, ILD_TRANSPARENT);
    std::vector<DWORD> result(pixels, pixels + size * size);
    for (DWORD& pixel : result)
        pixel &= 0xFFFFFF;
    ::SelectObject(dc, old);
    ::DeleteDC(dc);
    ::DeleteObject(bitmap);
    return result;
}

TEST_F(ImageButton, LetsTheBackgroundShowThroughTheFilesTransparency)
{
    ASSERT_TRUE(Set(m_first, ImageFile(L"SYSTEM-uncheck.png")));
    const int size = ScaledForScreen(16);
    const auto pixels = Drawn(ShownOn(m_first.m_hWnd).himl, size, 0x00C0E0);
    EXPECT_EQ(pixels.front(), 0x00C0E0u) << "outside the rounded box";
    EXPECT_EQ(pixels[static_cast<std::size_t>(size * size / 2 + size / 2)], 0xFFFFFFu) << "inside it";
}

TEST_F(ImageButton, TakesOneColourForTransparentWhenToldTo)
{
    ASSERT_TRUE(m_first.SetImage(ImageFile(L"SYSTEM-uncheck.png"), RGB(255, 255, 255), false));
    const int size = ScaledForScreen(16);
    const auto pixels = Drawn(ShownOn(m_first.m_hWnd).himl, size, 0x00C0E0);
    EXPECT_EQ(pixels[static_cast<std::size_t>(size * size / 2 + size / 2)], 0x00C0E0u);
}

TEST(ImageButtonBitmap, HasTheFilesSizeAndOneTransparentColour)
{
    CBitmap bitmap;
    COLORREF transparent = CLR_INVALID;
    ASSERT_TRUE(CImageButton::GetBitmap(ImageFile(L"SYSTEM-var_general.png"), bitmap, &transparent));
    DIBSECTION section{};
    ASSERT_NE(::GetObjectW(bitmap.m_hObject, sizeof(section), &section), 0);
    EXPECT_EQ(section.dsBm.bmWidth, 24);
    EXPECT_EQ(section.dsBm.bmHeight, 24);
    EXPECT_EQ(section.dsBm.bmBitsPixel, 24);
    const HDC dc = ::CreateCompatibleDC(nullptr);
    const HGDIOBJ old = ::SelectObject(dc, bitmap.m_hObject);
    EXPECT_EQ(::GetPixel(dc, 0, 0), transparent) << "a corner of the picture";
    EXPECT_NE(::GetPixel(dc, 12, 12), transparent) << "its middle";
    ::SelectObject(dc, old);
    ::DeleteDC(dc);
}

TEST(ImageButtonBitmap, CanDoWithoutTheTransparentColour)
{
    CBitmap bitmap;
    EXPECT_TRUE(CImageButton::GetBitmap(L"ZEP-var_power.png", bitmap, nullptr));
    EXPECT_TRUE(CImageButton::GetBitmap(L"ZEP-var_power.png", bitmap, nullptr)) << "it replaces what the bitmap held";
}

TEST(ImageButtonBitmap, IsEmptyWhenTheFileIsMissing)
{
    CBitmap bitmap;
    COLORREF transparent = RGB(1, 2, 3);
    EXPECT_FALSE(CImageButton::GetBitmap(L"no-such-picture.png", bitmap, &transparent));
    EXPECT_FALSE(bitmap.m_hObject);
    EXPECT_EQ(transparent, RGB(1, 2, 3));
}

}  // namespace
