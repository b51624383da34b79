#include "PlantMessage.h"

#include "EditorText.h"

std::wstring PlantMessage(const plant::Message& message)
{
    // No text takes more; what a text does not take does no harm.
    std::vector<std::wstring> arguments = message.arguments;
    arguments.resize(4);
    return FormatEditorText(message.text, arguments[0].c_str(), arguments[1].c_str(), arguments[2].c_str(),
                            arguments[3].c_str());
}
