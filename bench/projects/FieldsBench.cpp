// What the commands diff and set do in a large plant: comparing beside exporting, setting one value beside opening the
// project, setting the same by hand and saving it.
#include <stdexcept>

#include "KZUtf8.h"
#include "PlantFolder.h"
#include "changes/FieldEdit.h"
#include "fields/FieldQuery.h"
#include "fields/ProjectDifference.h"

namespace {

using kzbench::PairedTimes;
using kzbench::PlantFolder;
using kzbench::Settings;

constexpr int Many = 10'000;
constexpr std::size_t Chosen = Many / 2;

// With itself: every file is read twice.
void Compare(const PlantFolder& folder)
{
    const plant::Project project(folder.Path());
    const plant::StoredProject files(project.Folder());
    XmlDocument otherMain(L"configuration");
    files.ReadMain(otherMain);
    const plant::DeviceList otherDevices = plant::ReadDevices(otherMain, L"main.xml");
    if (!plant::Differences({*KZMainCfg::Get(), project.Devices(), files}, {otherMain, otherDevices, files}).empty())
        throw std::runtime_error("the plant differs from itself");
}

double MeasureDiff(kzbench::Report& report, int devices, const char* shown, Settings settings)
{
    const PlantFolder folder(devices, settings);
    const PairedTimes times = kzbench::RunInTurn([&] { Compare(folder); }, [&] { kzbench::Keep(Export(folder)); });
    report.Add({std::string("compare ") + shown, "export them", 2.00}, times);
    return kzbench::Median(times.operation);
}

// Another value each time, so that there is always something to save.
int NextValue()
{
    static int value = 0;
    value = value % 90 + 1;
    return value;
}

void Set(const PlantFolder& folder, const char* key)
{
    plant::Project project(folder.Path());
    plant::FieldEdit edit(project);
    const std::vector<plant::Assignment> values{
        {&plant::FieldNamed(*plant::FieldsOfType(L"ZEP"), key), std::to_string(NextValue())}};
    edit.Add(Chosen, values);
    if (edit.Changes().size() != 1)
        throw std::runtime_error("the value was there already");
    edit.Save("set");
}

void SetMainByHand(const PlantFolder& folder)
{
    plant::Project project(folder.Path());
    KZMainCfg::Get()->Root()->SetValue(L"note", NextValue());
    KZMainCfg::Get()->SetDirty(true);
    project.Save("set");
}

void SetDeviceByHand(const PlantFolder& folder)
{
    plant::Project project(folder.Path());
    const std::string name = plant::DeviceDocumentName(project.Devices()[Chosen].driverId);
    XmlDocument document(L"device");
    project.ReadDeviceDocument(name, document);
    document.Node(L"information")->SetValue(L"minCurrent", NextValue());
    project.WriteDocument(name, document, "set");
}

void MeasureSet(kzbench::Report& report)
{
    const PlantFolder folder(Many, Settings::All);
    const std::string where = " of one device among 10⁴";
    report.Add({"set a limit" + where, "open, change and save main.xml", 1.30},
               kzbench::RunInTurn([&] { Set(folder, "limits.AP.nominal"); }, [&] { SetMainByHand(folder); }));
    report.Add({"set the current" + where, "open, change and save its document", 1.30},
               kzbench::RunInTurn([&] { Set(folder, "device.minCurrent"); }, [&] { SetDeviceByHand(folder); }));
}

}  // namespace

int main()
{
    kzbench::Report report;
    MeasureSet(report);
    MeasureDiff(report, Many, "10⁴ devices", Settings::All);
    const double few = MeasureDiff(report, kzbench::Smaller.devices, kzbench::Smaller.shown, Settings::OneLimit);
    const double many = MeasureDiff(report, kzbench::Larger.devices, kzbench::Larger.shown, Settings::OneLimit);
    kzbench::AddGrowth(report, "compare", few, many);
    return report.ExitCode();
}
