#include "NumberConventions.h"

#include <climits>
#include <clocale>
#include <cwchar>

namespace {

// Makes the environment's numeric conventions the calling thread's for as long as it lives. An environment that names
// an unknown locale changes nothing.
class EnvironmentLocale {
public:
    EnvironmentLocale() noexcept : m_locale(newlocale(LC_CTYPE_MASK | LC_NUMERIC_MASK, "", nullptr))
    {
        if (m_locale)
            m_previous = uselocale(m_locale);
    }
    ~EnvironmentLocale()
    {
        if (!m_locale)
            return;
        uselocale(m_previous);
        freelocale(m_locale);
    }
    EnvironmentLocale(const EnvironmentLocale&) = delete;
    EnvironmentLocale& operator=(const EnvironmentLocale&) = delete;

private:
    locale_t m_locale;
    locale_t m_previous{};
};

std::wstring Widen(const char* text)
{
    std::wstring wide;
    std::mbstate_t state{};
    wchar_t character;
    for (std::size_t used; (used = std::mbrtowc(&character, text, MB_LEN_MAX, &state)) != 0 && used < MB_LEN_MAX + 1;
         text += used)
        wide += character;
    return wide;
}

std::wstring Groups(const char* grouping)
{
    std::wstring groups;
    for (; *grouping > 0 && *grouping <= 9; ++grouping)
        groups += static_cast<wchar_t>(L'0' + *grouping);
    // A C locale repeats the last group unless CHAR_MAX follows it.
    if (!groups.empty() && *grouping == 0)
        groups += L'0';
    return groups;
}

}  // namespace

NumberConventions NumberConventions::OfUser()
{
    const EnvironmentLocale scope;
    const std::lconv& locale = *std::localeconv();
    return {Widen(locale.decimal_point), Widen(locale.thousands_sep), Groups(locale.grouping)};
}
