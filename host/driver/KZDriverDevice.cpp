#include "KZDriverDevice.h"

IMPLEMENT_DYNAMIC(KZDriverDevice, KZDriver)

KZDriverDevice::KZDriverDevice(KZDeviceIdentity identity) : m_identity(std::move(identity)) {}

KZDriverDevice::~KZDriverDevice() = default;

const KZBasicString& KZDriverDevice::DriverId() const
{
    return m_identity.driverId;
}

const KZBasicString& KZDriverDevice::Name() const
{
    return m_identity.name;
}

const KZVariableGroups& KZDriverDevice::VariableGroups() const
{
    return m_identity.groups;
}

int KZDriverDevice::Number() const
{
    return m_identity.number;
}

const KZBasicString& KZDriverDevice::TypeName() const
{
    return m_identity.typeName;
}

const KZBasicString& KZDriverDevice::Description() const
{
    return m_identity.description;
}
