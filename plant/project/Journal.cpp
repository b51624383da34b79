#include "Journal.h"

#include <algorithm>

#include "DocumentName.h"
#include "HistoryFolders.h"
#include "KZUtf8.h"
#include "Sealed.h"
#include "text/Refusal.h"

namespace plant {

namespace {

constexpr std::string_view Kind = "KZJournal1";

bool AreDigits(std::string_view text) noexcept
{
    return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

std::optional<JournalStep> ReadStep(std::string_view& body)
{
    const auto target = TakeUpTo(body, '\t');
    const auto staged = TakeUpTo(body, '\t');
    const auto size = TakeNumber(body, '\t');
    const auto hash = TakeUpTo(body, '\n');
    if (!target || !staged || !size || !hash || !ParseHash(*hash))
        return std::nullopt;
    return JournalStep{std::string(*target), std::string(*staged), *size, *ParseHash(*hash)};
}

}  // namespace

bool IsStagedName(std::string_view name) noexcept
{
    constexpr std::string_view old = ".old";
    if (name.ends_with(old))
        name.remove_suffix(old.size());
    return AreDigits(name);
}

std::string WriteJournal(const Journal& journal)
{
    std::string body;
    for (const JournalStep& step : journal) {
        body.append(step.target).append("\t").append(step.staged).append("\t");
        body.append(std::to_string(step.size)).append("\t").append(HashText(step.hash)).append("\n");
    }
    return Seal(Kind, body);
}

Journal ReadJournal(std::string_view bytes, const std::wstring& file)
{
    std::optional<std::string_view> body = Unseal(Kind, bytes);
    Journal journal;
    while (body && !body->empty()) {
        const std::optional<JournalStep> step = ReadStep(*body);
        if (!step)
            throw Refusal(IDS_PLANT_DAMAGED, {file});
        if (!IsDocumentName(step->target) && !HistoryFolders::IsNameOfEntry(step->target))
            throw Refusal(IDS_PLANT_STRANGE_NAME, {file, FromUtf8(step->target)});
        if (!step->staged.empty() && !IsStagedName(step->staged))
            throw Refusal(IDS_PLANT_STRANGE_NAME, {file, FromUtf8(step->staged)});
        journal.push_back(*step);
    }
    if (!body)
        throw Refusal(IDS_PLANT_DAMAGED, {file});
    return journal;
}

}  // namespace plant
