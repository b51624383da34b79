// What the platforms do each in its own way about files.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

// An open file, closed at the latest by its end. Where an operation fails, SystemReason says why until the next call.
class SystemFile {
public:
    SystemFile() noexcept = default;
    ~SystemFile() { Close(); }
    SystemFile(SystemFile&& other) noexcept : m_handle(std::exchange(other.m_handle, None)) {}
    SystemFile& operator=(SystemFile&& other) noexcept
    {
        std::swap(m_handle, other.m_handle);
        return *this;
    }

    [[nodiscard]] static SystemFile OpenToRead(const std::filesystem::path& file) noexcept;
    // Creates a file to write to. The permissions count where the system has such.
    [[nodiscard]] static SystemFile Create(const std::filesystem::path& file, std::filesystem::perms mode) noexcept;
    // Whether the last Create failed because there is a file of that name.
    [[nodiscard]] static bool NameWasTaken() noexcept;

    [[nodiscard]] bool IsOpen() const noexcept { return m_handle != None; }
    // Returns how many bytes it has read, 0 at the end of the file, nothing on failure.
    [[nodiscard]] std::optional<std::size_t> Read(std::span<char> block) noexcept;
    // Writes all the bytes, to the disk itself.
    [[nodiscard]] bool Write(std::string_view bytes) noexcept;
    bool Close() noexcept;

private:
    // A file descriptor or a HANDLE; neither is ever -1.
    static constexpr std::intptr_t None = -1;
    explicit SystemFile(std::intptr_t handle) noexcept : m_handle(handle) {}
    std::intptr_t m_handle = None;
};

// Moves a file over another in one step, to the disk itself.
[[nodiscard]] bool MoveOver(const std::filesystem::path& from, const std::filesystem::path& to) noexcept;

// Why the last operation failed, in a few words.
[[nodiscard]] std::wstring SystemReason();

[[nodiscard]] unsigned long ProcessNumber() noexcept;
