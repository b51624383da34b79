#include <sys/wait.h>

#include <chrono>
#include <csignal>
#include <stdexcept>
#include <thread>
#include <unistd.h>

#include "Workers.h"

namespace crash {

namespace {

[[noreturn]] void Work(const Worker& worker, const std::filesystem::path& place, long last, int output)
{
    const Report report = [output](long number) {
        if (::write(output, &number, sizeof number) != sizeof number)
            ::_exit(EXIT_FAILURE);
    };
    try {
        report(last);
        worker.work(place, last, report);
    } catch (...) {
        // As its return: a worker ends by itself only when it fails.
    }
    ::_exit(EXIT_FAILURE);
}

bool TakeReport(int reports, long& number)
{
    return ::read(reports, &number, sizeof number) == sizeof number;
}

}  // namespace

long WorkAndDie(const Worker& worker, const std::filesystem::path& place, long last, int microseconds)
{
    int ends[2];
    if (::pipe(ends) != 0)
        throw std::runtime_error("no pipe");
    const auto [reports, output] = ends;
    const pid_t process = ::fork();
    if (process == 0)
        Work(worker, place, last, output);
    ::close(output);
    const bool hasBegun = process > 0 && TakeReport(reports, last);
    if (hasBegun)
        std::this_thread::sleep_for(std::chrono::microseconds(microseconds));
    int status = 0;
    if (process > 0) {
        ::kill(process, SIGKILL);
        ::waitpid(process, &status, 0);
    }
    while (TakeReport(reports, last)) {
    }
    ::close(reports);
    if (!hasBegun || !WIFSIGNALED(status))
        throw std::runtime_error(hasBegun ? "the worker has ended by itself" : "the worker has not begun");
    return last;
}

}  // namespace crash
