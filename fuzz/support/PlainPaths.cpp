#include "PlainPaths.h"

#include <optional>
#include <vector>

#include "DocumentTree.h"

namespace fuzzing {
namespace {

struct Step {
    std::wstring name;
    bool hasCondition = false;
    std::wstring value;
    std::wstring text;
};

// Where a step ends: at a "/", which inside a condition counts only behind the "?" that closes it.
std::size_t EndOfStep(const std::wstring& path)
{
    const std::size_t slash = path.find(L'/');
    const std::size_t condition = path.find(L'?');
    if (condition == std::wstring::npos || slash < condition)
        return slash;
    const std::size_t text = path.find(L'=', condition);
    return text == std::wstring::npos || path.find_first_of(L"/?", condition + 1) < text ? slash
           : path.find(L"?/", text + 1) == std::wstring::npos                            ? std::wstring::npos
                                                              : path.find(L"?/", text + 1) + 1;
}

std::optional<Step> ReadStep(const std::wstring& text)
{
    const std::size_t condition = text.find(L'?');
    if (condition == std::wstring::npos)
        return text.empty() ? std::nullopt : std::optional(Step{text, false, {}, {}});
    const std::size_t equals = text.find(L'=', condition);
    const bool closed = equals != std::wstring::npos && text.size() > equals + 1 && text.back() == L'?';
    if (condition == 0 || !closed || equals == condition + 1)
        return std::nullopt;
    Step step{text.substr(0, condition), true, text.substr(condition + 1, equals - condition - 1),
              text.substr(equals + 1, text.size() - equals - 2)};
    if (step.value.find_first_of(L"/?") != std::wstring::npos)
        return std::nullopt;
    return step;
}

std::optional<std::vector<Step>> ReadPath(std::wstring path)
{
    std::vector<Step> steps;
    for (;;) {
        const std::size_t end = EndOfStep(path);
        const auto step = ReadStep(path.substr(0, end));
        if (!step)
            return std::nullopt;
        steps.push_back(*step);
        if (end == std::wstring::npos)
            return steps;
        path.erase(0, end + 1);
    }
}

bool Fits(pugi::xml_node element, const Step& step)
{
    if (!step.hasCondition)
        return true;
    const pugi::xml_node value = ChildElement(element, step.value.c_str());
    return value && value.child_value() == step.text;
}

pugi::xml_node FirstFitting(pugi::xml_node parent, const Step& step)
{
    for (const pugi::xml_node child : parent.children(step.name.c_str()))
        if (child.type() == pugi::node_element && Fits(child, step))
            return child;
    return {};
}

}  // namespace

pugi::xml_node FollowPath(pugi::xml_node from, const std::wstring& path)
{
    const auto steps = ReadPath(path);
    if (!steps)
        return {};
    for (const Step& step : *steps)
        from = FirstFitting(from, step);
    return from;
}

}  // namespace fuzzing
