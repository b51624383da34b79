// Watches a DLL's operator new and delete: makes chosen allocations fail, and knows what has not been given back.
#pragma once

#include <windows.h>

#include <cstddef>
#include <functional>
#include <new>
#include <set>
#include <utility>

#include "ImportPatch.h"

namespace kztest {

class FaultyMemory {
public:
    // fails(size) is asked for each allocation that the DLL makes; true makes it throw std::bad_alloc. It may also
    // throw by itself what MFC's operator new throws.
    FaultyMemory(HMODULE module, std::function<bool(std::size_t)> fails)
        : m_new(module, "_Znwy", reinterpret_cast<void*>(New)),
          m_delete(module, "_ZdlPvy", reinterpret_cast<void*>(Delete))
    {
        s_fails = std::move(fails);
        s_live.clear();
    }
    ~FaultyMemory() { s_fails = nullptr; }
    FaultyMemory(const FaultyMemory&) = delete;
    FaultyMemory& operator=(const FaultyMemory&) = delete;

    // How many allocations the DLL itself has not given back.
    [[nodiscard]] static std::size_t Live() { return s_live.size(); }

private:
    static void* New(std::size_t size)
    {
        if (s_fails && s_fails(size))
            throw std::bad_alloc();
        void* const memory = ::operator new(size);
        s_live.insert(memory);
        return memory;
    }
    static void Delete(void* memory, std::size_t)
    {
        s_live.erase(memory);
        ::operator delete(memory);
    }

    static inline std::function<bool(std::size_t)> s_fails;
    static inline std::set<void*> s_live;
    ImportPatch m_new;
    ImportPatch m_delete;
};

}  // namespace kztest
