#include "ProjectQuestions.h"

#include <algorithm>

#include "text/DocumentText.h"
#include "text/EditorText.h"
#include "text/PlantMessage.h"

namespace {

// From ten-millionths of a second since 1970.
std::wstring TimeText(std::int64_t since1970)
{
    constexpr std::int64_t From1601To1970 = 116'444'736'000'000'000;
    const auto ticks = static_cast<std::uint64_t>(since1970 + From1601To1970);
    const FILETIME time{static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
    SYSTEMTIME utc{};
    ::FileTimeToSystemTime(&time, &utc);
    return LocalTime(utc);
}

}  // namespace

std::wstring ProjectQuestions::Listed(const std::vector<std::string>& documents) const
{
    return DocumentTexts(m_project->Devices()).Listed(documents);
}

plant::ProjectUser::Answer ProjectQuestions::AskAboutForeignChanges(const std::vector<std::string>& documents)
{
    const std::wstring question = FormatEditorText(IDS_ASK_FOREIGN, Listed(documents).c_str());
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

void ProjectQuestions::TellWaiting(bool isWaiting) noexcept
{
    if (isWaiting)
        m_waiting.emplace();
    else
        m_waiting.reset();
    m_window.SendMessage(WM_KZ_WAITING);
}

bool ProjectQuestions::AskToLoadAnew(const std::vector<std::string>& documents) const
{
    const bool loses = std::any_of(documents.begin(), documents.end(),
                                   [this](const std::string& name) { return m_project->IsUnsaved(name); });
    const std::wstring question =
        FormatEditorText(loses ? IDS_FOREIGN_NOTICED_DIRTY : IDS_FOREIGN_NOTICED, Listed(documents).c_str());
    return AfxMessageBox(question.c_str(), MB_YESNO | MB_ICONQUESTION | (loses ? MB_DEFBUTTON2 : MB_DEFBUTTON1)) ==
           IDYES;
}

ProjectQuestions::Offer ProjectQuestions::OfferRecovery(const plant::Unsaved& unsaved,
                                                        const std::vector<std::string>& changedSince) const
{
    std::wstring question = FormatEditorText(IDS_OFFER_RECOVERY, TimeText(unsaved.time).c_str(),
                                             Listed(plant::NamesIn(unsaved.documents)).c_str());
    if (!changedSince.empty())
        question += FormatEditorText(IDS_OFFER_CHANGED_SINCE, Listed(changedSince).c_str());
    switch (AfxMessageBox(question.c_str(), MB_YESNO | MB_ICONQUESTION)) {
    case IDYES:
        return Offer::TakeOver;
    case IDNO:
        return Offer::ThrowAway;
    default:  // the box went with its window
        return Offer::Unanswered;
    }
}
