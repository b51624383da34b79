// Random values set, copied and imported, beside a model that knows what each filter has and what it accepts.
#include <gtest/gtest.h>

#include <algorithm>

#include "Endurance.h"
#include "FieldModel.h"
#include "PlantOfFilters.h"
#include "Random.h"
#include "changes/FieldCopy.h"
#include "fields/DeviceReader.h"
#include "table/CsvText.h"
#include "table/Import.h"

namespace {

using kztest::FieldModel;
using plant::FieldEdit;

const std::vector<std::string> Keys = FieldModel::Keys();
constexpr const char* Odd[] = {"",    "-",    "x",    "+1",    " 1",  "1 ",  "1e1", "0x1",       "none", "NaN",
                               "1,5", "1..5", "kilo", "plain", "3+3", "3+5", "007", "0.0000001", "1.",   "\"a,b\""};
constexpr const char* Numbers[] = {"-1.5", "-1", "-0.9", "-0", "0",  "0.5",  "0.95", "1",     "1.5", "2",
                                   "3",    "4",  "8",    "9",  "50", "99.9", "100",  "100.5", "200", "201"};
constexpr const char* Sets[] = {"none", "harmonics", "reactive+harmonics", "balance+neutral", "3", "25+3", "5+7+9"};

class FieldChanges : public kztest::PlantOfFilters {
protected:
    static constexpr std::array<std::size_t, 2> Filters{0, 2};

    void Step()
    {
        switch (m_random.Below(4)) {
        case 0:
            return Copy();
        case 1:
            return Import();
        default:
            return Set();
        }
    }
    // Every value, as somebody sees it who opens the project now.
    void CheckAll()
    {
        const plant::Project& project = Opened();
        const plant::StoredProject files(project.Folder());
        plant::DeviceReader reader(*KZMainCfg::Get(), files);
        for (const std::size_t device : Filters) {
            const plant::DeviceRecords& records = reader.Read(project.Devices()[device]);
            for (const plant::Field& field : records.Table())
                ASSERT_EQ(records.Value(field), m_model[device].at(field.key)) << field.key;
        }
    }

    Random m_random{endurance::Seed()};
    std::map<std::size_t, FieldModel::Values> m_model{{0, FieldModel::Defaults()}, {2, FieldModel::Defaults()}};
    long m_saved = 0;
    long m_refused = 0;

private:
    using Wishes = std::map<std::size_t, FieldModel::Wishes>;

    std::string AnyValue(std::size_t device, const std::string& key)
    {
        if (m_random.OneIn(30))
            return m_random.Pick(Odd);
        if (m_random.OneIn(4))
            return m_model[device].at(key);
        if (key.ends_with(".scale"))
            return m_random.OneIn(2) ? "kilo" : "plain";
        return key == "device.mode" || key == "device.filters" ? m_random.Pick(Sets) : m_random.Pick(Numbers);
    }
    // Some keys, of one variable often, since its limits depend on each other.
    std::vector<std::string> AnyKeys()
    {
        std::vector<std::string> keys;
        const std::size_t start = m_random.Below(Keys.size());
        for (std::size_t i = start; i < std::min(start + 1 + m_random.Below(5), Keys.size()); ++i)
            if (!FieldModel::IsReadOnly(Keys[i]) || m_random.OneIn(4))
                keys.push_back(Keys[i]);
        return keys;
    }
    std::vector<std::size_t> AnyFilters()
    {
        if (m_random.OneIn(2))
            return {Filters.begin(), Filters.end()};
        return {m_random.Pick(Filters)};
    }

