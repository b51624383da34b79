#include "ProjectXml.h"

namespace editor_tests {

std::string MainXml(std::string_view devices)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<configuration>\n  <devices>" + std::string(devices) +
           "</devices>\n</configuration>\n";
}

std::string DeviceXml(std::string_view driverId, std::string_view name, std::string_view groups, std::string_view type,
                      std::string_view number)
{
    const auto value = [](const char* element, std::string_view text) {
        return std::string("<") + element + ">" + std::string(text) + "</" + element + ">";
    };
    return "<device>" + value("driverId", driverId) + value("name", name) + value("number", number) +
           value("type", type) + value("description", "Filtro de prueba, línea ñ") + value("groups", groups) +
           "</device>";
}

}  // namespace editor_tests
