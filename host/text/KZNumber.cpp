#include "KZNumber.h"

#include "NumberText.h"

void FormatNumber(KZBasicString& text, double value, int decimals, bool exact)
{
    std::wstring shown;
    WriteNumber(shown, value, decimals, exact, NumberConventions::OfUser());
    text.Assign(shown);
}

void UnformatNumber(const KZBasicString& text, KZBasicString& out)
{
    out = KZBasicString(PlainNumber(text.View(), NumberConventions::OfUser(), CLibraryDecimalSeparator()));
}

bool IsValidNumber(const KZBasicString& text, int decimals)
{
    return IsNumber(text.View(), decimals, NumberConventions::OfUser());
}
