// Finding, reading and writing one driver's records among many, beside raw pugixml that does the same in one pass.
#include <cstdlib>
#include <stdexcept>
#include <string>

#include "InformationRecord.h"
#include "LimitsStore.h"
#include "PlantText.h"
#include "RawRecords.h"
#include "Report.h"
#include "UnitsRecord.h"

namespace {

using namespace kzbench;

// Promised where the walk counts; among few drivers the comparison is one of fixed costs of a few microseconds.
struct Scale {
    int drivers;
    const char* shown;
    std::optional<double> limit;
};
constexpr Scale Scales[] = {{100, "10²", {}}, {1'000, "10³", {}}, {10'000, "10⁴", {}}, {100'000, "10⁵", 1.30}};

void MustBe(bool equal)
{
    if (!equal)
        throw std::runtime_error("both sides of a comparison must do the same");
}

const zep::LimitsTable* const LimitTables[] = {&zep::PowerLimitsTable, &HarmonicLimitsTable(zep::Side::Net),
                                               &HarmonicLimitsTable(zep::Side::Load)};

XmlDocument::XmlNode& ViewSetup(const XmlDocument& document, const KZBasicString& driver)
{
    return *document.Root()->NodeV(L"viewSetups/viewSetup?driverId=%s?", driver.c_str());
}

double LoadLimits(const XmlDocument& document, const KZBasicString& driver)
{
    const XmlDocument::XmlNode& viewSetup = ViewSetup(document, driver);
    double last = 0;
    for (const zep::LimitsTable* table : LimitTables) {
        zep::LimitsStore store(*table);
        store.Load(viewSetup);
        last = store.Value({table->variables.size() - 1, zep::LimitField::MaxD});
        Keep(store);
    }
    return last;
}

double LoadRawLimits(const RawDocument& document, const KZBasicString& driver)
{
    const pugi::xml_node viewSetup = FindDriver(document.Root(), L"viewSetups", L"viewSetup", driver.c_str());
    double last = 0;
    for (const zep::LimitsTable* table : LimitTables) {
        std::array<LimitValues, zep::HarmonicRowCount> values;
        ReadLimits(viewSetup, *table, values);
        last = values[table->variables.size() - 1][static_cast<std::size_t>(zep::LimitField::MaxD)];
        Keep(values);
    }
    return last;
}

// Stores for all pages whose boxes were given one value, ready to be saved.
class EditedLimits {
public:
    explicit EditedLimits(double value)
    {
        for (const zep::LimitsTable* table : LimitTables) {
            zep::LimitsStore& store = m_stores.emplace_back(*table);
            for (std::size_t v = 0; v < table->variables.size(); ++v)
                for (std::size_t f = 0; f < table->variables[v].fieldCount; ++f)
                    store.Text({v, static_cast<zep::LimitField>(f)}) = std::to_wstring(value);
            store.TextsToValues();
            MustBe(store.IsModified());
        }
    }
    void Save(const XmlDocument& document, const KZBasicString& driver) const
    {
        XmlDocument::XmlNode& viewSetup = ViewSetup(document, driver);
        for (const zep::LimitsStore& store : m_stores)
            store.Save(viewSetup);
    }

private:
    std::vector<zep::LimitsStore> m_stores;
};

void SaveRawLimits(const RawDocument& document, const KZBasicString& driver, double value)
{
    const pugi::xml_node viewSetup = FindDriver(document.Root(), L"viewSetups", L"viewSetup", driver.c_str());
    for (const zep::LimitsTable* table : LimitTables)
        WriteLimits(viewSetup, *table, value);
}

class RecordsBench {
public:
    explicit RecordsBench(Report& report) : m_report(report) {}

    void Run(const Scale& scale)
    {
        const std::string text = ConfigurationText(scale.drivers, 1);
        MustBe(static_cast<bool>(m_document.Parse(text)));
        const RawDocument raw(text);
        m_driver = DriverId(scale.drivers - 1);
        CompareUnits(scale, raw);
        CompareLimits(scale, raw);
    }

private:
    template <class Operation, class Floor>
    void Compare(const Scale& scale, const std::string& what, Operation operation, Floor floor)
    {
        m_report.Add({what + " among " + scale.shown + " drivers", "one pass with pugixml", scale.limit},
                     RunInTurn(operation, floor));
    }

    void CompareUnits(const Scale& scale, const RawDocument& raw)
    {
        const auto find = [&] { return FindDriver(raw.Root(), L"unitSetups", L"unitSetup", m_driver.c_str()); };
        MustBe(zep::UnitsRecord(m_document, m_driver).Read() == ReadUnits(find()));
        Compare(
            scale, "find and read a driver's units", [&] { Keep(zep::UnitsRecord(m_document, m_driver).Read()); },
            [&] { Keep(ReadUnits(find())); });

        // Each call writes other values than the one before it.
        const std::array<zep::UnitChoices, 2> choices{{{{{0, zep::UnitChoice::Kilo}, {1, zep::UnitChoice::Plain}}},
                                                       {{{3, zep::UnitChoice::Plain}, {2, zep::UnitChoice::Kilo}}}}};
        int call = 0;
        int rawCall = 0;
        Compare(
            scale, "find and write a driver's units",
            [&] { zep::UnitsRecord(m_document, m_driver).Write(choices[++call % 2]); },
            [&] { WriteUnits(find(), choices[++rawCall % 2]); });
    }

    void CompareLimits(const Scale& scale, const RawDocument& raw)
    {
        MustBe(LoadLimits(m_document, m_driver) == LoadRawLimits(raw, m_driver));
        Compare(
            scale, "load the limits of 30 variables", [&] { Keep(LoadLimits(m_document, m_driver)); },
            [&] { Keep(LoadRawLimits(raw, m_driver)); });

        const std::array<double, 2> values{0.5, 12.25};
        const std::array<EditedLimits, 2> edited{EditedLimits(values[0]), EditedLimits(values[1])};
        int call = 0;
        int rawCall = 0;
        Compare(
            scale, "save the limits of 30 variables", [&] { edited[++call % 2].Save(m_document, m_driver); },
            [&] { SaveRawLimits(raw, m_driver, values[++rawCall % 2]); });
        MustBe(LoadLimits(m_document, m_driver) == LoadRawLimits(raw, m_driver));
    }

    Report& m_report;
    XmlDocument m_document{L"configuration"};
    KZBasicString m_driver;
};

void CompareDeviceRecord(Report& report)
{
    XmlDocument document(L"device");
    MustBe(static_cast<bool>(document.Parse(DeviceText())));
    const RawDocument raw(DeviceText());
    report.Add(
        {"read a device's record", "10 look-ups with pugixml", {}},
        RunInTurn([&] { Keep(zep::InformationRecord(*document.Root())); }, [&] { Keep(ReadInformation(raw.Root())); }));
    int written = 0;
    int rawWritten = 0;
    const auto settings = [](int seed) { return zep::InformationSettings{seed % 16, seed, 0, seed % 200, seed % 8}; };
    report.Add({"write a device's record", "4 values set with pugixml", {}},
               RunInTurn([&] { zep::WriteInformation(*document.Root(), settings(++written)); },
                         [&] { WriteInformation(raw.Root(), settings(++rawWritten)); }));
}

}  // namespace

int main()
{
    Report report;
    CompareDeviceRecord(report);
    RecordsBench records(report);
    for (const Scale& scale : Scales)
        records.Run(scale);
    return report.ExitCode();
}
