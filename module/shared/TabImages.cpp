#include "TabImages.h"

#include "CImageButton.h"
#include "KZQuorvelantaSetup.h"

namespace {

bool CreateLike(CImageList& list, CBitmap& bitmap)
{
    BITMAP size{};
    return bitmap.GetBitmap(&size) != 0 && list.Create(size.bmWidth, size.bmHeight, ILC_COLOR24 | ILC_MASK, 1, 0);
}

}  // namespace

int CreateTabImages(CImageList& list, const std::vector<const wchar_t*>& fileNames)
{
    const KZBasicString folder = KZQuorvelantaSetup::Get()->getImageFilePath();
    int place = 0;
    int found = 0;
    for (const wchar_t* fileName : fileNames) {
        ++place;
        CBitmap bitmap;
        COLORREF transparent = 0;
        if (!CImageButton::GetBitmap(folder + fileName, bitmap, &transparent))
            continue;
        if (!list.GetSafeHandle() && !CreateLike(list, bitmap))
            return found;
        ::ImageList_SetImageCount(list.GetSafeHandle(), static_cast<UINT>(place - 1));
        if (list.Add(&bitmap, transparent) >= 0)
            ++found;
    }
    return found;
}
