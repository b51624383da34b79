#include "UndoList.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

#include "KZMainCfg.h"
#include "project/DocumentName.h"

namespace plant {

struct UndoList::Step {
    Message name;
    std::vector<KZBasicString> driverIds;
    std::unique_ptr<XmlDocument::Change> main;  // null when it is the same
    Change before;                              // of the device documents that differ
    Change after;
    // Of the device list the piece that differs, by its place; both are empty when it is the same.
    std::size_t firstDevice = 0;
    DeviceList devicesBefore;
    DeviceList devicesAfter;
    bool isListChanged = false;
    std::size_t bytes = 0;
};

namespace {

std::size_t SizeOf(const Change& documents)
{
    std::size_t size = 0;
    for (const auto& [name, bytes] : documents)
        size += name.size() + (bytes ? bytes->size() : 0);
    return size;
}

}  // namespace

UndoList::UndoList(Project& project) : m_project(project)
{
    m_project.AddListener(*this);
}

UndoList::~UndoList()
{
    m_project.RemoveListener(*this);
}

// Nothing can be undone in documents that were read anew.
void UndoList::OnProjectChanged(const ProjectChange& change) noexcept
{
    if (change.isAll)
        Clear();
}

void UndoList::Clear() noexcept
{
    m_steps.clear();
    m_position = 0;
    m_bytes = 0;
}

const Message* UndoList::UndoName() const noexcept
{
    return CanUndo() ? &m_steps[m_position - 1]->name : nullptr;
}

const Message* UndoList::RedoName() const noexcept
{
    return CanRedo() ? &m_steps[m_position]->name : nullptr;
}

bool UndoList::Do(Message name, std::span<const KZBasicString> driverIds, const std::function<void()>& change)
{
    if (m_project.m_doing) {
        change();
        return true;
    }
    m_project.RequireWritable();
    auto step = std::make_unique<Step>();
    step->name = std::move(name);
    step->driverIds.assign(driverIds.begin(), driverIds.end());
    for (const KZBasicString& driverId : driverIds) {
        std::string document = DeviceDocumentName(driverId);
        std::optional<std::string> bytes = m_project.Content(document);
        step->before.emplace(std::move(document), std::move(bytes));
    }
    m_project.RememberSaved(driverIds);
    Change pending = m_project.m_pending;
    Make(*step, pending, change);
    const bool isComplete = FillIn(*step, pending);
    const bool isAll = std::exchange(m_project.m_doing, {})->isAll;
    const bool isDifferent = isAll || !isComplete || step->main || !step->before.empty();
    m_project.CompareSaved(step->driverIds);
    // The step may be gone before all have heard of it.
    const std::vector<KZBasicString> changed = std::move(step->driverIds);
    const bool isListChanged = step->isListChanged;
    if (isAll || !isComplete)
        Clear();
    else if (isDifferent)
        Keep(std::move(step), changed);
    if (isDifferent)
        m_project.Tell({isAll, isListChanged, changed});
    return isDifferent;
}

// What a change that throws has changed is taken back.
void UndoList::Make(const Step& step, Change& pending, const std::function<void()>& change)
{
    KZMainCfg::Get()->StartRecording();
    m_project.m_doing = Project::Doing{};
    try {
        change();
    } catch (...) {
        TakeBackHalf(step, pending);
        throw;
    }
}

void UndoList::TakeBackHalf(const Step& step, Change& pending) noexcept
{
    XmlDocument& main = *KZMainCfg::Get();
    if (const auto made = main.StopRecording())
        main.TakeBack(*made);
    m_project.m_pending.swap(pending);
    std::erase_if(m_project.m_pending,
                  [this](const auto& document) { return m_project.m_seen.Saw(document.first, document.second); });
    Project::Doing doing = *std::exchange(m_project.m_doing, {});
    if (doing.isAll)
        return m_project.TellAll();
    if (doing.devicesBefore)
        m_project.m_devices.swap(*doing.devicesBefore);
    m_project.ProtectOrTell();
    m_project.Tell({.driverIds = step.driverIds});
}

// What the change has made of the project. Returns false when it cannot be found out.
bool UndoList::FillIn(Step& step, const Change& pending) noexcept
{
    step.main = KZMainCfg::Get()->StopRecording();
    step.isListChanged = m_project.m_doing->devicesBefore.has_value();
    try {
        if (step.isListChanged) {
            AddListedDevices(step);
            AddListPiece(step);
        }
        AddOtherDocuments(step, pending);
        for (auto document = step.before.begin(); document != step.before.end();) {
            const auto& [name, bytes] = *document;
            std::optional<std::string> now;
            const bool isSame =
                m_project.HashNow(name) == DocumentHash(bytes) || (now = m_project.Content(name)) == bytes;
            if (!isSame)
                step.after.emplace(name, std::move(now));
            document = isSame ? step.before.erase(document) : std::next(document);
        }
    } catch (const std::exception&) {
        return false;
    }
    step.bytes = (step.main ? step.main->Size() : 0) + SizeOf(step.before) + SizeOf(step.after);
    return true;
}

// Nobody could name new ones before they were made.
void UndoList::AddListedDevices(Step& step)
{
    const auto idsIn = [](const DeviceList& devices) {
        std::unordered_set<std::wstring_view> driverIds;
        for (const KZDeviceIdentity& device : devices)
            driverIds.insert(device.driverId.View());
        return driverIds;
    };
    const DeviceList& before = *m_project.m_doing->devicesBefore;
    const DriverIds named(step.driverIds.begin(), step.driverIds.end());
    const auto missing = [&](const DeviceList& devices, const DeviceList& others) {
        const auto known = idsIn(others);
        std::vector<KZBasicString> driverIds;
        for (const KZDeviceIdentity& device : devices)
            if (!known.contains(device.driverId.View()) && !named.contains(device.driverId))
                driverIds.push_back(device.driverId);
        return driverIds;
    };
    const std::vector<KZBasicString> made = missing(m_project.m_devices, before);
    const std::vector<KZBasicString> gone = missing(before, m_project.m_devices);
    m_project.m_savedDevices.RememberMissing(made);
    step.driverIds.insert(step.driverIds.end(), made.begin(), made.end());
    step.driverIds.insert(step.driverIds.end(), gone.begin(), gone.end());
}

void UndoList::AddListPiece(Step& step) const
{
    const auto isSame = [](const KZDeviceIdentity& a, const KZDeviceIdentity& b) {
        return a.driverId == b.driverId && a.name == b.name && a.number == b.number && a.typeName == b.typeName &&
               a.description == b.description && a.groups == b.groups;
    };
    const DeviceList& before = *m_project.m_doing->devicesBefore;
    const DeviceList& after = m_project.m_devices;
    const auto [first, firstAfter] = std::mismatch(before.begin(), before.end(), after.begin(), after.end(), isSame);
    const auto [last, lastAfter] = std::mismatch(before.rbegin(), std::make_reverse_iterator(first), after.rbegin(),
                                                 std::make_reverse_iterator(firstAfter), isSame);
    step.firstDevice = static_cast<std::size_t>(first - before.begin());
    step.devicesBefore.assign(first, last.base());
    step.devicesAfter.assign(firstAfter, lastAfter.base());
}

// Only getting memory can fail, which comes first.
void UndoList::ReplaceDevices(const Step& step, bool isBack)
{
    const DeviceList& from = isBack ? step.devicesAfter : step.devicesBefore;
    DeviceList to = isBack ? step.devicesBefore : step.devicesAfter;
    DeviceList& devices = m_project.m_devices;
    devices.reserve(devices.size() + to.size());
    const auto place = devices.begin() + static_cast<std::ptrdiff_t>(step.firstDevice);
    const auto behind = devices.erase(place, place + static_cast<std::ptrdiff_t>(from.size()));
    devices.insert(behind, std::make_move_iterator(to.begin()), std::make_move_iterator(to.end()));
}

// Documents of other devices than those that were named, new ones above all.
void UndoList::AddOtherDocuments(Step& step, const Change& pending)
{
    for (const auto& [name, bytes] : pending)
        step.before.emplace(name, bytes);
    for (const auto& [name, bytes] : m_project.m_pending)
        if (!step.before.contains(name))
            step.before.emplace(name, m_project.ReadSaved(name));
}

void UndoList::Keep(std::unique_ptr<Step> step, const std::vector<KZBasicString>& driverIds) noexcept
{
    const auto drop = [this](auto first, auto last) {
        for (auto dropped = first; dropped != last; ++dropped)
            m_bytes -= (*dropped)->bytes;
        m_steps.erase(first, last);
    };
    drop(m_steps.begin() + static_cast<std::ptrdiff_t>(m_position), m_steps.end());
    try {
        step->driverIds = driverIds;
        m_bytes += step->bytes;
        m_steps.push_back(std::move(step));
        ++m_position;
    } catch (const std::bad_alloc&) {
        return Clear();
    }
    while (m_steps.size() > MostSteps || (m_bytes > MostBytes && m_steps.size() > LeastSteps)) {
        drop(m_steps.begin(), m_steps.begin() + 1);
        --m_position;
    }
}

bool UndoList::Undo()
{
    if (m_project.m_doing || !CanUndo() || !Go(*m_steps[m_position - 1], true))
        return false;
    --m_position;
    TellOf(*m_steps[m_position]);
    return true;
}

bool UndoList::Redo()
{
    if (m_project.m_doing || !CanRedo() || !Go(*m_steps[m_position], false))
        return false;
    ++m_position;
    TellOf(*m_steps[m_position - 1]);
    return true;
}

bool UndoList::Go(Step& step, bool isBack)
{
    const Change& from = isBack ? step.after : step.before;
    const Change& to = isBack ? step.before : step.after;
    Change pending;
    for (const auto& [name, bytes] : to)
        if (!m_project.m_seen.Saw(name, bytes))
            pending.emplace(name, bytes);
    m_project.RememberSaved(step.driverIds);
    const auto isThere = [this](const auto& document) {
        return m_project.HashNow(document.first) == DocumentHash(document.second);
    };
    if (!std::all_of(from.begin(), from.end(), isThere) || !GoInMain(step, isBack)) {
        Clear();
        return false;
    }
    try {
        if (step.isListChanged)
            ReplaceDevices(step, isBack);
    } catch (...) {
        GoInMain(step, !isBack);
        throw;
    }
    for (const auto& [name, bytes] : to)
        m_project.m_pending.erase(name);
    m_project.m_pending.merge(pending);
    return true;
}

bool UndoList::GoInMain(Step& step, bool isBack) noexcept
{
    XmlDocument& main = *KZMainCfg::Get();
    return !step.main || (isBack ? main.TakeBack(*step.main) : main.MakeAgain(*step.main));
}

void UndoList::TellOf(const Step& step) noexcept
{
    m_project.CompareSaved(step.driverIds);
    m_project.ProtectOrTell();
    m_project.Tell({.isListChanged = step.isListChanged, .driverIds = step.driverIds});
}

}  // namespace plant
