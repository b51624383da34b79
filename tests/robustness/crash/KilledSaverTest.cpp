// A process that is killed while it saves leaves the old document or the new one, whole.
#include <gtest/gtest.h>

#include <windows.h>

#include <filesystem>
#include <string>

#include "Endurance.h"
#include "KZXmlDocument.h"
#include "Random.h"
#include "SavedContent.h"
#include "TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;

constexpr DWORD StartLimit = 20'000;             // milliseconds
constexpr int LongestLifeMicroseconds = 15'000;  // some saves of the longest document

class Handle {
public:
    explicit Handle(HANDLE handle) noexcept : m_handle(handle) {}
    ~Handle() { ::CloseHandle(m_handle); }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    [[nodiscard]] HANDLE Get() const noexcept { return m_handle; }

private:
    HANDLE m_handle;
};

// Sleep knows whole milliseconds only, and a save takes less.
void Wait(int microseconds)
{
    LARGE_INTEGER frequency;
    LARGE_INTEGER now;
    ::QueryPerformanceFrequency(&frequency);
    ::QueryPerformanceCounter(&now);
    const auto end = now.QuadPart + frequency.QuadPart * microseconds / 1'000'000;
    for (; now.QuadPart < end; ::QueryPerformanceCounter(&now))
        ::Sleep(0);
}

class KilledSaver : public testing::Test {
protected:
    KilledSaver() { m_folder.Write("main.xml", ContentOf(1)); }

    // Lets the saver begin and kills it so long afterwards.
    void RunSaver(int microseconds)
    {
        const std::wstring eventName = L"kz-saver-" + std::to_wstring(::GetCurrentProcessId());
        const Handle begun(::CreateEventW(nullptr, TRUE, FALSE, eventName.c_str()));
        std::wstring command = L"endure_saver.exe \"" + m_file.wstring() + L"\" " + eventName;
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        PROCESS_INFORMATION started{};
        ASSERT_TRUE(::CreateProcessW(Program().c_str(), command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                                     &startup, &started));
        const Handle process(started.hProcess);
        const Handle thread(started.hThread);
        const HANDLE either[] = {begun.Get(), process.Get()};
        ASSERT_EQ(::WaitForMultipleObjects(2, either, FALSE, StartLimit), WAIT_OBJECT_0) << "the saver failed";
        Wait(microseconds);
        ASSERT_TRUE(::TerminateProcess(process.Get(), 0)) << "the saver has ended by itself";
        ::WaitForSingleObject(process.Get(), INFINITE);
    }

    [[nodiscard]] std::string Text() const { return kztest::BytesOf(m_file); }
    [[nodiscard]] std::size_t Leftovers() const { return m_folder.Count() - 1; }

    kztest::TemporaryFolder m_folder;
    const fs::path m_file = m_folder.Path() / "main.xml";

private:
    [[nodiscard]] static std::wstring Program()
    {
        wchar_t own[MAX_PATH];
        ::GetModuleFileNameW(nullptr, own, MAX_PATH);
        return fs::path(own).replace_filename("endure_saver.exe").wstring();
    }
};

TEST_F(KilledSaver, LeavesAWholeDocumentThatIsNoOlderThanTheLastOne)
{
    const long kills = endurance::Rounds(40, 2000);
    const std::uint64_t seed = endurance::Seed();
    Random random(seed);
    long last = 1;
    for (long kill = 0; kill < kills; ++kill) {
        const int life = random.Between(0, LongestLifeMicroseconds);
        ASSERT_NO_FATAL_FAILURE(RunSaver(life)) << "kill " << kill << ", seed " << seed;
        const std::string text = Text();
        const long number = NumberOf(text);
        ASSERT_EQ(text, ContentOf(number)) << "torn after kill " << kill << ", seed " << seed;
        ASSERT_GE(number, last) << "an older document after kill " << kill << ", seed " << seed;
        last = number;
    }
    // Kills between two saves alone would prove nothing: some must have left the file that was being written.
    EXPECT_GT(Leftovers(), 0U);
    std::printf("%ld kills in %ld saves, %zu of them left a temporary file; seed %llu\n", kills, last, Leftovers(),
                static_cast<unsigned long long>(seed));

    XmlDocument document(L"configuration");
    EXPECT_TRUE(document.Load(m_file));
    EXPECT_TRUE(document.Save(m_file)) << "what is left over must not stand in the way";
}

}  // namespace
