// Documents and times in the words of the user.
#pragma once

#include <windows.h>

#include <map>
#include <string>
#include <vector>

#include "project/DeviceList.h"

class DocumentTexts {
public:
    explicit DocumentTexts(const plant::DeviceList& devices);

    // "devices/zep-01.xml (TREN1)": with the name of the device, where it is a device's.
    [[nodiscard]] std::wstring Of(const std::string& document) const;
    // Of many documents only the first.
    [[nodiscard]] std::wstring Listed(const std::vector<std::string>& documents) const;

private:
    std::map<std::string, std::wstring> m_devices;  // names by document
};

// A time of the world in the user's time zone and way of writing.
[[nodiscard]] std::wstring LocalTime(const SYSTEMTIME& utc);
