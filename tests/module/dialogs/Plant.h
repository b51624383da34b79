// What a dialog needs around it: a project folder, the main configuration, one device, a language.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "KZDriverDeviceZEP.h"
#include "KZMainCfg.h"
#include "KZQuorvelantaSetup.h"
#include "TemporaryFolder.h"

class Plant {
public:
    Plant()
    {
        std::filesystem::create_directory(m_folder.Path() / L"devices");
        KZMainCfg::SetProjectFolder(m_folder.Path().wstring());
        Configure("");
    }
    ~Plant()
    {
        KZQuorvelantaSetup::Get()->SetLanguage(KZLanguage::English);
        KZMainCfg::SetProjectFolder(L"");
        Configure("");
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
        m_folder.Write(L"devices/zep1.xml", "<device>" + content + "</device>");
    }
    [[nodiscard]] std::string DeviceText() const { return kztest::BytesOf(DeviceFile()); }
    [[nodiscard]] std::filesystem::path DeviceFile() const { return m_folder.Path() / L"devices" / L"zep1.xml"; }

    [[nodiscard]] KZDriverDeviceZEP* Device() noexcept { return &m_device; }
    [[nodiscard]] static std::wstring Model() { return KZQuorvelantaSetup::Get()->DriverName(L"ZEP").c_str(); }

private:
    kztest::TemporaryFolder m_folder;
    KZDriverDeviceZEP m_device{{L"zep1", L"Filter & 1", 7, L"ZEP", L"Main hall, feeder 3", {}}};
};
