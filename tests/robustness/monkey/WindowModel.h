// What a random user of the main window has made of a project: all documents as they are, as they were saved, and as
// each step back and forth leaves them.
#pragma once

#include <deque>

#include "project/Project.h"

// Every document that a save would leave on disk, byte for byte.
using Documents = std::map<std::string, std::string>;

// The documents of the project in a folder.
[[nodiscard]] Documents DocumentsIn(const plant::Path& folder);

class WindowModel {
public:
    explicit WindowModel(plant::Project& project) : m_project(project) { ReadAnew(); }

    // The documents as the project has them.
    [[nodiscard]] Documents Shown() const;
    // The documents as its files hold them.
    [[nodiscard]] Documents OnDisk() const { return DocumentsIn(m_project.Folder()); }

    // A command has ended that may change something. Returns whether it has.
    bool Changed();
    void Undone() { Go(m_undo, m_redo); }
    void Redone() { Go(m_redo, m_undo); }
    void Saved();
    // Other documents have taken the place of all.
    void ReadAnew();

    // What is not as it should be; empty when all is.
    [[nodiscard]] std::string Difference() const;
    [[nodiscard]] bool CanUndo() const noexcept { return !m_undo.empty(); }
    [[nodiscard]] bool CanRedo() const noexcept { return !m_redo.empty(); }
    [[nodiscard]] bool IsUnsaved() const { return m_now != m_saved; }
    [[nodiscard]] const Documents& Now() const noexcept { return m_now; }
    [[nodiscard]] const Documents& LastSaved() const noexcept { return m_saved; }

private:
    using Steps = std::deque<Documents>;
    void Go(Steps& from, Steps& to);

    plant::Project& m_project;
    Documents m_now;
    Documents m_saved;
    Steps m_undo;
    Steps m_redo;
};
