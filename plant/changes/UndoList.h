// What was changed in a project, step by step, so that it can be undone and redone.
//
// A step holds the pieces that it has changed: of the main configuration document what was put in and taken out, of
// device documents both contents. Undoing brings back the same bytes. What is saved meanwhile stays on disk: undoing
// past a save makes unsaved changes of it again, and coming back to what the files hold makes the project clean.
#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <span>

#include "project/Project.h"

namespace plant {

class UndoList final : private ProjectListener {
public:
    // At most so many steps are kept and at most so many bytes in them, but never fewer than the least number of steps.
    static constexpr std::size_t MostSteps = 1'000;
    static constexpr std::size_t MostBytes = std::size_t{64} << 20;
    static constexpr std::size_t LeastSteps = 20;

    // The project must outlive the list.
    explicit UndoList(Project& project);
    ~UndoList();
    UndoList(const UndoList&) = delete;
    UndoList& operator=(const UndoList&) = delete;

    // Runs a change of the project and keeps it as a step when something is different afterwards; what was undone
    // before can then no longer be redone. The project's listeners hear of it once, behind it. A change inside another
    // belongs to the outer one.
    //   name       what the user is told can be undone
    //   driverIds  the devices whose values, chosen variables or documents the change may touch; new ones are found
    //   change     may show dialogs. When it throws, what it has changed is taken back, but for what it has saved, and
    //              the exception goes on to the caller.
    // Returns whether something is different. Throws Refusal, before anything is changed, when the project is read-only
    // or a document cannot be read, and std::bad_alloc, with nothing changed. Where the memory for the step alone is
    // missing, the change stays and the list is empty.
    bool Do(Message name, std::span<const KZBasicString> driverIds, const std::function<void()>& change);

    [[nodiscard]] bool CanUndo() const noexcept { return m_position > 0; }
    [[nodiscard]] bool CanRedo() const noexcept { return m_position < m_steps.size(); }
    // What would be undone or redone; null for nothing.
    [[nodiscard]] const Message* UndoName() const noexcept;
    [[nodiscard]] const Message* RedoName() const noexcept;

    // Neither asks nor saves. Returns false, changing nothing, when there is nothing to undo or redo, and when the
    // project is no longer as the step left it, since its documents were read anew: the list is then empty. Throws
    // std::bad_alloc, with nothing changed.
    bool Undo();
    bool Redo();
    // Forgets all steps.
    void Clear() noexcept;

    [[nodiscard]] std::size_t Count() const noexcept { return m_steps.size(); }
    // What the steps hold, in bytes, as far as it grows with what was changed.
    [[nodiscard]] std::size_t Bytes() const noexcept { return m_bytes; }

private:
    struct Step;
    void Make(const Step& step, Change& pending, const std::function<void()>& change);
    void TakeBackHalf(const Step& step, Change& pending) noexcept;
    [[nodiscard]] bool FillIn(Step& step, const Change& pending) noexcept;
    void AddListedDevices(Step& step);
    void AddListPiece(Step& step) const;
    void ReplaceDevices(const Step& step, bool isBack);
    void AddOtherDocuments(Step& step, const Change& pending);
    void Keep(std::unique_ptr<Step> step, const std::vector<KZBasicString>& driverIds) noexcept;
    bool Go(Step& step, bool isBack);
    bool GoInMain(Step& step, bool isBack) noexcept;
    void TellOf(const Step& step) noexcept;
    void OnProjectChanged(const ProjectChange& change) noexcept override;

    Project& m_project;
    std::deque<std::unique_ptr<Step>> m_steps;
    std::size_t m_position = 0;  // behind the step that would be undone
    std::size_t m_bytes = 0;
};

}  // namespace plant
