// The objects of a class that are at work, for callbacks of the system that hand over no object. Each library that
// links this has a list of its own. Used on the user-interface thread alone.
#pragma once

#include <utility>

template <class Class>
class Enlisted {
public:
    Enlisted(const Enlisted&) = delete;
    Enlisted& operator=(const Enlisted&) = delete;

protected:
    Enlisted() noexcept = default;
    ~Enlisted() { Leave(); }

    void Enlist() noexcept
    {
        Leave();
        m_next = std::exchange(s_first, this);
        m_isIn = true;
    }
    void Leave() noexcept
    {
        for (Enlisted** place = &s_first; m_isIn && *place; place = &(*place)->m_next) {
            if (*place == this) {
                *place = m_next;
                break;
            }
        }
        m_isIn = false;
    }

    // The one that came last and fits; null when there is none.
    template <class Condition>
    [[nodiscard]] static Class* Find(Condition fits) noexcept
    {
        for (Enlisted* entry = s_first; entry; entry = entry->m_next) {
            if (auto& object = static_cast<Class&>(*entry); fits(object))
                return &object;
        }
        return nullptr;
    }

private:
    inline static Enlisted* s_first = nullptr;
    Enlisted* m_next = nullptr;
    bool m_isIn = false;
};
