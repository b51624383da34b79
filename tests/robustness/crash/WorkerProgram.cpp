// Does one of the workers' work: PROGRAM WORKER PLACE NUMBER. It reports to its standard output, each number in its
// bytes, the one that it was given first.
#include <windows.h>

#include <cstdlib>
#include <string>

#include "Workers.h"

int wmain(int count, wchar_t** arguments)
{
    constexpr int Failed = 3;
    if (count != 4)
        return Failed;
    const crash::Report report = [output = ::GetStdHandle(STD_OUTPUT_HANDLE)](long number) {
        DWORD written;
        ::WriteFile(output, &number, sizeof number, &written, nullptr);
    };
    const std::wstring name = arguments[1];
    const long last = std::wcstol(arguments[3], nullptr, 10);
    for (const crash::Worker* worker : crash::AllWorkers) {
        if (name == std::wstring(worker->name, worker->name + std::char_traits<char>::length(worker->name))) {
            report(last);
            worker->work(arguments[2], last, report);
        }
    }
    return Failed;
}
