#include "PlantMessage.h"

#include "EditorText.h"
#include "KZLoadString.h"

namespace {

std::wstring HostMessage(const plant::Message& message)
{
    std::vector<int> numbers = message.numbers;
    numbers.resize(2);
    return KZBasicString::Format(KZLoadString(message.text).c_str(), numbers[0], numbers[1]).c_str();
}

}  // namespace

std::wstring PlantMessage(const plant::Message& message)
{
    if (!plant::IsPlantText(message.text))
        return HostMessage(message);
    // No text takes more; what a text does not take does no harm.
    std::vector<std::wstring> arguments = message.arguments;
    arguments.resize(4);
    return FormatEditorText(message.text, arguments[0].c_str(), arguments[1].c_str(), arguments[2].c_str(),
                            arguments[3].c_str());
}
