#include "DeviceFilter.h"

#include <algorithm>
#include <map>

#include "ChosenVariables.h"
#include "KZMainCfg.h"

namespace plant {

namespace {

// The letters of Western and Central European languages without their accents, from U+00C0 to U+017F.
constexpr std::wstring_view PlainLetters = L"aaaaaaaceeeeiiiidnooooo*ouuuuytsaaaaaaaceeeeiiiidnooooo/ouuuuyty"
                                           L"aaaaaaccccccccddddeeeeeeeeeegggggggghhhhiiiiiiiiiiiijjkkklllllll"
                                           L"lllnnnnnnnnnoooooooorrrrrrssssssssttttttuuuuuuuuuuuuwwyyyzzzzzzs";
constexpr wchar_t FirstAccented = L'\u00C0';
static_assert(PlainLetters.size() == 0x180 - 0xC0);

constexpr bool IsMark(wchar_t c) noexcept
{
    return c >= 0x300 && c <= 0x36F;
}

// Of Greek and Cyrillic.
constexpr wchar_t SmallLetter(wchar_t c) noexcept
{
    if ((c >= 0x391 && c <= 0x3A9) || (c >= 0x410 && c <= 0x42F))
        return static_cast<wchar_t>(c + 0x20);
    return c >= 0x400 && c <= 0x40F ? static_cast<wchar_t>(c + 0x50) : c;
}

std::vector<std::wstring> WordsIn(std::wstring_view text)
{
    std::vector<std::wstring> words;
    std::wstring word;
    for (const wchar_t letter : Folded(text) + L" ") {
        if (letter != L' ' && letter != L'\t') {
            word += letter;
        } else if (!word.empty()) {
            words.push_back(std::move(word));
            word.clear();
        }
    }
    return words;
}

}  // namespace

std::wstring Folded(std::wstring_view text)
{
    std::wstring folded;
    folded.reserve(text.size());
    for (const wchar_t c : text) {
        const auto accented = static_cast<std::size_t>(c - FirstAccented);
        if (c < FirstAccented)
            folded += c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c - L'A' + L'a') : c;
        else if (accented < PlainLetters.size())
            folded += PlainLetters[accented];
        else if (!IsMark(c))
            folded += SmallLetter(c);
    }
    return folded;
}

DeviceFilter::DeviceFilter(const Project& project, MoreWords more) : m_project(project), m_more(std::move(more)) {}

void DeviceFilter::Refresh()
{
    m_words.clear();
}

void DeviceFilter::Refresh(const ProjectChange& change)
{
    if (change.isAll || change.isListChanged) {
        Refresh();
        return;
    }
    for (std::size_t device = 0; device < m_words.size(); ++device) {
        const KZBasicString& driverId = m_project.Devices()[device].driverId;
        if (std::find(change.driverIds.begin(), change.driverIds.end(), driverId) == change.driverIds.end())
            continue;
        std::wstring variables;
        for (const KZBasicString& variable : ChosenVariables(*KZMainCfg::Get(), driverId))
            variables.append(L"\n").append(variable.View());
        m_words[device] = WordsOf(device, variables);
    }
}

std::wstring DeviceFilter::WordsOf(std::size_t device, std::wstring_view variables) const
{
    const KZDeviceIdentity& identity = m_project.Devices()[device];
    std::wstring words = std::to_wstring(identity.number);
    for (const std::wstring_view text : {identity.name.View(), identity.description.View(), identity.typeName.View()})
        words.append(L"\n").append(text);
    if (m_more)
        words.append(L"\n").append(m_more(device));
    return Folded(words.append(L"\n").append(variables));
}

// The texts of all devices are read when somebody looks for the first time.
void DeviceFilter::ReadWords() const
{
    std::map<KZBasicString, std::wstring_view> variables;
    ForEachChoice(*KZMainCfg::Get(), [&variables](const KZBasicString& driverId, std::wstring_view lines) {
        variables.emplace(driverId, lines);
    });
    std::vector<std::wstring> words;
    for (std::size_t device = 0; device < m_project.Devices().size(); ++device) {
        const auto chosen = variables.find(m_project.Devices()[device].driverId);
        words.push_back(WordsOf(device, chosen == variables.end() ? std::wstring_view() : chosen->second));
    }
    m_words = std::move(words);
}

std::vector<std::size_t> DeviceFilter::Matching(std::wstring_view text) const
{
    const std::vector<std::wstring> wanted = WordsIn(text);
    if (!wanted.empty() && m_words.empty())
        ReadWords();
    std::vector<std::size_t> matching;
    for (std::size_t device = 0; device < m_project.Devices().size(); ++device) {
        const auto holds = [&](const std::wstring& word) { return m_words[device].find(word) != std::wstring::npos; };
        if (std::all_of(wanted.begin(), wanted.end(), holds))
            matching.push_back(device);
    }
    return matching;
}

}  // namespace plant
