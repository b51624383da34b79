// An editor without windows, as a process of its own: it opens a project and does what it is told through pipes.
#pragma once

#include <array>
#include <filesystem>
#include <string>

namespace crash {

// The documents of its project. Each holds one value; 0 stands for a document that is missing.
inline constexpr std::array DocumentNames{"main.xml", "devices/a.xml", "devices/b.xml", "devices/c.xml"};
using Values = std::array<long, DocumentNames.size()>;
[[nodiscard]] std::string TextOf(std::size_t document, long value);
[[nodiscard]] long ValueIn(const std::filesystem::path& project, std::size_t document);

struct Order {
    enum class Kind {
        ChangeMain,
        ReadDevice,
        WriteDevice,
        Save,
        Restore,
        FindForeign,
        TakeForeign,
        Recover,
        Decline,
        // Answers to a question.
        Overwrite,
        TakeTheirs,
        Cancel
    };
    Kind kind;
    std::size_t document = 0;
    long value = 0;  // of the document, or the number of an entry of the history
};

struct Reply {
    enum class Kind { Done, TookTheirs, Cancelled, Asks, Refused };
    Kind kind = Kind::Done;
    bool dirty = false;
    long main = 0;           // the value in memory
    long read = 0;           // the value that was read
    unsigned documents = 0;  // asked about, or found changed: bit n for document n
    bool hasFound = false;   // unsaved changes of a process that is gone; "documents" have changed since
    long found = 0;          // the value in them
};

class WindowlessEditor {
public:
    // Throws std::runtime_error when it cannot be started.
    explicit WindowlessEditor(const std::filesystem::path& project);
    // Kills it.
    ~WindowlessEditor();
    WindowlessEditor(const WindowlessEditor&) = delete;
    WindowlessEditor& operator=(const WindowlessEditor&) = delete;

    // What it told when it had opened the project.
    [[nodiscard]] const Reply& Opening() const noexcept { return m_opening; }
    // Throws std::runtime_error when the process has ended.
    Reply Do(const Order& order);

private:
    [[nodiscard]] Reply Hear() const;

    int m_process = -1;
    int m_orders = -1;
    int m_replies = -1;
    Reply m_opening;
};

}  // namespace crash
