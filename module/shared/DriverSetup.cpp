#include "DriverSetup.h"

#include "ChildOrNew.h"

namespace zep {

XmlDocument::XmlNode* FindSetup(const XmlDocument& configuration, const SetupList& setups,
                                const KZBasicString& driverId)
{
    return configuration.Root()->NodeV(L"%s/%s?%s=%s?", setups.list, setups.element, DriverIdName, driverId.c_str());
}

XmlDocument::XmlNode& AppendSetup(XmlDocument& configuration, const SetupList& setups, const KZBasicString& driverId)
{
    XmlDocument::XmlNode& list = ChildOrNew(*configuration.Root(), setups.list);
    return NewChildWith(list, setups.element, DriverIdName, driverId.c_str());
}

}  // namespace zep
