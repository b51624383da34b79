#include "PictureStore.h"

#include "PictureFiles.h"

namespace {

constexpr int FilesOwnDpi = 96;

constexpr Pixel PixelColour(COLORREF colour) noexcept
{
    return static_cast<Pixel>(GetRValue(colour)) << 16 | static_cast<Pixel>(GetGValue(colour)) << 8 |
           static_cast<Pixel>(GetBValue(colour));
}

}  // namespace

std::shared_ptr<PictureStore> PictureStore::Acquire()
{
    static std::weak_ptr<PictureStore> shared;
    std::shared_ptr<PictureStore> store = shared.lock();
    if (!store) {
        store = std::make_shared<PictureStore>();
        shared = store;
    }
    return store;
}

PictureStore::Answer PictureStore::Get(const Key& key)
{
    auto [source, checkedAt] = PictureFiles::Shared().Get(key.path);
    if (!source)
        return {nullptr, checkedAt};
    Entry& entry = m_entries.try_emplace(key).first->second;
    if (entry.source != source) {
        entry.picture = Make(*source, key);
        entry.source = std::move(source);
    }
    return {entry.picture, checkedAt};
}

std::shared_ptr<const ButtonPicture> PictureStore::Make(PixelImage image, const Key& key)
{
    if (key.transparent != CLR_INVALID)
        MakeTransparent(image, PixelColour(key.transparent));
    if (key.dpi != FilesOwnDpi)
        image = Scaled(image, MulDiv(image.width, key.dpi, FilesOwnDpi), MulDiv(image.height, key.dpi, FilesOwnDpi));
    auto picture = std::make_shared<const ButtonPicture>(image);
    return picture->Handle() ? picture : nullptr;
}
