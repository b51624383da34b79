#include "KZDriverDeviceZEP.h"

IMPLEMENT_DYNAMIC(KZDriverDeviceZEP, KZDriverDevice)

KZDriverDeviceZEP::KZDriverDeviceZEP(KZDeviceIdentity identity) : KZDriverDevice(std::move(identity)) {}

KZDriverDeviceZEP::~KZDriverDeviceZEP() = default;
