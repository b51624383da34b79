#include "PictureFiles.h"

#include "PngFile.h"

namespace {

// One click sets a dozen pictures: the file is not asked after again for each of them.
constexpr ULONGLONG TrustMilliseconds = 1000;

// Far more than the dialogs have; a program that goes through more starts over.
constexpr std::size_t MostEntries = 64;

constexpr ULONGLONG Join(DWORD high, DWORD low) noexcept
{
    return ULONGLONG{high} << 32 | low;
}

std::shared_ptr<const PixelImage> Read(const KZBasicString& path)
{
    PixelImage image = ReadPicture(path);
    return image.IsEmpty() ? nullptr : std::make_shared<const PixelImage>(std::move(image));
}

}  // namespace

PictureFiles& PictureFiles::Shared()
{
    static PictureFiles files;
    return files;
}

bool PictureFiles::IsTrusted(ULONGLONG checkedAt) noexcept
{
    return GetTickCount64() - checkedAt < TrustMilliseconds;
}

PictureFiles::Answer PictureFiles::Get(const KZBasicString& path)
{
    if (m_entries.size() >= MostEntries && !m_entries.contains(path))
        m_entries.clear();
    const auto [found, isNew] = m_entries.try_emplace(path);
    Entry& entry = found->second;
    if (!isNew && IsTrusted(entry.checkedAt))
        return entry;
    const ULONGLONG now = GetTickCount64();
    const FileStamp stamp = StampOf(path);
    if (stamp != entry.stamp) {
        entry.image = stamp == FileStamp{} ? nullptr : Read(path);
        entry.stamp = stamp;
    }
    entry.checkedAt = now;
    return entry;
}

PictureFiles::FileStamp PictureFiles::StampOf(const KZBasicString& path) noexcept
{
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (!GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data) ||
        (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
        return {};
    return {Join(data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime),
            Join(data.nFileSizeHigh, data.nFileSizeLow)};
}
