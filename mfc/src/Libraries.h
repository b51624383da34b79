// The chain of extension libraries.
#pragma once

#include <afxdll_.h>

#include <mutex>

class Libraries {
public:
    static Libraries& Instance() noexcept;

    // The newest library comes first.
    void Add(CDynLinkLibrary& library) noexcept;
    void Remove(const CDynLinkLibrary& library) noexcept;
    // Destroys the libraries of a module, or all of them.
    void Destroy(HMODULE module, bool all) noexcept;

    // The first library that the predicate accepts, or null.
    template <class Predicate>
    const CDynLinkLibrary* FindFirst(Predicate accepts)
    {
        const std::lock_guard guard(m_lock);
        const CDynLinkLibrary* library = m_first;
        while (library && !accepts(*library))
            library = library->m_pNextDLL;
        return library;
    }

private:
    CDynLinkLibrary* FirstOf(HMODULE module, bool any) noexcept;

    std::mutex m_lock;
    CDynLinkLibrary* m_first = nullptr;
};
