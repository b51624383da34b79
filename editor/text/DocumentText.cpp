#include "DocumentText.h"

#include <algorithm>
#include <array>

#include "EditorText.h"
#include "KZUtf8.h"
#include "project/DocumentName.h"

DocumentTexts::DocumentTexts(const plant::DeviceList& devices)
{
    for (const KZDeviceIdentity& device : devices)
        m_devices.emplace(plant::DeviceDocumentName(device.driverId), device.name.View());
}

std::wstring DocumentTexts::Of(const std::string& document) const
{
    std::wstring text = FromUtf8(document);
    if (const auto device = m_devices.find(document); device != m_devices.end())
        text.append(L" (").append(device->second).append(L")");
    return text;
}

std::wstring DocumentTexts::Listed(const std::vector<std::string>& documents) const
{
    constexpr std::size_t most = 10;
    std::wstring list;
    for (std::size_t index = 0; index < std::min(documents.size(), most); ++index)
        list.append(list.empty() ? L"" : L", ").append(Of(documents[index]));
    if (documents.size() <= most)
        return list;
    return FormatEditorText(IDS_AND_MORE, list.c_str(), static_cast<int>(documents.size() - most));
}

std::wstring LocalTime(const SYSTEMTIME& utc)
{
    SYSTEMTIME local{};
    ::SystemTimeToTzSpecificLocalTime(nullptr, &utc, &local);
    std::array<wchar_t, 80> date{};
    std::array<wchar_t, 80> clock{};
    ::GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, DATE_SHORTDATE, &local, nullptr, date.data(), date.size(), nullptr);
    ::GetTimeFormatEx(LOCALE_NAME_USER_DEFAULT, 0, &local, nullptr, clock.data(), clock.size());
    return std::wstring(date.data()) + L" " + clock.data();
}
