// The last events of a random run, and a watchdog that ends a process in which one of them does not end.
//
// What goes wrong is reported with the seed, which brings the same events again, and the events that led there.
#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <string>
#include <thread>

class EventLog {
public:
    static constexpr int GivenUpExitCode = 98;

    explicit EventLog(std::uint64_t seed);
    ~EventLog();
    EventLog(const EventLog&) = delete;
    EventLog& operator=(const EventLog&) = delete;

    // An event is about to happen; what says which, in at most 79 characters.
    void Add(const char* what, int control = 0, long long value = 0) noexcept;
    [[nodiscard]] long Count() const noexcept { return m_count; }
    // The longest time that an event took until the next, in milliseconds.
    [[nodiscard]] long SlowestMilliseconds() const noexcept { return m_slowest; }
    // The seed and the last events.
    [[nodiscard]] std::string Describe() const;
    // Writes that down before a crash ends the process.
    static void DescribeCurrent() noexcept;
    // Writes it down with what went wrong and ends the process, for a run that cannot go on.
    [[noreturn]] void GiveUp(const char* what) const noexcept;

private:
    static constexpr std::size_t Remembered = 40;
    struct Event {
        char what[80];
        int control;
        long long value;
    };
    void Watch() noexcept;
    [[nodiscard]] static long Now() noexcept;

    static inline const EventLog* s_current = nullptr;
    std::uint64_t m_seed;
    std::array<Event, Remembered> m_events{};
    std::atomic<long> m_count = 0;
    std::atomic<long> m_since;
    std::atomic<bool> m_ended = false;
    long m_slowest = 0;
    std::thread m_watchdog;
};
