#include "Commit.h"

#include "DocumentName.h"
#include "Journal.h"
#include "ReplaceFile.h"
#include "Sealed.h"

namespace plant {

namespace {

class Commission {
public:
    Commission(Disk& disk, const Path& project) : m_disk(disk), m_project(project), m_folder(project / "commit") {}

    [[nodiscard]] Path JournalFile() const { return m_folder / "journal"; }

    void Finish();
    void Run(const Change& change);

private:
    [[nodiscard]] Path Target(const JournalStep& step) const { return FileOf(m_project, step.target); }
    [[nodiscard]] Path Staged(std::string_view name) const { return FileOf(m_folder, name); }

    void RequireRealFolders(const Journal& journal) const;
    [[nodiscard]] Journal Remaining(const Journal& journal) const;
    void Clear();
    void MakeFolders(const Change& change) const;
    [[nodiscard]] Journal Stage(const Change& change, Journal& wayBack) const;
    void WriteDown(const Journal& journal) const;
    std::size_t CarryOut(const Journal& journal, std::exception_ptr& failure) const;
    void PutBack(const Journal& wayBack) const;

    Disk& m_disk;
    const Path& m_project;
    Path m_folder;
};

JournalStep StepFor(std::string target, std::string staged, std::string_view bytes)
{
    return {std::move(target), std::move(staged), bytes.size(), HashOf(bytes)};
}

// A link in the place of a folder would lead what is put there to somewhere else.
void Commission::RequireRealFolders(const Journal& journal) const
{
    for (const JournalStep& step : journal) {
        for (Path folder = Path(step.target).parent_path(); !folder.empty(); folder = folder.parent_path()) {
            const auto found = m_disk.Find(m_project / folder);
            if (found && found->kind != KZFileEntry::Kind::Folder)
                throw Refusal(IDS_PLANT_STRANGE_NAME, {Shown(JournalFile()), Shown(m_project / folder)});
        }
    }
}

// The steps that have not been carried out yet. What a step is to put into place was on the disk before the journal
// was: where it is missing, it is in place already.
Journal Commission::Remaining(const Journal& journal) const
{
    Journal remaining;
    bool lacksSomething = false;
    for (const JournalStep& step : journal) {
        if (step.staged.empty()) {
            remaining.push_back(step);
            continue;
        }
        const std::optional<std::string> staged = m_disk.Read(Staged(step.staged));
        if (staged && (staged->size() != step.size || HashOf(*staged) != step.hash))
            throw Refusal(IDS_PLANT_DAMAGED, {Shown(Staged(step.staged))});
        if (staged) {
            remaining.push_back(step);
            continue;
        }
        const std::optional<std::string> target = m_disk.Read(Target(step));
        lacksSomething = lacksSomething || !target || HashOf(*target) != step.hash;
    }
    // A journal that outlived its commit: whatever became of the documents since is none of its business.
    const bool isDone = remaining.empty() || remaining.size() == journal.size();
    if (lacksSomething && !isDone)
        throw Refusal(IDS_PLANT_DAMAGED, {Shown(JournalFile())});
    return remaining;
}

void Commission::Finish()
{
    const std::optional<std::string> bytes = m_disk.Read(JournalFile());
    if (!bytes)
        return;
    const Journal journal = ReadJournal(*bytes, Shown(JournalFile()));
    RequireRealFolders(journal);
    std::exception_ptr failure;
    CarryOut(Remaining(journal), failure);
    if (failure)
        std::rethrow_exception(failure);
    Insist([this] { m_disk.Remove(JournalFile()); });
    Clear();
}

// Removes what a commit leaves in its folder; what is anybody else's stays.
void Commission::Clear()
{
    try {
        for (const KZFileEntry& entry : m_disk.List(m_folder)) {
            const std::u8string name = entry.name.u8string();
            const std::string_view text(reinterpret_cast<const char*>(name.data()), name.size());
            if (entry.kind == KZFileEntry::Kind::File && (IsStagedName(text) || text == "journal.new"))
                m_disk.Remove(m_folder / entry.name);
        }
        m_disk.Remove(m_folder);
    } catch (const Refusal&) {
        // It is in nobody's way; the next commit tries again.
    }
}

void Commission::MakeFolders(const Change& change) const
{
    m_disk.MakeFolder(m_folder);
    for (const auto& [name, bytes] : change) {
        if (bytes && name.starts_with(DeviceFolder))
            return m_disk.MakeFolder(m_project / DeviceFolder);
    }
}

Journal Commission::Stage(const Change& change, Journal& wayBack) const
{
    Journal journal;
    for (const auto& [name, bytes] : change) {
        const std::string number = std::to_string(journal.size() + 1);
        const Path target = FileOf(m_project, name);
        // Before the journal is written saying no still costs nothing.
        RequireReplaceable(m_disk, target);
        JournalStep back{name, {}};
        if (const std::optional<std::string> old = m_disk.Read(target)) {
            back = StepFor(name, number + ".old", *old);
            m_disk.Link(target, Staged(back.staged));
        }
        wayBack.push_back(std::move(back));
        if (bytes)
            m_disk.Write(Staged(number), *bytes);
        journal.push_back(bytes ? StepFor(name, number, *bytes) : JournalStep{name, {}});
    }
    return journal;
}

void Commission::WriteDown(const Journal& journal) const
{
    const Path beside = m_folder / "journal.new";
    m_disk.Remove(beside);
    m_disk.Write(beside, WriteJournal(journal));
    m_disk.Move(beside, JournalFile());
}

// Returns how many steps it has carried out; the failure of the next one is kept.
std::size_t Commission::CarryOut(const Journal& journal, std::exception_ptr& failure) const
{
    std::size_t done = 0;
    try {
        for (; done < journal.size(); ++done) {
            const JournalStep& step = journal[done];
            Insist([&] {
                if (step.staged.empty())
                    m_disk.Remove(Target(step));
                else
                    m_disk.Move(Staged(step.staged), Target(step));
            });
        }
    } catch (...) {
        failure = std::current_exception();
    }
    return done;
}

// The way back is a change like any other: with a journal in the place of the first one.
void Commission::PutBack(const Journal& wayBack) const
{
    try {
        WriteDown(wayBack);
        std::exception_ptr failure;
        CarryOut(wayBack, failure);
        if (failure)
            std::rethrow_exception(failure);
        m_disk.Remove(JournalFile());
    } catch (const std::exception&) {
        throw Refusal(IDS_PLANT_HALF_DONE, {Shown(JournalFile())});
    }
}

void Commission::Run(const Change& change)
{
    Clear();
    MakeFolders(change);
    Journal journal;
    Journal wayBack;
    try {
        journal = Stage(change, wayBack);
        WriteDown(journal);
    } catch (...) {
        Clear();
        throw;
    }
    std::exception_ptr failure;
    const std::size_t done = CarryOut(journal, failure);
    if (failure) {
        wayBack.resize(done);
        PutBack(wayBack);
        Clear();
        std::rethrow_exception(failure);
    }
    try {
        Insist([this] { m_disk.Remove(JournalFile()); });
        Clear();
    } catch (const Refusal&) {
        // All is in place: who finds the journal sees that nothing is left of it.
    }
}

}  // namespace

bool HasJournal(Disk& disk, const Path& project)
{
    return disk.Find(Commission(disk, project).JournalFile()).has_value();
}

void FinishCommit(Disk& disk, const Path& project, const ProjectLock&)
{
    Commission(disk, project).Finish();
}

void FinishInterruptedCommit(Disk& disk, const Path& project)
{
    if (HasJournal(disk, project))
        FinishCommit(disk, project, ProjectLock(disk, project));
}

void Commit(Disk& disk, const Path& project, const ProjectLock&, const Change& change)
{
    Commission(disk, project).Run(change);
}

}  // namespace plant
