// A whole plant as one table: exporting and checking it beside the two XML libraries reading the same files, importing
// it beside exporting it.
#include <expat.h>

#include <pugixml.hpp>
#include <stdexcept>

#include "KZMainCfg.h"
#include "PlantFolder.h"
#include "Report.h"
#include "check/ProjectCheck.h"
#include "table/Export.h"
#include "table/Import.h"

namespace {

using kzbench::Export;
using kzbench::PairedTimes;
using kzbench::PlantFolder;
using kzbench::Settings;

constexpr int Many = 10'000;

void PassOver(const PlantFolder& folder)
{
    for (const std::filesystem::path& document : folder.Documents()) {
        const std::string bytes = plant::RealDisk().Read(document).value();
        const XML_Parser parser = XML_ParserCreate(nullptr);
        const bool wellFormed =
            XML_Parse(parser, bytes.data(), static_cast<int>(bytes.size()), XML_TRUE) == XML_STATUS_OK;
        XML_ParserFree(parser);
        pugi::xml_document tree;
        if (!wellFormed || !tree.load_buffer(bytes.data(), bytes.size(), pugi::parse_full | pugi::parse_ws_pcdata,
                                             pugi::encoding_utf8))
            throw std::runtime_error("a document is malformed");
    }
}

// The table with another minimum current in each row.
std::string Changed(std::string table)
{
    const std::string now = "200,7,";
    const std::string then = "200,8,";
    for (std::size_t at = table.find(now); at != std::string::npos; at = table.find(now, at))
        table.replace(at, now.size(), then);
    return table;
}

void RehearseImport(const PlantFolder& folder, const std::string& table, int devices)
{
    plant::Project project(folder.Path());
    plant::FieldEdit edit(project, plant::FieldEdit::Unsettable::MayStay);
    const bool isTaken = plant::ImportTable(project, edit, table, L"table.csv").empty() && edit.Findings().empty();
    if (!isTaken || edit.Changes().size() != static_cast<std::size_t>(devices))
        throw std::runtime_error("the table is not imported as it should be");
}

void Check(const PlantFolder& folder)
{
    const plant::Findings findings = plant::CheckProject(plant::StoredProject(folder.Path()), {});
    if (!findings.empty())
        throw std::runtime_error("the plant has a fault: " + findings.front().device + ", " + findings.front().place);
}

struct Times {
    double checking;
    double exporting;
    double importing;
};

Times Measure(kzbench::Report& report, int devices, const char* shown, Settings settings)
{
    const PlantFolder folder(devices, settings);
    const std::string reading = "their files read with expat and pugixml";
    const PairedTimes checking = kzbench::RunInTurn([&] { Check(folder); }, [&] { PassOver(folder); });
    report.Add({std::string("check ") + shown, reading, 1.50}, checking);
    const PairedTimes exporting = kzbench::RunInTurn([&] { kzbench::Keep(Export(folder)); }, [&] { PassOver(folder); });
    report.Add({std::string("export ") + shown, reading, 1.50}, exporting);
    const std::string table = Changed(Export(folder));
    const PairedTimes importing =
        kzbench::RunInTurn([&] { RehearseImport(folder, table, devices); }, [&] { kzbench::Keep(Export(folder)); });
    report.Add({std::string("import ") + shown + " on a dry run", "export them", 2.00}, importing);
    return {kzbench::Median(checking.operation), kzbench::Median(exporting.operation),
            kzbench::Median(importing.operation)};
}

}  // namespace

int main()
{
    kzbench::Report report;
    Measure(report, Many, "10⁴ devices", Settings::All);
    const Times few = Measure(report, kzbench::Smaller.devices, kzbench::Smaller.shown, Settings::OneLimit);
    const Times many = Measure(report, kzbench::Larger.devices, kzbench::Larger.shown, Settings::OneLimit);
    kzbench::AddGrowth(report, "check", few.checking, many.checking);
    kzbench::AddGrowth(report, "export", few.exporting, many.exporting);
    kzbench::AddGrowth(report, "import", few.importing, many.importing);
    return report.ExitCode();
}
