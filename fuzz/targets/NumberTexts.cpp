// The input's lines: the user's conventions (a name of the table below), a number of decimals, a number as strtod reads
// it, and a text that may be a number.
#include <cmath>
#include <cstdlib>
#include <cwchar>

#include "Fuzzing.h"
#include "KZNumber.h"
#include "NumberText.h"

namespace {

using fuzzing::Require;

struct NamedConventions {
    std::string_view name;
    NumberConventions conventions;
};

const NamedConventions KnownConventions[] = {
    {"english", {L".", L",", L"30"}},    {"spanish", {L",", L".", L"30"}}, {"french", {L",", L"\u202F", L"30"}},
    {"swiss", {L".", L"\u2019", L"30"}}, {"indian", {L".", L",", L"320"}}, {"ungrouped", {L",", L"", L""}},
    {"one group", {L".", L",", L"3"}},   {"same", {L".", L".", L"30"}},    {"long", {L"::", L"''", L"30"}},
};

const NumberConventions& ConventionsOf(std::string_view name)
{
    for (const auto& known : KnownConventions)
        if (known.name == name)
            return known.conventions;
    return KnownConventions[0].conventions;
}

// Reads a plain text; false when something is left over.
bool ReadPlain(const std::wstring& plain, double& value)
{
    wchar_t* end = nullptr;
    value = std::wcstod(plain.c_str(), &end);
    return end != plain.c_str() && *end == L'\0';
}

void CheckText(const std::wstring& text, int decimals, const NumberConventions& user)
{
    if (!IsNumber(text, decimals, user))
        return;
    Require(IsNumber(text, -1, user), "a number with few enough decimals is one with any number of them");
    const std::wstring plain = PlainNumber(text, user, L'.');
    double value = 0.0;
    Require(ReadPlain(plain, value), "the C library reads a valid number whole");
    Require(std::isfinite(value), "a valid number is within range");
    Require(plain.find_first_not_of(L"+-.0123456789") == std::wstring::npos, "a plain number has nothing else in it");
    const std::size_t point = plain.find(L'.');
    Require(decimals < 0 || point == std::wstring::npos || plain.size() - point - 1 <= static_cast<unsigned>(decimals),
            "a valid number has no more decimals than asked for");
}

void CheckValue(double value, int decimals, bool exact, const NumberConventions& user)
{
    std::wstring shown = L"left over";
    WriteNumber(shown, value, decimals, exact, user);
    Require(shown.empty() == !std::isfinite(value), "every number but infinities and NaN is shown");
    if (shown.empty())
        return;
    Require(IsNumber(shown, -1, user), "what is shown is a number");
    double read = 0.0;
    Require(ReadPlain(PlainNumber(shown, user, L'.'), read), "what is shown is read back");
    Require(!exact || read == value, "the very value comes back");
    std::wstring again;
    WriteNumber(again, read, decimals, exact, user);
    Require(again == shown, "what was read back is shown the same");
}

void CheckUsersOwn(double value)
{
    KZBasicString shown;
    FormatNumber(shown, value, -3, true);
    Require(IsValidNumber(shown, -1) == std::isfinite(value), "what the user is shown, the user may enter");
    UnformatNumber(shown, shown);
    Require(!std::isfinite(value) || std::wcstod(shown.c_str(), nullptr) == value,
            "opening and closing a dialog changes no number");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzzing::Input input(data, size);
    const NumberConventions& user = ConventionsOf(input.TakeLine());
    const int decimals = fuzzing::Integer(input.TakeLine(), -120, 120);
    const double value = std::strtod(std::string(input.TakeLine()).c_str(), nullptr);
    CheckText(fuzzing::Wide(input.Rest()), decimals, user);
    CheckValue(value, decimals, false, user);
    CheckValue(value, decimals, true, user);
    CheckUsersOwn(value);
    return 0;
}
