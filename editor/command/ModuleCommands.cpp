#include "ModuleCommands.h"

#include "Console.h"
#include "KZUtf8.h"
#include "modules/DeviceType.h"
#include "modules/ModuleLoader.h"
#include "modules/PeFile.h"

namespace {

// The words are for programs, the same in every language.
const char* StateWord(ModuleState state) noexcept
{
    constexpr const char* words[] = {"ready", "missing", "cannot-load", "wrong-architecture", "no-entry", "refused"};
    return words[static_cast<std::size_t>(state)];
}

void PrintModule(const std::wstring& file, const std::wstring& model, const std::wstring& version,
                 const ModuleStatus& status)
{
    const auto orDash = [](const std::wstring& text) { return text.empty() ? "-" : ToUtf8(text); };
    PrintRow({ToUtf8(file), ToUtf8(model), orDash(version), StateWord(status.state), orDash(status.reason)});
}

}  // namespace

ExitStatus ListModules(const Arguments&)
{
    const ModuleLoader modules(ProgramFolder());
    for (const Module& module : modules.Modules()) {
        const KZBasicString model = module.Model().c_str();
        // A module that starts may still have registered nothing for its devices.
        const ModuleStatus status = FindDeviceType(model.View()) ? modules.StatusOf(model) : module.Status();
        PrintModule(module.File().filename().wstring(), module.Model(), FileVersion(module.File()), status);
    }
    for (const DeviceType& type : DeviceTypes()) {
        if (const ModuleStatus status = modules.StatusOf(type.name); status.state == ModuleState::Missing)
            PrintModule(ModuleFileName(type.name), type.name, {}, status);
    }
    return ExitTrue;
}
