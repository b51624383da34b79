#include "ProjectQuestions.h"

#include <array>

#include "KZUtf8.h"
#include "project/DocumentName.h"
#include "text/EditorText.h"
#include "text/PlantMessage.h"

namespace {

// Documents in the words of the user: the name of the device, where it is a device's.
std::wstring Listed(const plant::Project& project, const std::vector<std::string>& documents)
{
    std::wstring list;
    for (const std::string& document : documents) {
        list += list.empty() ? L"" : L", ";
        list += FromUtf8(document);
        for (const KZDeviceIdentity& device : project.Devices()) {
            if (plant::DeviceDocumentName(device.driverId) == document)
                list.append(L" (").append(device.name.View()).append(L")");
        }
    }
    return list;
}

// In the user's time zone and way of writing.
std::wstring LocalTime(std::int64_t since1970)
{
    constexpr std::int64_t From1601To1970 = 116'444'736'000'000'000;
    const auto ticks = static_cast<std::uint64_t>(since1970 + From1601To1970);
    const FILETIME time{static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
    SYSTEMTIME utc{};
    SYSTEMTIME local{};
    ::FileTimeToSystemTime(&time, &utc);
    ::SystemTimeToTzSpecificLocalTime(nullptr, &utc, &local);
    std::array<wchar_t, 80> date{};
    std::array<wchar_t, 80> clock{};
    ::GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, DATE_SHORTDATE, &local, nullptr, date.data(), date.size(), nullptr);
    ::GetTimeFormatEx(LOCALE_NAME_USER_DEFAULT, 0, &local, nullptr, clock.data(), clock.size());
    return std::wstring(date.data()) + L" " + clock.data();
}

}  // namespace

plant::ProjectUser::Answer ProjectQuestions::AskAboutForeignChanges(const std::vector<std::string>& documents)
{
    const std::wstring question = FormatEditorText(IDS_ASK_FOREIGN, FromUtf8(plant::Joined(documents, ", ")).c_str());
    switch (AfxMessageBox(question.c_str(), MB_YESNOCANCEL | MB_ICONWARNING | MB_DEFBUTTON3)) {
    case IDYES:
        return Answer::Overwrite;
    case IDNO:
        return Answer::TakeTheirs;
    default:
        return Answer::Cancel;
    }
}

void ProjectQuestions::TellUnprotected(const plant::Message& why) noexcept
{
    try {
        std::wstring warning = FormatEditorText(IDS_UNPROTECTED, PlantMessage(why).c_str());
        if (warning == m_warning)
            return;
        m_warning = std::move(warning);
        m_window.PostMessage(WM_KZ_UNPROTECTED);
    } catch (const std::exception&) {
        // There is no memory for a warning either.
    }
}

bool ProjectQuestions::AskToLoadAnew(const plant::Project& project, const std::vector<std::string>& documents)
{
    const unsigned text = project.IsDirty() ? IDS_FOREIGN_NOTICED_DIRTY : IDS_FOREIGN_NOTICED;
    const std::wstring question = FormatEditorText(text, Listed(project, documents).c_str());
    const UINT preset = project.IsDirty() ? MB_DEFBUTTON2 : MB_DEFBUTTON1;
    return AfxMessageBox(question.c_str(), MB_YESNO | MB_ICONQUESTION | preset) == IDYES;
}

bool ProjectQuestions::OfferRecovery(plant::Project& project, const plant::FoundRecovery& found)
{
    std::wstring question = FormatEditorText(IDS_OFFER_RECOVERY, LocalTime(found.unsaved.time).c_str(),
                                             Listed(project, plant::NamesIn(found.unsaved.documents)).c_str());
    if (const std::vector<std::string> changed = project.ChangedSince(found); !changed.empty())
        question += FormatEditorText(IDS_OFFER_CHANGED_SINCE, Listed(project, changed).c_str());
    return AfxMessageBox(question.c_str(), MB_YESNO | MB_ICONQUESTION) == IDYES;
}
