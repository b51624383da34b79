// The objects of one kind of handle in one thread: attached ones by pointer, temporary ones owned.
#pragma once

#include <concepts>
#include <memory>
#include <unordered_map>

// Handle is the object's public handle member, such as &CWnd::m_hWnd.
template <class Object, auto Handle>
class HandleMap {
public:
    using HandleType = std::remove_reference_t<decltype(std::declval<Object>().*Handle)>;

    HandleMap() = default;
    ~HandleMap() { DeleteTemporaries(); }
    HandleMap(const HandleMap&) = delete;
    HandleMap& operator=(const HandleMap&) = delete;

    [[nodiscard]] Object* LookupPermanent(HandleType handle) const noexcept
    {
        const auto found = m_permanent.find(handle);
        return found == m_permanent.end() ? nullptr : found->second;
    }

    // The attached object or a temporary one of class Wanted; null for null.
    template <std::derived_from<Object> Wanted = Object>
    Wanted* FromHandle(HandleType handle)
    {
        if (!handle)
            return nullptr;
        if (auto* permanent = dynamic_cast<Wanted*>(LookupPermanent(handle)))
            return permanent;
        std::unique_ptr<Object>& slot = m_temporary[handle];
        auto* temporary = dynamic_cast<Wanted*>(slot.get());
        if (!temporary) {
            // The system gives the numbers of deleted objects away again, to other kinds too.
            Release(slot);
            temporary = new Wanted;
            slot.reset(temporary);
        }
        // Again: one that has destroyed what it stood for has let go of the number.
        temporary->*Handle = handle;
        return temporary;
    }

    // Takes the place of an object that the handle was attached to: a number may have been given away again.
    void SetPermanent(HandleType handle, Object* object) { m_permanent.insert_or_assign(handle, object); }
    void Remove(HandleType handle) noexcept { m_permanent.erase(handle); }

    void DeleteTemporaries() noexcept
    {
        for (auto& [handle, object] : m_temporary)
            Release(object);
        m_temporary.clear();
    }

    [[nodiscard]] std::size_t TemporaryCount() const noexcept { return m_temporary.size(); }

private:
    // What a temporary object stands for is not its own to destroy.
    static void Release(std::unique_ptr<Object>& object) noexcept
    {
        if (object)
            (*object).*Handle = HandleType{};
        object.reset();
    }

    std::unordered_map<HandleType, Object*> m_permanent;
    std::unordered_map<HandleType, std::unique_ptr<Object>> m_temporary;
};
