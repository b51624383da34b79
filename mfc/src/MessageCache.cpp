#include "MessageCache.h"

#include <atomic>
#include <cstdint>

namespace {

std::atomic<unsigned> generation = 0;

const AFX_MSGMAP_ENTRY* FindInMaps(const AFX_MSGMAP* map, UINT message) noexcept
{
    while (map) {
        if (const AFX_MSGMAP_ENTRY* entry = FindInTable(map->lpEntries, message, 0, 0))
            return entry;
        map = map->pfnGetBaseMap ? map->pfnGetBaseMap() : nullptr;
    }
    return nullptr;
}

}  // namespace

const AFX_MSGMAP_ENTRY* FindInTable(const AFX_MSGMAP_ENTRY* entries, UINT message, UINT code, UINT id) noexcept
{
    for (const AFX_MSGMAP_ENTRY* entry = entries; entry->pfn; ++entry) {
        if (entry->nMessage == message && entry->nCode == code && id >= entry->nID && id <= entry->nLastID)
            return entry;
    }
    return nullptr;
}

const AFX_MSGMAP_ENTRY* MessageCache::Find(const AFX_MSGMAP* map, UINT message) noexcept
{
    if (const unsigned now = generation.load(std::memory_order_acquire); now != m_generation) {
        m_slots.fill({});
        m_generation = now;
    }
    Slot& slot = m_slots[(reinterpret_cast<std::uintptr_t>(map) / sizeof(AFX_MSGMAP) ^ message) % Size];
    if (slot.map != map || slot.message != message)
        slot = {map, message, FindInMaps(map, message)};
    return slot.entry;
}

void MessageCache::ForgetAll() noexcept
{
    generation.fetch_add(1, std::memory_order_release);
}
