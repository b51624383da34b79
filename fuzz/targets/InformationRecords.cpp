// The input is a device configuration document.
#include <algorithm>
#include <string_view>

#include "DocumentTree.h"
#include "Fuzzing.h"
#include "InformationRecord.h"
#include "RecordCheck.h"

namespace {

using namespace zep;
using fuzzing::Require;

constexpr std::array<std::wstring_view, 4> WrittenValues{L"mode", L"filters", L"minCurrent", L"numZEP"};

// The values that writing may change: the first of each name in the root's first record.
bool IsWritten(pugi::xml_node element)
{
    const std::wstring_view name = element.name();
    if (std::find(WrittenValues.begin(), WrittenValues.end(), name) == WrittenValues.end())
        return false;
    const pugi::xml_node record = element.parent();
    const pugi::xml_node root = record.parent();
    return root.parent().type() == pugi::node_document && record == fuzzing::ChildElement(root, L"information") &&
           element == fuzzing::ChildElement(record, element.name());
}

void CheckReading(const InformationRecord& record)
{
    const InformationSettings& settings = record.Settings();
    Require((settings.modes & ~0xF) == 0 && (settings.filters & ~0xFFF) == 0, "only known bits are read");
    Require(record.AlgorithmChoice() >= -1 && record.AlgorithmChoice() < 3, "the algorithm is one of three or none");
    Require(record.StatusChoice() >= -1 && record.StatusChoice() < 2, "the status is one of two or none");
}

void CheckEntries(const InformationRecord& record)
{
    InformationEntries entries;
    entries.modes = record.Settings().modes;
    entries.filters = record.Settings().filters;
    entries.transformerRatio = record.Text(InformationField::TransformerRatio);
    entries.minimumCurrent = record.Text(InformationField::MinimumCurrent);
    entries.unitCount = record.Text(InformationField::UnitCount);
    InformationSettings accepted;
    if (CheckInformation(entries, accepted))
        return;
    Require(accepted == record.Settings(), "entries that nobody touched are what was read");
    Require(accepted.minimumCurrent <= 200, "the minimum current is at most 200");
    Require(accepted.unitCount >= 1 && accepted.unitCount <= 8, "there are 1 to 8 units");
}

void CheckWritten(const InformationRecord& before, const InformationRecord& after)
{
    Require(after.Settings() == before.Settings(), "settings that were written are read again");
    for (const auto& info : InformationFields) {
        if (!info.written)
            Require(after.Text(info.field) == before.Text(info.field), "what is only shown keeps its text");
        else
            Require(after.Text(info.field) == KZBasicString(std::to_wstring(after.Settings().*info.setting)),
                    "a number is written in its shortest form");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    XmlDocument document(L"device");
    if (!document.Parse(text))
        return 0;
    const InformationRecord before(*document.Root());
    CheckReading(before);
    CheckEntries(before);

    WriteInformation(*document.Root(), before.Settings());
    const std::string written = document.Serialize();
    CheckWritten(before, InformationRecord(*document.Root()));
    fuzzing::RequireKept(std::string(text), written, IsWritten);

    XmlDocument again(L"device");
    Require(static_cast<bool>(again.Parse(written)), "what was written can be read");
    CheckWritten(before, InformationRecord(*again.Root()));
    WriteInformation(*again.Root(), before.Settings());
    Require(again.Serialize() == written, "writing a second time changes nothing");
    return 0;
}
