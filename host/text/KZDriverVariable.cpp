#include "KZDriverVariable.h"

bool SplitDriverVariable(const KZBasicString& fullName, KZBasicString& device, KZBasicString& variable, bool atFirstDot)
{
    const std::wstring_view name = fullName.View();
    const std::size_t dot = atFirstDot ? name.find(L'.') : name.rfind(L'.');
    const bool split = dot != std::wstring_view::npos;
    const std::wstring_view devicePart = split ? name.substr(0, dot) : std::wstring_view();
    const std::wstring_view variablePart = split ? name.substr(dot + 1) : name;

    // The caller may take one part back into the string that is being split: that one is written last.
    if (&device == &fullName) {
        variable.Assign(variablePart);
        device.Assign(devicePart);
    } else {
        device.Assign(devicePart);
        variable.Assign(variablePart);
    }
    return split;
}
