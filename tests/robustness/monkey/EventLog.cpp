#include "EventLog.h"

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "Endurance.h"
#include "TestApp.h"

namespace {

constexpr long ToldEvery = 10'000;  // events between two words of progress

// A fault in the system's own libraries, which a vectored handler cannot tell from one that they expect.
LONG WINAPI DescribeUnhandled(EXCEPTION_POINTERS* pointers)
{
    std::fprintf(stderr, "unhandled exception %08lx at %p\n", pointers->ExceptionRecord->ExceptionCode,
                 pointers->ExceptionRecord->ExceptionAddress);
    EventLog::DescribeCurrent();
    std::fflush(nullptr);
    return EXCEPTION_EXECUTE_HANDLER;
}

}  // namespace

EventLog::EventLog(std::uint64_t seed) : m_seed(seed), m_since(Now()), m_watchdog([this] { Watch(); })
{
    s_current = this;
    kztest::SetCrashNote(&EventLog::DescribeCurrent);
    ::SetUnhandledExceptionFilter(&DescribeUnhandled);
}

EventLog::~EventLog()
{
    kztest::SetCrashNote(nullptr);
    s_current = nullptr;
    m_ended = true;
    m_watchdog.join();
}

void EventLog::Add(const char* what, int control, long long value) noexcept
{
    const long now = Now();
    m_slowest = std::max(m_slowest, now - m_since);
    Event& event = m_events[static_cast<std::size_t>(m_count) % Remembered];
    std::snprintf(event.what, sizeof event.what, "%s", what);
    event.control = control;
    event.value = value;
    m_since = now;
    if (++m_count % ToldEvery == 0) {
        std::printf("%ld events\n", m_count.load());
        std::fflush(stdout);
    }
}

std::string EventLog::Describe() const
{
    std::string text =
        "KZ_ENDURE_SEED=" + std::to_string(m_seed) + ", event " + std::to_string(m_count) + "; the last:";
    const long count = m_count;
    for (long index = std::max(0L, count - static_cast<long>(Remembered)); index < count; ++index) {
        const Event& event = m_events[static_cast<std::size_t>(index) % Remembered];
        text += "\n  " + std::to_string(index) + ": " + event.what + ", control " + std::to_string(event.control) +
                ", " + std::to_string(event.value);
    }
    return text;
}

void EventLog::DescribeCurrent() noexcept
{
    if (s_current)
        std::fprintf(stderr, "%s\n", s_current->Describe().c_str());
}

// A long run has other work beside it, and may have to give way to it.
void EventLog::Watch() noexcept
{
    constexpr DWORD Interval = 100;  // milliseconds
    const long hangMilliseconds = endurance::IsLong() ? 60'000 : 5'000;
    while (!m_ended) {
        ::Sleep(Interval);
        if (Now() - m_since < hangMilliseconds)
            continue;
        char what[80];
        std::snprintf(what, sizeof what, "hang: an event has taken %ld ms", Now() - m_since);
        GiveUp(what);
    }
}

void EventLog::GiveUp(const char* what) const noexcept
{
    std::fprintf(stderr, "%s\n%s\n", what, Describe().c_str());
    std::fflush(nullptr);
    ::TerminateProcess(::GetCurrentProcess(), GivenUpExitCode);
    std::abort();  // not reached: tells the compiler
}

long EventLog::Now() noexcept
{
    return static_cast<long>(::GetTickCount64() & 0x7FFFFFFF);
}
