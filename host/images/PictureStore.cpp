#include "PictureStore.h"

#include <map>

#include "PngFile.h"

namespace {

constexpr int FilesOwnDpi = 96;

// What tells one content of a file from the next; all 0 when there is no file.
struct FileStamp {
    DWORD writtenHigh = 0;
    DWORD writtenLow = 0;
    DWORD sizeHigh = 0;
    DWORD sizeLow = 0;
    bool operator==(const FileStamp&) const = default;
};

struct Entry {
    FileStamp stamp{};
    std::shared_ptr<const ButtonPicture> picture{};
};

FileStamp StampOf(const KZBasicString& path) noexcept
{
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (!::GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data) ||
        (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
        return {};
    return {data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime, data.nFileSizeHigh,
            data.nFileSizeLow};
}

constexpr Pixel PixelColour(COLORREF colour) noexcept
{
    return static_cast<Pixel>(GetRValue(colour)) << 16 | static_cast<Pixel>(GetGValue(colour)) << 8 |
           static_cast<Pixel>(GetBValue(colour));
}

std::shared_ptr<const ButtonPicture> Make(const PictureKey& key)
{
    PixelImage image = ReadPicture(key.path);
    if (image.IsEmpty())
        return nullptr;
    if (key.transparent != CLR_INVALID)
        MakeTransparent(image, PixelColour(key.transparent));
    if (key.dpi != FilesOwnDpi)
        image =
            Scaled(image, ::MulDiv(image.width, key.dpi, FilesOwnDpi), ::MulDiv(image.height, key.dpi, FilesOwnDpi));
    auto picture = std::make_shared<const ButtonPicture>(image);
    return picture->Handle() ? picture : nullptr;
}

}  // namespace

std::shared_ptr<const ButtonPicture> SharedPicture(const PictureKey& key)
{
    // Never destroyed: there are a dozen pictures, and when the library goes the system takes them back.
    static auto& entries = *new std::map<PictureKey, Entry>;
    Entry& entry = entries[key];
    if (const FileStamp stamp = StampOf(key.path); stamp != entry.stamp) {
        entry.picture = Make(key);
        entry.stamp = stamp;
    }
    return entry.picture;
}
