// What a dialog needs around it: a project folder, the main configuration, one device, a language.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "KZDriverDeviceZEP.h"
#include "KZMainCfg.h"
#include "KZQuorvelantaSetup.h"

class Plant {
public:
    Plant()
    {
        static int count = 0;
        m_folder = std::filesystem::temp_directory_path() /
                   (L"zep-" + std::to_wstring(::GetCurrentProcessId()) + L"-" + std::to_wstring(++count));
        std::filesystem::create_directories(m_folder / L"devices");
        KZMainCfg::SetProjectFolder(m_folder.wstring());
        Configure("");
    }
    ~Plant()
    {
        KZQuorvelantaSetup::Get()->SetLanguage(KZLanguage::English);
        KZMainCfg::SetProjectFolder(L"");
        Configure("");
        std::error_code ignored;
        std::filesystem::remove_all(m_folder, ignored);
    }
    Plant(const Plant&) = delete;
    Plant& operator=(const Plant&) = delete;

    // Makes the main configuration anew, clean, with the given content.
    static void Configure(const std::string& content)
    {
        ASSERT_TRUE(KZMainCfg::Get()->Parse("<configuration>" + content + "</configuration>"));
        KZMainCfg::Get()->SetDirty(false);
    }
    [[nodiscard]] static std::string Configuration() { return KZMainCfg::Get()->Serialize(); }
    [[nodiscard]] static bool IsDirty() { return KZMainCfg::Get()->IsDirty(); }
    [[nodiscard]] static std::wstring Value(const XmlDocument::XmlNode* node, const wchar_t* name)
    {
        return node ? node->Value(name, L"(none)") : L"(no element)";
    }

    // Writes the device's document with the given content under its root.
    void WriteDevice(const std::string& content) const
    {
        std::ofstream(DeviceFile(), std::ios::binary) << "<device>" << content << "</device>";
    }
    [[nodiscard]] std::string DeviceText() const
    {
        std::ifstream stream(DeviceFile(), std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    [[nodiscard]] std::filesystem::path DeviceFile() const { return m_folder / L"devices" / L"zep1.xml"; }

    [[nodiscard]] KZDriverDeviceZEP* Device() noexcept { return &m_device; }
    [[nodiscard]] static std::wstring Model() { return KZQuorvelantaSetup::Get()->DriverName(L"ZEP").c_str(); }

private:
    std::filesystem::path m_folder;
    KZDriverDeviceZEP m_device{{L"zep1", L"Filter & 1", 7, L"ZEP", L"Main hall, feeder 3", {}}};
};
