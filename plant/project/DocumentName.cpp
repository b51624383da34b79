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

// Windows' file names do not tell capitals from small letters.
constexpr unsigned char Folded(char character) noexcept
{
#ifdef _WIN32
    if (character >= 'A' && character <= 'Z')
        character = static_cast<char>(character - 'A' + 'a');
#endif
    return static_cast<unsigned char>(character);
}

}  // namespace

bool IsDocumentName(std::string_view name)
{
    if (name == MainDocument)
        return true;
    constexpr std::size_t longest = 255;
    if (!name.starts_with(DeviceFolder) || name.size() > longest)
        return false;
    name.remove_prefix(DeviceFolder.size());
    return name.starts_with('/') && name.ends_with(Extension) && name.size() > 1 + Extension.size() &&
           std::all_of(name.begin() + 1, name.end(), IsPlain) && !KZIsReservedFileName(FromUtf8(name.substr(1)));
}

std::string DeviceDocumentName(const KZBasicString& driverId)
{
    return DeviceDocumentOfFile(ToUtf8(KZDocumentFileName(driverId).View()));
}

std::string DeviceDocumentOfFile(std::string_view fileName)
{
    return std::string(DeviceFolder).append("/").append(fileName);
}

bool NameLess::operator()(std::string_view a, std::string_view b) const noexcept
{
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                        [](char x, char y) { return Folded(x) < Folded(y); });
}

bool IsSameName(std::string_view a, std::string_view b) noexcept
{
    return !NameLess{}(a, b) && !NameLess{}(b, a);
}

#ifdef _WIN32

std::filesystem::path FileOf(const std::filesystem::path& folder, std::string_view name)
{
    return folder / FromUtf8(name);
}

std::string NameOf(const std::filesystem::path& path)
{
    return ToUtf8(path.native());
}

std::wstring Shown(const std::filesystem::path& path)
{
    return std::filesystem::path(path).make_preferred().native();
}

#else

std::filesystem::path FileOf(const std::filesystem::path& folder, std::string_view name)
{
    return folder / name;
}

std::string NameOf(const std::filesystem::path& path)
{
    return path.native();
}

std::wstring Shown(const std::filesystem::path& path)
{
    return FromUtf8(path.native());
}

#endif

}  // namespace plant
