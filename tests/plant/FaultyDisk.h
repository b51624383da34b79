// A disk of which one operation fails, for walks over every point at which a disk can fail or a process can end:
//
//   for (long failing = 1; !done; ++failing) {
//       kztest::FaultyDisk disk(RealDisk());
//       disk.FailAt(failing);
//       done = … the operation succeeds;
//       … what must hold now, seen through the real disk
//   }
#pragma once

#include <memory>
#include <utility>

#include "project/Disk.h"
#include "project/DocumentName.h"
#include "text/Refusal.h"

namespace kztest {

class FaultyDisk : public plant::Disk {
public:
    explicit FaultyDisk(plant::Disk& disk) noexcept : m_disk(disk) {}
    FaultyDisk(const FaultyDisk&) = delete;
    FaultyDisk& operator=(const FaultyDisk&) = delete;

    // Counts operations from now on; the one with that number, from 1, throws Refusal, and those behind it succeed.
    // What it was to write is half written. 0 lets all succeed.
    void FailAt(long number) noexcept { Arm(number, false); }
    // The same, and no later one succeeds, as if the process had ended there.
    void DieAt(long number) noexcept { Arm(number, true); }
    // How many were asked for since.
    [[nodiscard]] long Count() const noexcept { return m_count; }

    std::optional<std::string> Read(const plant::Path& file) override
    {
        Check(file);
        return m_disk.Read(file);
    }
    std::optional<KZFileEntry> Find(const plant::Path& path) override
    {
        Check(path);
        return m_disk.Find(path);
    }
    std::unique_ptr<plant::FolderEntries> Open(const plant::Path& folder) override
    {
        Check(folder);
        return m_disk.Open(folder);
    }
    void Write(const plant::Path& file, std::string_view bytes) override { Put(&plant::Disk::Write, file, bytes); }
    void WriteLoosely(const plant::Path& file, std::string_view bytes) override
    {
        Put(&plant::Disk::WriteLoosely, file, bytes);
    }
    void Move(const plant::Path& from, const plant::Path& to) override
    {
        Check(to);
        m_disk.Move(from, to);
    }
    void Link(const plant::Path& file, const plant::Path& name) override
    {
        Check(name);
        m_disk.Link(file, name);
    }
    void Remove(const plant::Path& path) override
    {
        Check(path);
        m_disk.Remove(path);
    }
    void MakeFolder(const plant::Path& folder) override
    {
        Check(folder);
        m_disk.MakeFolder(folder);
    }
    std::unique_ptr<plant::HeldFile> Hold(const plant::Path& file, KZHold hold) override
    {
        Check(file);
        std::unique_ptr<plant::HeldFile> held = m_disk.Hold(file, hold);
        return held ? std::make_unique<FaultyHeldFile>(*this, std::move(held), file) : nullptr;
    }
    std::int64_t Now() noexcept override { return m_disk.Now(); }

private:
    enum class Step { Succeeds, Fails, ComesTooLate };

    class FaultyHeldFile : public plant::HeldFile {
    public:
        FaultyHeldFile(FaultyDisk& disk, std::unique_ptr<plant::HeldFile> file, plant::Path name)
            : m_disk(disk), m_file(std::move(file)), m_name(std::move(name))
        {
        }
        std::string Read() override
        {
            m_disk.Check(m_name);
            return m_file->Read();
        }
        void Write(std::uint64_t place, std::string_view bytes) override
        {
            const Step step = m_disk.Next();
            if (step == Step::Fails)
                m_file->Write(place, bytes.substr(0, bytes.size() / 2));
            Require(step, m_name);
            m_file->Write(place, bytes);
        }
        void Remove() noexcept override
        {
            if (m_disk.Next() == Step::Succeeds)
                m_file->Remove();
        }

    private:
        FaultyDisk& m_disk;
        std::unique_ptr<plant::HeldFile> m_file;
        plant::Path m_name;
    };

    void Arm(long number, bool dies) noexcept
    {
        m_failing = number;
        m_dies = dies;
        m_count = 0;
    }
    Step Next() noexcept
    {
        ++m_count;
        if (m_count == m_failing)
            return Step::Fails;
        return m_dies && m_failing > 0 && m_count > m_failing ? Step::ComesTooLate : Step::Succeeds;
    }
    static void Require(Step step, const plant::Path& file)
    {
        if (step != Step::Succeeds)
            throw plant::Refusal(IDS_PLANT_FILE_FAILED, {plant::Shown(file), L"it fails in this test"});
    }
    void Check(const plant::Path& file) { Require(Next(), file); }
    void Put(void (plant::Disk::*write)(const plant::Path&, std::string_view), const plant::Path& file,
             std::string_view bytes)
    {
        const Step step = Next();
        if (step == Step::Fails)
            (m_disk.*write)(file, bytes.substr(0, bytes.size() / 2));
        Require(step, file);
        (m_disk.*write)(file, bytes);
    }

    plant::Disk& m_disk;
    long m_failing = 0;
    bool m_dies = false;
    long m_count = 0;
};

}  // namespace kztest
