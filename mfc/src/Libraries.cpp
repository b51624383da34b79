#include "Libraries.h"

Libraries& Libraries::Instance() noexcept
{
    static Libraries instance;
    return instance;
}

void Libraries::Add(CDynLinkLibrary& library) noexcept
{
    const std::lock_guard guard(m_lock);
    library.m_pNextDLL = m_first;
    m_first = &library;
}

void Libraries::Remove(const CDynLinkLibrary& library) noexcept
{
    const std::lock_guard guard(m_lock);
    for (CDynLinkLibrary** link = &m_first; *link; link = &(*link)->m_pNextDLL) {
        if (*link == &library) {
            *link = library.m_pNextDLL;
            return;
        }
    }
}

CDynLinkLibrary* Libraries::FirstOf(HMODULE module, bool any) noexcept
{
    const std::lock_guard guard(m_lock);
    CDynLinkLibrary* library = m_first;
    while (library && !any && library->m_hModule != module)
        library = library->m_pNextDLL;
    return library;
}

void Libraries::Destroy(HMODULE module, bool all) noexcept
{
    // Each takes itself off the chain.
    while (CDynLinkLibrary* library = FirstOf(module, all))
        delete library;
}
