// The input is the body of a history entry's file. Its hash is made to fit, so that no input is refused for it.
#include <algorithm>
#include <optional>
#include <string>

#include "Fuzzing.h"
#include "project/HistoryEntry.h"
#include "project/Sealed.h"
#include "text/Refusal.h"

namespace {

using fuzzing::Require;

std::optional<plant::Manifest> Read(std::string_view file)
{
    try {
        return plant::ReadManifest(file, L"entry");
    } catch (const plant::Refusal& refusal) {
        const unsigned text = refusal.What().text;
        Require(text == IDS_PLANT_DAMAGED || text == IDS_PLANT_STRANGE_NAME, "it is refused as damaged or for a name");
        return std::nullopt;
    }
}

bool HasLineEnd(const std::string& text)
{
    return text.find_first_of("\t\r\n") != std::string::npos;
}

void CheckManifest(const plant::Manifest& manifest, const std::string& file)
{
    const plant::HistoryEntry& entry = manifest.entry;
    Require(entry.number >= 0, "no number is negative");
    Require(!HasLineEnd(entry.time) && !HasLineEnd(entry.cause), "what is listed in columns has none of its own");
    Require(std::all_of(entry.documents.begin(), entry.documents.end(), plant::IsDocumentName),
            "what was changed are documents");
    for (const auto& [name, document] : manifest.project)
        Require(plant::IsDocumentName(name) && document.time >= 0, "what is kept are documents");
    Require(plant::WriteManifest(manifest) == file, "what was read is written the same");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const fuzzing::Input input(data, size);
    const std::string file = plant::Seal("KZHistory1", input.Rest());
    if (const auto manifest = Read(file)) {
        CheckManifest(*manifest, file);
        Require(!Read(file + '\n') && !Read(std::string_view(file).substr(1)), "another content has another hash");
    }
    if (const auto unsealed = Read(input.Rest()))
        CheckManifest(*unsealed, std::string(input.Rest()));
    return 0;
}
