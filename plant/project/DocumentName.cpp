#include "DocumentName.h"

#include <algorithm>

#include "KZDocumentFileName.h"
#include "KZUtf8.h"

namespace plant {

namespace {

constexpr std::string_view Extension = ".xml";

// Windows makes something else of the rest: streams, wildcards, separators, names that end in a blank or a dot.
bool IsPlain(char character) noexcept
{
    const auto code = static_cast<unsigned char>(character);
    return code >= ' ' && code != 0x7F && std::string_view("/\\:*?\"<>|").find(character) == std::string_view::npos;
}

}  // namespace

bool IsDocumentName(std::string_view name) noexcept
{
    if (name == MainDocument)
        return true;
    constexpr std::size_t longest = 255;
    if (!name.starts_with(DeviceFolder) || name.size() > longest)
        return false;
    name.remove_prefix(DeviceFolder.size());
    return name.starts_with('/') && name.ends_with(Extension) && name.size() > 1 + Extension.size() &&
           std::all_of(name.begin() + 1, name.end(), IsPlain);
}

std::string DeviceDocumentName(const KZBasicString& driverId)
{
    return std::string(DeviceFolder) + '/' + ToUtf8(KZDocumentFileName(driverId).View());
}

std::filesystem::path FileOf(const std::filesystem::path& folder, std::string_view name)
{
    const auto* text = reinterpret_cast<const char8_t*>(name.data());
    return folder / std::filesystem::path(std::u8string_view(text, name.size()));
}

std::wstring Shown(const std::filesystem::path& path)
{
    const std::u8string name = path.u8string();
    return FromUtf8({reinterpret_cast<const char*>(name.data()), name.size()});
}

}  // namespace plant