    void Set()
    {
        Wishes wishes;
        const std::vector<std::string> keys = AnyKeys();
        FieldEdit edit(*m_project);
        for (const std::size_t device : AnyFilters()) {
            std::vector<plant::Assignment> assignments;
            for (const std::string& key : keys) {
                wishes[device].emplace_back(key, AnyValue(device, key));
                assignments.push_back({Field(key), wishes[device].back().second});
            }
            edit.Add(device, assignments);
        }
        Conclude(edit, wishes, false, false);
    }
    void Copy()
    {
        const std::size_t from = m_random.Pick(Filters);
        const std::size_t to = from == Filters[0] ? Filters[1] : Filters[0];
        constexpr plant::FieldSection sections[] = {plant::FieldSection::Device, plant::FieldSection::Units,
                                                    plant::FieldSection::Limits};
        constexpr const char* prefixes[] = {"device.", "units.", "limits."};
        const std::size_t section = m_random.Below(3);
        Wishes wishes;
        for (const std::string& key : Keys)
            if (key.starts_with(prefixes[section]) && !FieldModel::IsReadOnly(key))
                wishes[to].emplace_back(key, m_model[from].at(key));
        const plant::StoredProject files(m_folder.Path());
        plant::DeviceReader reader(*KZMainCfg::Get(), files);
        FieldEdit edit = plant::CopyFields(*m_project, reader, from, std::array{to}, {{}, {sections[section]}});
        Conclude(edit, wishes, true, false);
    }
    void Import()
    {
        const std::vector<std::string> keys = AnyKeys();
        Wishes wishes;
        std::vector<std::string> header{"device"};
        header.insert(header.end(), keys.begin(), keys.end());
        std::string table;
        plant::AppendCsvRow(table, header);
        for (const std::size_t device : AnyFilters()) {
            std::vector<std::string> row{device == 0 ? "Feeder 1" : "zep-3"};
            for (const std::string& key : keys) {
                row.push_back(AnyValue(device, key));
                if (!row.back().empty())
                    wishes[device].emplace_back(key, row.back());
            }
            plant::AppendCsvRow(table, row);
        }
        FieldEdit edit(*m_project, FieldEdit::Unsettable::MayStay);
        const bool isTable = plant::ImportTable(*m_project, edit, table, L"table.csv").empty();
        Conclude(edit, wishes, true, !isTable);
    }

    static const plant::Field* Field(const std::string& key)
    {
        return plant::FindField(*plant::FieldsOfType(L"ZEP"), key);
    }
    // All or nothing: what the model accepts is saved, what it refuses is refused and changes nothing.
    void Conclude(FieldEdit& edit, const Wishes& wishes, bool mayStay, bool isRefused)
    {
        auto after = m_model;
        for (const auto& [device, wanted] : wishes) {
            auto values = FieldModel::After(m_model[device], wanted, mayStay);
            isRefused = isRefused || !values;
            if (values)
                after[device] = std::move(*values);
        }
        ASSERT_EQ(!edit.Findings().empty(), isRefused);
        if (isRefused) {
            ++m_refused;
            return;
        }
        std::size_t changes = 0;
        for (const auto& [device, values] : after)
            for (const auto& [key, value] : values)
                changes += m_model[device].at(key) != value;
        ASSERT_EQ(edit.Changes().size(), changes);
        for (const plant::FieldChange& change : edit.Changes()) {
            ASSERT_EQ(change.before, m_model[change.device].at(change.field->key));
            ASSERT_EQ(change.after, after[change.device].at(change.field->key)) << change.field->key;
        }
        if (changes > 0) {
            ASSERT_EQ(edit.Save("set"), plant::Project::Outcome::Done);
            ++m_saved;
        }
        m_model = std::move(after);
    }
};

TEST_F(FieldChanges, AreAcceptedAndSavedAsTheModelSays)
{
    const long steps = endurance::Rounds(500, 100'000);
    Opened();
    for (long step = 1; step <= steps; ++step) {
        Step();
        if (step % 50 == 0 || step == steps)
            CheckAll();
        if (HasFatalFailure())
            FAIL() << "step " << step;
    }
    EXPECT_GT(m_saved, steps / 10);
    EXPECT_GT(m_refused, steps / 10);
    std::printf("%ld steps, %ld saves, %ld refusals; seed %llu\n", steps, m_saved, m_refused,
                static_cast<unsigned long long>(endurance::Seed()));
}

}  // namespace
