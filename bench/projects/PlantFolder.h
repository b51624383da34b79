// A large project on disk in which each device has its document, and what several benchmarks do with it.
#pragma once

#include <array>
#include <cstdio>

#include "KZMainCfg.h"
#include "ProjectFolder.h"
#include "Report.h"
#include "project/DocumentName.h"
#include "project/Project.h"
#include "table/Export.h"

namespace kzbench {

class PlantFolder {
public:
    PlantFolder(int devices, Settings settings) : m_folder(devices, settings)
    {
        std::filesystem::create_directory(m_folder.Path() / "devices");
        for (int device = 0; device < devices; ++device)
            m_documents.push_back(plant::FileOf(m_folder.Path(), plant::DeviceDocumentName(DriverId(device))));
        for (const std::filesystem::path& document : m_documents)
            plant::RealDisk().WriteLoosely(document, DeviceText());
        m_documents.push_back(m_folder.Path() / "main.xml");
    }
    [[nodiscard]] const std::filesystem::path& Path() const noexcept { return m_folder.Path(); }
    [[nodiscard]] const std::vector<std::filesystem::path>& Documents() const noexcept { return m_documents; }

private:
    ProjectFolder m_folder;
    std::vector<std::filesystem::path> m_documents;
};

// Every value of the plant as a table.
inline std::string Export(const PlantFolder& folder)
{
    std::vector<std::string> keys;
    for (const plant::Field& field : *plant::FieldsOfType(L"ZEP"))
        keys.push_back(field.key);
    plant::Project project(folder.Path());
    const plant::StoredProject files(project.Folder());
    plant::DeviceReader reader(*KZMainCfg::Get(), files);
    return plant::ExportTable(project.Devices(), reader, keys);
}

struct PlantSize {
    int devices;
    const char* shown;
};

// The plants whose figures tell the growth. Wine looks through the whole folder for each file that is made in it: with
// 10⁵ files the plant was not there after ten minutes.
#ifdef _WIN32
inline constexpr PlantSize Smaller{1'000, "10³ devices with one limit each"};
inline constexpr PlantSize Larger{10'000, "10⁴ devices with one limit each"};
inline constexpr const char* Growth = " 10⁴ devices beside 10³";
#else
inline constexpr PlantSize Smaller{10'000, "10⁴ devices with one limit each"};
inline constexpr PlantSize Larger{100'000, "10⁵ devices with one limit each"};
inline constexpr const char* Growth = " 10⁵ devices beside 10⁴";
#endif

inline void AddGrowth(Report& report, const std::string& what, double small, double large)
{
    std::array<char, 32> ratio{};
    std::snprintf(ratio.data(), ratio.size(), "%.1f ×", large / small);
    report.Add(Quantity{what + Growth, ratio.data(), "", "", "≤ 12 ×", large <= 12 * small});
}

}  // namespace kzbench
