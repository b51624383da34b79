#include "SampleDialogs.h"

#include "window/about/AboutDialog.h"
#include "window/modules/ModulesDialog.h"

namespace editor_tests {

namespace {

std::unique_ptr<CDialog> About()
{
    return std::make_unique<AboutDialog>(nullptr, L"1.0.0.0",
                                         L"file\tKZEditor.exe\t1.0.0.0\t-\nwindows\tWindows\t10.0\t-\n");
}

std::unique_ptr<CDialog> Modules()
{
    const ModuleStatus refused{ModuleState::CannotLoad, L"KZUsrOLD.dll cannot be loaded: it is no program.",
                               L"Copy KZUsrOLD.dll again, together with the DLLs that it needs."};
    return std::make_unique<ModulesDialog>(
        nullptr,
        std::vector<ModuleRow>{{L"KZUsrOLD.dll", L"OLD", L"", refused, "cannot-load"},
                               {L"KZUsrZEP.dll", L"ZEP", L"1.0.0.0", {ModuleState::Ready, L"", L""}, "ready"}});
}

constexpr SampleDialog Samples[] = {
    {"About", About},
    {"Modules", Modules},
};

}  // namespace

std::span<const SampleDialog> SampleDialogs()
{
    return Samples;
}

}  // namespace editor_tests
