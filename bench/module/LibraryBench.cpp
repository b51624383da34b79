// How large the libraries are, and what loading the module costs once the host is there.
#include <afxwin.h>

#include <filesystem>
#include <stdexcept>
#include <string>

#include "KZQuorvelantaSetup.h"
#include "Report.h"

namespace {

namespace fs = std::filesystem;

CWinApp application;

// A library that is loaded for the length of a scope.
class Library {
public:
    explicit Library(const wchar_t* name) : m_module(::LoadLibraryW(name))
    {
        if (!m_module)
            throw std::runtime_error("a library cannot be loaded");
    }
    ~Library() { ::FreeLibrary(m_module); }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    [[nodiscard]] fs::path File() const
    {
        wchar_t path[MAX_PATH];
        return std::wstring(path, ::GetModuleFileNameW(m_module, path, MAX_PATH));
    }

private:
    HMODULE m_module;
};

struct LibrarySize {
    const wchar_t* file;
    const char* shown;
    double limit;  // in KB, 0 for none
};

constexpr LibrarySize Sizes[] = {
    {L"KZUsrZEP.dll", "KZUsrZEP.dll", 400}, {L"KZHost.dll", "KZHost.dll", 0}, {L"KZMfc.dll", "KZMfc.dll", 0}};

}  // namespace

int main()
{
    kzbench::Report report;
    // The host stays loaded throughout, as it does while an editor runs.
    kzbench::Keep(KZQuorvelantaSetup::Get());
    for (const LibrarySize& size : Sizes) {
        const auto bytes = static_cast<double>(fs::file_size(Library(size.file).File()));
        report.Add(kzbench::Quantity{std::string("size of ") + size.shown, kzbench::Kilobytes(bytes), "", "",
                                     size.limit > 0 ? "≤ " + kzbench::Kilobytes(size.limit * 1024) : "",
                                     size.limit == 0 || bytes <= size.limit * 1024});
    }
    report.Add({"load and free KZUsrZEP.dll", "an empty DLL of its size", {}},
               kzbench::RunInTurn([] { Library(L"KZUsrZEP.dll"); }, [] { Library(L"KZEmpty.dll"); }));
    return report.ExitCode();
}
