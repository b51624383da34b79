#include "NumberConventions.h"

#include <windows.h>

#include <array>

namespace {

std::wstring UserSetting(LCTYPE type, const wchar_t* otherwise)
{
    // Windows allows four characters for a separator and ten for the groups, the terminating zero included.
    std::array<wchar_t, 16> text;
    return ::GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, type, text.data(), static_cast<int>(text.size())) > 1
               ? text.data()
               : otherwise;
}

}  // namespace

NumberConventions NumberConventions::OfUser()
{
    NumberConventions user;
    user.decimalSeparator = UserSetting(LOCALE_SDECIMAL, L".");
    user.groupSeparator = UserSetting(LOCALE_STHOUSAND, L"");
    for (const wchar_t character : UserSetting(LOCALE_SGROUPING, L""))
        if (character >= L'0' && character <= L'9')
            user.groupSizes += character;
    return user;
}
