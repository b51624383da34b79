#include "PictureStore.h"

#include "PngFile.h"

namespace {

constexpr int FilesOwnDpi = 96;

// One click sets a dozen pictures: the file is not asked after again for each of them.
constexpr ULONGLONG TrustMilliseconds = 1000;

constexpr ULONGLONG Join(DWORD high, DWORD low) noexcept
{
    return ULONGLONG{high} << 32 | low;
}

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

std::shared_ptr<const ButtonPicture> PictureStore::Get(const KZBasicString& path, COLORREF transparent, int dpi)
{
    const ULONGLONG now = GetTickCount64();
    const auto [found, isNew] = m_entries.try_emplace(Key{path, transparent, dpi});
    Entry& entry = found->second;
    if (!isNew && now - entry.checkedAt < TrustMilliseconds)
        return entry.picture;
    const FileStamp stamp = StampOf(path);
    if (isNew || stamp != entry.stamp) {
        entry.picture = stamp == FileStamp{} ? nullptr : Load(found->first);
        entry.stamp = stamp;
    }
    entry.checkedAt = now;
    return entry.picture;
}

PictureStore::FileStamp PictureStore::StampOf(const KZBasicString& path) noexcept
{
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (!GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data) ||
        (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
        return {};
    return {Join(data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime),
            Join(data.nFileSizeHigh, data.nFileSizeLow)};
}

std::shared_ptr<const ButtonPicture> PictureStore::Load(const Key& key)
{
    PixelImage image = ReadPicture(key.path);
    if (image.IsEmpty())
        return nullptr;
    if (key.transparent != CLR_INVALID)
        MakeTransparent(image, PixelColour(key.transparent));
    if (key.dpi != FilesOwnDpi) {
        image = Scaled(image, MulDiv(image.width, key.dpi, FilesOwnDpi), MulDiv(image.height, key.dpi, FilesOwnDpi));
    }
    auto picture = std::make_shared<const ButtonPicture>(image);
    return picture->Handle() ? picture : nullptr;
}
