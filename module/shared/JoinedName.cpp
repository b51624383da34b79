#include "JoinedName.h"

KZBasicString JoinedName(std::initializer_list<KZBasicString> words)
{
    KZBasicString name;
    for (const KZBasicString& word : words) {
        if (!name.IsEmpty() && !word.IsEmpty())
            name += std::wstring_view(L", ");
        name += word;
    }
    return name;
}
