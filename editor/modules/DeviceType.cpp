#include "DeviceType.h"

#include "KZDriverDeviceZEP.h"

namespace {

template <typename Device>
std::unique_ptr<KZDriverDevice> Make(KZDeviceIdentity identity)
{
    return std::make_unique<Device>(std::move(identity));
}

}  // namespace

std::span<const DeviceType> DeviceTypes()
{
    static const DeviceType types[] = {
        {L"ZEP", RUNTIME_CLASS(KZDriverDeviceZEP), Make<KZDriverDeviceZEP>},
    };
    return types;
}

const DeviceType* FindDeviceType(std::wstring_view name)
{
    for (const DeviceType& type : DeviceTypes()) {
        if (name == type.name)
            return &type;
    }
    return nullptr;
}

std::unique_ptr<KZDriverDevice> MakeDriver(const KZDeviceIdentity& identity)
{
    const DeviceType* type = FindDeviceType(identity.typeName.View());
    return type ? type->make(identity) : std::make_unique<KZDriverDevice>(identity);
}
