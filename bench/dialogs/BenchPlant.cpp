#include "BenchPlant.h"

#include <stdexcept>
#include <string>

#include "KZBaseDeviceCfg.h"
#include "KZMainCfg.h"
#include "PlantText.h"

BenchPlant::BenchPlant()
    : m_device({kzbench::DriverId(0), L"Rolling mill 1", 1, L"ZEP", L"Main drive", KZVariableGroups(0x74)})
{
    const KZBasicString document = KZBaseDeviceCfg::DocumentFileName(kzbench::DriverId(0));
    m_folder.Write(std::filesystem::path(L"devices") / document.c_str(), kzbench::DeviceText());
    KZMainCfg::SetProjectFolder(m_folder.Path().wstring());
    if (!KZMainCfg::Get()->Parse(kzbench::ConfigurationText(1, 1)))
        throw std::runtime_error("the configuration is malformed");
}

BenchPlant::~BenchPlant()
{
    KZMainCfg::SetProjectFolder(L"");
}
