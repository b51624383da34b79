#include "EditorSettings.h"

#include <algorithm>
#include <array>
#include <sstream>

#include "KZXmlDocument.h"
#include "text/EditorText.h"

namespace {

constexpr const wchar_t* Root = L"settings";
constexpr const wchar_t* RecentList = L"recent";
constexpr const wchar_t* RecentProject = L"project";
constexpr const wchar_t* Folder = L"folder";

struct LanguageName {
    KZLanguage language;
    const wchar_t* name;
};
constexpr LanguageName LanguageNames[] = {{KZLanguage::English, L"en"}, {KZLanguage::Spanish, L"es"}};

struct PlaceName {
    LONG RECT::*edge;
    const wchar_t* name;
};
constexpr PlaceName PlaceNames[] = {
    {&RECT::left, L"left"}, {&RECT::top, L"top"}, {&RECT::right, L"right"}, {&RECT::bottom, L"bottom"}};

std::wstring Variable(const wchar_t* name)
{
    std::array<wchar_t, MAX_PATH> value{};
    const DWORD length = ::GetEnvironmentVariableW(name, value.data(), static_cast<DWORD>(value.size()));
    return length < value.size() ? std::wstring(value.data(), length) : std::wstring();
}

int Number(const XmlDocument::XmlNode& node, const wchar_t* name)
{
    return static_cast<int>(std::wcstol(node.Value(name, L"0"), nullptr, 10));
}

// A width that somebody could see and drag.
constexpr int SmallestWidth = 4;
constexpr int LargestWidth = 4000;

std::vector<int> WidthsIn(const XmlDocument::XmlNode& root, const wchar_t* name)
{
    std::vector<int> widths;
    std::wistringstream text(root.Value(name, L""));
    for (int width = 0; text >> width;)
        widths.push_back(std::clamp(width, SmallestWidth, LargestWidth));
    return widths;
}

std::wstring WidthsText(const std::vector<int>& widths)
{
    std::wstring text;
    for (const int width : widths)
        text.append(text.empty() ? L"" : L" ").append(std::to_wstring(width));
    return text;
}

std::optional<RECT> PlaceIn(const XmlDocument::XmlNode& root)
{
    RECT place{};
    for (const PlaceName& side : PlaceNames)
        place.*side.edge = Number(root, side.name);
    return place.right > place.left && place.bottom > place.top ? std::optional(place) : std::nullopt;
}

EditorSettings SettingsIn(const XmlDocument::XmlNode& root)
{
    EditorSettings settings;
    settings.lastProject = root.Value(L"lastProject", L"");
    settings.place = PlaceIn(root);
    settings.isMaximized = Number(root, L"maximized") != 0;
    settings.listShare = Number(root, L"listShare");
    settings.findingsShare = Number(root, L"findingsShare");
    settings.deviceColumns = WidthsIn(root, L"deviceColumns");
    settings.findingColumns = WidthsIn(root, L"findingColumns");
    const std::wstring_view language = root.Value(L"language", L"");
    for (const LanguageName& known : LanguageNames)
        if (language == known.name)
            settings.language = known.language;
    const XmlDocument::XmlNode* const list = root.FirstChild(RecentList);
    const XmlDocument::XmlNode* project = list ? list->FirstChild(RecentProject) : nullptr;
    for (; project && settings.recent.size() < EditorSettings::MostRecent;
         project = project->NextSibling(RecentProject))
        if (const wchar_t* folder = project->Value(Folder, L""); *folder)
            settings.recent.emplace_back(folder);
    return settings;
}

void Write(const EditorSettings& settings, XmlDocument::XmlNode& root)
{
    root.SetValue(L"lastProject", settings.lastProject.c_str());
    if (settings.place)
        for (const PlaceName& side : PlaceNames)
            root.SetValue(side.name, static_cast<int>((*settings.place).*side.edge));
    root.SetValue(L"maximized", settings.isMaximized ? 1 : 0);
    root.SetValue(L"listShare", settings.listShare);
    root.SetValue(L"findingsShare", settings.findingsShare);
    root.SetValue(L"deviceColumns", WidthsText(settings.deviceColumns).c_str());
    root.SetValue(L"findingColumns", WidthsText(settings.findingColumns).c_str());
    for (const LanguageName& known : LanguageNames)
        if (settings.language == known.language)
            root.SetValue(L"language", known.name);
    XmlDocument::XmlNode* const list = root.NewChild(RecentList, nullptr);
    for (const std::wstring& folder : settings.recent)
        list->NewChild(RecentProject, nullptr)->SetValue(Folder, folder.c_str());
}

}  // namespace

bool operator==(const EditorSettings& one, const EditorSettings& other) noexcept
{
    return one.recent == other.recent && one.lastProject == other.lastProject && one.language == other.language &&
           one.place.has_value() == other.place.has_value() &&
           (!one.place || ::EqualRect(&*one.place, &*other.place)) && one.isMaximized == other.isMaximized &&
           one.listShare == other.listShare && one.findingsShare == other.findingsShare &&
           one.deviceColumns == other.deviceColumns && one.findingColumns == other.findingColumns;
}

void EditorSettings::Remember(const std::wstring& folder)
{
    std::erase(recent, folder);
    recent.insert(recent.begin(), folder);
    recent.resize(std::min(recent.size(), MostRecent));
    lastProject = folder;
}

void EditorSettings::Forget(std::size_t index)
{
    recent.erase(recent.begin() + static_cast<std::ptrdiff_t>(index));
}

SettingsFile::SettingsFile(std::filesystem::path file) : m_file(std::move(file))
{
    XmlDocument document(Root);
    if (document.Load(m_file))
        settings = SettingsIn(*document.Root());
    m_stored = settings;
}

std::filesystem::path SettingsFile::OfTheUser()
{
    if (const std::wstring named = Variable(L"KZ_SETTINGS"); !named.empty())
        return named;
    return std::filesystem::path(Variable(L"APPDATA")) / L"KZEditor" / L"settings.xml";
}

void SettingsFile::Store() noexcept
{
    if (settings == m_stored)
        return;
    try {
        XmlDocument document(Root);
        Write(settings, *document.Root());
        std::error_code ignored;
        std::filesystem::create_directories(m_file.parent_path(), ignored);
        if (document.Save(m_file))
            m_stored = settings;
    } catch (const std::exception&) {
        // The next start finds what was stored before.
    }
}
