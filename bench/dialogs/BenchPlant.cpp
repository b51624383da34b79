#include "BenchPlant.h"

#include <windows.h>

#include <fstream>
#include <stdexcept>
#include <string>

#include "KZBaseDeviceCfg.h"
#include "KZMainCfg.h"
#include "PlantText.h"

BenchPlant::BenchPlant()
    : m_folder(std::filesystem::temp_directory_path() / (L"kzbench-" + std::to_wstring(::GetCurrentProcessId()))),
      m_device({kzbench::DriverId(0), L"Rolling mill 1", 1, L"ZEP", L"Main drive", KZVariableGroups(0x74)})
{
    std::filesystem::create_directories(m_folder / L"devices");
    const KZBasicString document = KZBaseDeviceCfg::DocumentFileName(kzbench::DriverId(0));
    std::ofstream(m_folder / L"devices" / document.c_str(), std::ios::binary) << kzbench::DeviceText();
    KZMainCfg::SetProjectFolder(m_folder.wstring());
    if (!KZMainCfg::Get()->Parse(kzbench::ConfigurationText(1, 1)))
        throw std::runtime_error("the configuration is malformed");
}

BenchPlant::~BenchPlant()
{
    KZMainCfg::SetProjectFolder(L"");
    std::error_code ignored;
    std::filesystem::remove_all(m_folder, ignored);
}
