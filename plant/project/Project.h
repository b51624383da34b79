// A project: a folder with the main configuration document and one document per device, as saved and as changed since.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Change.h"
#include "DeviceList.h"
#include "Disk.h"
#include "DocumentFiles.h"
#include "History.h"
#include "ProjectListener.h"
#include "ProjectLock.h"
#include "Recovery.h"
#include "SavedDevices.h"
#include "SeenDocuments.h"
#include "text/Refusal.h"

namespace plant {

// What only a person can decide.
class ProjectUser {
public:
    enum class Answer { Overwrite, TakeTheirs, Cancel };
    // Another program has changed these documents since they were read.
    virtual Answer AskAboutForeignChanges(const std::vector<std::string>& documents) = 0;
    // Something unsaved is not in the recovery file yet, and to put it there takes long in a large project. Returns
    // whether this user calls Project::ProtectIfDue before anything else can be done; otherwise it is put there at
    // once.
    virtual bool WillProtect() noexcept { return false; }
    // What is not saved yet could not be put into the recovery file: it would be lost with the process.
    virtual void TellUnprotected(const Message& why) noexcept = 0;
    // Another process is saving, so that this one has to wait; then, that it waits no longer.
    virtual void TellWaiting(bool isWaiting) noexcept = 0;

protected:
    ~ProjectUser() = default;
};

class Project final : private KZCommitListener {
public:
    // Opens DIR/main.xml as the process's main configuration document, so there is one project per process. What a
    // killed process has left of a save is carried out first.
    // Throws Refusal when the folder is missing, and when the document is missing, broken, or lists devices that cannot
    // be told apart; where it is not needed, since the history is to bring it back, there are no devices then.
    enum class MainIs { Needed, NotNeeded };
    explicit Project(const Path& folder, Disk& disk = RealDisk(), MainIs main = MainIs::Needed);
    ~Project();
    Project(const Project&) = delete;
    Project& operator=(const Project&) = delete;

    // The folder's name.
    [[nodiscard]] const std::wstring& Name() const noexcept { return m_name; }
    [[nodiscard]] const Path& Folder() const noexcept { return m_folder; }
    [[nodiscard]] const DeviceList& Devices() const noexcept { return m_devices; }
    // The place of the device in the list. Throws Refusal, naming the devices that there are, when none has the name.
    [[nodiscard]] std::size_t DeviceByName(std::wstring_view name) const;
    // The same for a driverId too; a name comes first.
    [[nodiscard]] std::size_t DeviceByNameOrId(std::wstring_view text) const;

    // Null, as at first: nobody is asked, and foreign changes are refused.
    void SetUser(ProjectUser* user) noexcept { m_user = user; }

    // Whoever listens is told of every change that is made through the project or an UndoList. Not owned.
    void AddListener(ProjectListener& listener) { m_listeners.push_back(&listener); }
    void RemoveListener(ProjectListener& listener) noexcept { std::erase(m_listeners, &listener); }

    // Whether the folder or the main configuration document cannot be written to, as it was found at the first call.
    [[nodiscard]] bool IsReadOnly();
    // Throws Refusal when it is so.
    void RequireWritable();

    // The devices that differ from what the files hold, those that were added or removed among them, as far as they
    // were changed inside UndoList::Do. Cheap to ask, but for the first time after a recovery, which reads the main
    // configuration document again.
    [[nodiscard]] const DriverIds& ChangedDevices() noexcept;

    // Whether a user who said that he will protect it has not done so yet. Doing it puts what is unsaved into the
    // recovery file, or tells the user why not.
    [[nodiscard]] bool IsProtectionDue() const noexcept { return m_isProtectionDue; }
    void ProtectIfDue() noexcept;

    // Reads a device's document as it is now, saved or not, into one with the root element "device". A document that is
    // missing or empty is that of a device that nobody has set up yet: it leaves the document as it is. Throws Refusal.
    void ReadDeviceDocument(const std::string& name, XmlDocument& document);
    // The same for somebody who will not write it.
    void ReadDeviceToShow(const std::string& name, XmlDocument& document);

    enum class Outcome { Done, TookTheirs, Cancelled };
    // Writes a document at once; what else is not saved stays so. The cause is for the history: the command, or
    // "window". On failure everything on disk is as it was.
    Outcome WriteDocument(const std::string& name, const XmlDocument& document, const std::string& cause);

    [[nodiscard]] bool IsDirty() const noexcept;
    // Whether there are changes of this document that are not saved.
    [[nodiscard]] bool IsUnsaved(const std::string& name) const noexcept;
    // Writes all that is not saved. On failure everything on disk is as it was and what was changed stays unsaved.
    Outcome Save(const std::string& cause);
    // Writes these device documents, and the main configuration document if it is changed, together with all that is
    // not saved. On failure everything on disk is as it was, and these are unsaved changes too.
    Outcome SaveTogether(Change devices, bool isMainChanged, const std::string& cause);
    // Makes unsaved changes: of device documents, and of the main configuration document if it was changed in place.
    void KeepUnsaved(Change devices, bool isMainChanged) noexcept;
    // The device list of the main configuration document was changed in place. Throws Refusal when it could not be
    // opened like this, and std::bad_alloc; the list is then as it was.
    void ReadDevicesAnew();
    // A document as it is now, saved or not; nothing for none. Throws Refusal when it cannot be read.
    [[nodiscard]] std::optional<std::string> Content(const std::string& name);
    // The same without remembering it as seen, for somebody who looks at all of them.
    [[nodiscard]] std::optional<std::string> Peek(const std::string& name) const;
    // The same as its file holds it.
    [[nodiscard]] std::optional<std::string> SavedContent(const std::string& name) const
    {
        return m_disk.Read(FileOf(m_folder, name));
    }
    // Every document that there is on disk. Throws Refusal.
    [[nodiscard]] DocumentFiles FilesOnDisk() const { return DocumentFilesIn(m_disk, m_folder); }
    // The same in steps.
    [[nodiscard]] DocumentReader ReadFilesOnDisk() const { return {m_disk, m_folder}; }
    // Makes what is on disk what a save would leave there.
    void AddPending(DocumentFiles& files) const;
    // The device documents that are changed and not saved.
    [[nodiscard]] const Change& Pending() const noexcept { return m_pending; }

