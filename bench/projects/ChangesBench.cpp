// What somebody waits for who changes a large plant in the window: undoing, finding by words, a slice of the check.
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <stdexcept>

#include "PlantFolder.h"
#include "changes/DeviceEdit.h"
#include "changes/FieldEdit.h"
#include "changes/UndoList.h"
#include "check/ProjectChecker.h"
#include "fields/FieldQuery.h"
#include "project/DeviceFilter.h"

namespace {

using kzbench::PlantFolder;
using kzbench::Settings;
using Clock = std::chrono::steady_clock;

constexpr int Many = 10'000;
constexpr std::size_t Chosen = Many / 2;
constexpr int Times = 11;
constexpr double LongestUndo = 50;   // milliseconds
constexpr double LongestKey = 50;    // milliseconds
constexpr double LongestSlice = 30;  // milliseconds

double MillisecondsOf(const std::function<void()>& operation)
{
    const auto start = Clock::now();
    operation();
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

double MedianOf(
    const std::function<void()>& operation, const std::function<void()>& after = [] {})
{
    std::vector<double> times;
    for (int time = 0; time < Times; ++time) {
        times.push_back(MillisecondsOf(operation));
        after();
    }
    return kzbench::Median(times);
}

void Add(kzbench::Report& report, const std::string& name, double milliseconds, std::optional<double> limit)
{
    std::array<char, 32> shown{};
    std::array<char, 32> bound{};
    std::snprintf(shown.data(), shown.size(), "%.1f ms", milliseconds);
    if (limit)
        std::snprintf(bound.data(), bound.size(), "≤ %.0f ms", *limit);
    report.Add(kzbench::Quantity{name, shown.data(), "", "", bound.data(), !limit || milliseconds <= *limit});
}

void Require(bool isDone)
{
    if (!isDone)
        throw std::runtime_error("the change is not what it should be");
}

// As the main window, which shows a change before it puts it into the recovery file.
class LateProtector : public plant::ProjectUser {
public:
    bool WillProtect() noexcept override { return true; }
    Answer AskAboutForeignChanges(const std::vector<std::string>&) override { return Answer::Cancel; }
    void TellUnprotected(const plant::Message&) noexcept override {}
    void TellWaiting(bool) noexcept override {}
};

class Bench {
public:
    explicit Bench(kzbench::Report& report) : m_report(report) { m_project.SetUser(&m_user); }
    ~Bench() { m_project.Discard(); }
    Bench(const Bench&) = delete;
    Bench& operator=(const Bench&) = delete;

    void MeasureUndo()
    {
        const std::vector<KZBasicString> ids{m_project.Devices()[Chosen].driverId};
        Require(m_undo.Do({}, ids, [&] {
            plant::FieldEdit edit(m_project);
            const std::vector<plant::Assignment> values{
                {&plant::FieldNamed(*plant::FieldsOfType(L"ZEP"), "limits.AP.nominal"), "7"}};
            edit.Add(Chosen, values);
            edit.Keep();
        }));
        MeasureStep("a limit");
        plant::NewDevice device;
        device.name = L"New";
        device.typeName = L"ZEP";
        device.transformerRatio = L"200";
        Require(m_undo.Do({}, {}, [&] { plant::AddDevice(m_project, device); }));
        MeasureStep("a device that was added");
        std::vector<std::size_t> removed;
        for (std::size_t place = 0; place < 300; ++place)
            removed.push_back(Chosen + place);
        Require(m_undo.Do({}, {}, [&] { plant::RemoveDevices(m_project, removed); }));
        MeasureStep("300 devices that were removed");
        m_undo.Undo();
        Add(m_report, "put a redone step into the recovery file",
            MedianOf([&] { m_project.ProtectIfDue(); },
                     [&] {
                         Require(m_undo.Redo());
                         Require(m_undo.Undo());
                     }),
            {});
    }
    void MeasureFilter()
    {
        plant::DeviceFilter filter(m_project);
        Require(filter.Matching(L"cell 77").size() > 10);
        Add(m_report, "a key in the find box", MedianOf([&] { Require(filter.Matching(L"rolling 77").size() > 10); }),
            LongestKey);
    }
    void MeasureCheck()
    {
        plant::ProjectChecker checker(m_project);
        checker.Restart();
        double longest = 0;
        bool isMore = true;
        while (isMore)
            longest = std::max(longest, MillisecondsOf([&] { isMore = checker.Work(plant::ProjectChecker::Slice); }));
        Add(m_report, "the longest slice of the check", longest, LongestSlice);
    }

private:
    void MeasureStep(const std::string& what)
    {
        Add(m_report, "undo " + what, MedianOf([&] { Require(m_undo.Undo()); }, [&] { Require(m_undo.Redo()); }),
            LongestUndo);
    }

    kzbench::Report& m_report;
    PlantFolder m_folder{Many, Settings::All};
    LateProtector m_user;
    plant::Project m_project{m_folder.Path()};
    plant::UndoList m_undo{m_project};
};

}  // namespace

int main()
{
    kzbench::Report report;
    Bench bench(report);
    bench.MeasureUndo();
    bench.MeasureFilter();
    bench.MeasureCheck();
    return report.ExitCode();
}
