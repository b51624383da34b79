// Makes one imported function of a loaded DLL fail or answer otherwise, by its entry in the DLL's import table, for as
// long as the object lives. This is how tests reach failures that no input brings about: memory that runs out, a host
// that refuses.
#pragma once

#include <windows.h>

#include <cstring>
#include <stdexcept>
#include <string>

namespace kztest {

class ImportPatch {
public:
    // importer: the DLL whose calls are redirected; symbol: the imported name as the linker knows it.
    ImportPatch(HMODULE importer, const char* symbol, void* replacement) : m_slot(FindSlot(importer, symbol))
    {
        if (!m_slot)
            throw std::runtime_error(std::string("no import of ") + symbol);
        m_original = *m_slot;
        Write(replacement);
    }
    ~ImportPatch() { Write(m_original); }
    ImportPatch(const ImportPatch&) = delete;
    ImportPatch& operator=(const ImportPatch&) = delete;

    [[nodiscard]] void* Original() const noexcept { return m_original; }

private:
    static void** FindSlot(HMODULE importer, const char* symbol)
    {
        auto* const base = reinterpret_cast<unsigned char*>(importer);
        const auto* dos = reinterpret_cast<IMAGE_DOS_HEADER*>(base);
        const auto* nt = reinterpret_cast<IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
        const auto& directory = nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
        auto* library = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + directory.VirtualAddress);
        for (; library->Name; ++library) {
            const auto* name = reinterpret_cast<IMAGE_THUNK_DATA*>(base + library->OriginalFirstThunk);
            auto* slot = reinterpret_cast<IMAGE_THUNK_DATA*>(base + library->FirstThunk);
            for (; name->u1.AddressOfData; ++name, ++slot) {
                if (IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal))
                    continue;
                const auto* entry = reinterpret_cast<IMAGE_IMPORT_BY_NAME*>(base + name->u1.AddressOfData);
                if (std::strcmp(reinterpret_cast<const char*>(entry->Name), symbol) == 0)
                    return reinterpret_cast<void**>(&slot->u1.Function);
            }
        }
        return nullptr;
    }

    void Write(void* function) const noexcept
    {
        DWORD protection = 0;
        ::VirtualProtect(m_slot, sizeof *m_slot, PAGE_READWRITE, &protection);
        *m_slot = function;
        ::VirtualProtect(m_slot, sizeof *m_slot, protection, &protection);
    }

    void** m_slot;
    void* m_original = nullptr;
};

}  // namespace kztest