    // What is not saved needs no protection any more: the user does not want it.
    void Discard() noexcept;
    // Puts what is not saved into the recovery file. Throws Refusal.
    void Protect();

    // The documents, among those that were read, that another program has changed since.
    [[nodiscard]] ForeignChanges FindForeignChanges() { return m_seen.Changed(); }
    // Reads these documents anew; what was changed in them here is gone. Throws Refusal when one of them cannot be read
    // or is broken; all is then as it was, and saving over them asks.
    void TakeTheirs(const std::vector<std::string>& documents);

    [[nodiscard]] std::vector<HistoryEntry> Entries();
    // Brings every document back as it was before that save, which is itself a save; what is not saved is gone.
    // Returns what it has changed; with dryRun it changes nothing. Refuses a save before which the main configuration
    // document could not have been opened.
    Change Restore(int number, bool dryRun);

    // What processes that are gone have left unsaved here.
    [[nodiscard]] Recoveries FindUnsaved() { return FindRecoveries(m_disk, m_folder); }
    // The documents of a find that somebody has changed since its owner read them, or since this was asked before:
    // saving what was found does not ask about these again.
    [[nodiscard]] std::vector<std::string> ChangedSince(FoundRecovery& found);
    // Takes over what was found, unsaved, in place of what is unsaved here of the same documents; the file of the find
    // is gone afterwards. Throws Refusal; the file is then still there, and nothing has changed here.
    void Recover(FoundRecovery& found);

private:
    friend class UndoList;

    // While UndoList makes a change.
    struct Doing {
        bool isAll = false;                            // other documents were read
        std::optional<DeviceList> devicesBefore = {};  // when they were read anew
    };

    // Documents as another program has written them, read and found in order.
    struct Theirs {
        std::vector<std::string> names;
        SeenDocuments seen;
        std::optional<std::string> main;
        DeviceList devices;
    };

    [[nodiscard]] std::string ReadMain(SeenDocuments& seen) const;
    void Open(XmlDocument& document, const std::string& bytes, DeviceList& devices) const;
    [[nodiscard]] DeviceList Rehearse(const std::string& mainBytes) const;
    [[nodiscard]] DeviceList RequireOpenable(const std::string& mainBytes, int number) const;
    void RehearseDevice(const std::string& name, const std::optional<std::string>& bytes) const;
    void ReplaceMain(const std::string& bytes, DeviceList devices);
    void ReadDevice(const std::string& name, XmlDocument& document, SeenDocuments& seen) const;
    std::optional<std::string> ReadSaved(const std::string& name);
    [[nodiscard]] ProjectLock Lock() const;
    [[nodiscard]] Change Waiting() const;
    Outcome Write(Change change, const std::string& cause);
    [[nodiscard]] ForeignChanges WriteUnlessForeign(const Change& change, const std::string& cause,
                                                    const ForeignChanges& overwritten);
    [[nodiscard]] ForeignChanges ForeignIn(Change& change, const ForeignChanges& overwritten);
    void CommitUnderLock(const ProjectLock& lock, const Change& change, const std::string& cause);
    void Written(const Change& documents) noexcept;
    void Protect(Change waiting, const SeenDocuments& seen);
    void ProtectOrTell() noexcept;
    void ProtectNow() noexcept;
    [[nodiscard]] Theirs LookAt(const std::vector<std::string>& documents) const;
    void Take(Theirs theirs);
    void OnCommit(XmlDocument& document) noexcept override;
    void Tell(const ProjectChange& change) noexcept;
    void TellAll() noexcept;
    [[nodiscard]] std::optional<std::uint64_t> HashNow(const std::string& name) const;
    [[nodiscard]] DocumentHashes HashesNow() const;
    void RememberSaved(std::span<const KZBasicString> driverIds);
    void CompareSaved(std::span<const KZBasicString> driverIds) noexcept;
    void LearnSaved();

    Disk& m_disk;
    Path m_folder;
    std::wstring m_name;
    DeviceList m_devices;
    Change m_pending;  // device documents that are changed and not saved
    SeenDocuments m_seen;
    History m_history;
    RecoveryFile m_recovery;
    ProjectUser* m_user = nullptr;
    std::vector<ProjectListener*> m_listeners;
    std::optional<bool> m_isReadOnly;
    SavedDevices m_savedDevices;
    std::optional<Doing> m_doing;
    bool m_isProtectionDue = false;
};

}  // namespace plant
