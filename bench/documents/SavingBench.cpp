// Loading and saving a main configuration document of a large plant, beside raw pugixml and the system calls that a
// save takes to be safe.
#include <windows.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

#include "KZXmlDocument.h"
#include "PlantText.h"
#include "RawRecords.h"
#include "Report.h"
#include "TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;
using kzbench::RawDocument;
using kzbench::Report;
using kzbench::RunInTurn;

constexpr int Drivers = 301;  // 1.5 MB

class BytesWriter : public pugi::xml_writer {
public:
    void write(const void* data, std::size_t size) override { m_bytes.append(static_cast<const char*>(data), size); }
    [[nodiscard]] const std::string& Bytes() const noexcept { return m_bytes; }

private:
    std::string m_bytes;
};

// Serialise, write beside the file, flush, rename.
void SaveRaw(const RawDocument& document, const fs::path& file)
{
    BytesWriter bytes;
    document.Tree().save(bytes, L"", pugi::format_raw, pugi::encoding_utf8);
    const fs::path beside = file.native() + L".new";
    const HANDLE handle =
        ::CreateFileW(beside.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    DWORD written = 0;
    const bool done =
        ::WriteFile(handle, bytes.Bytes().data(), static_cast<DWORD>(bytes.Bytes().size()), &written, nullptr) &&
        ::FlushFileBuffers(handle) && ::CloseHandle(handle) &&
        ::MoveFileExW(beside.c_str(), file.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
    if (!done)
        throw std::runtime_error("the file cannot be saved");
}

void CompareLarge(Report& report, const fs::path& folder)
{
    const std::string text = kzbench::ConfigurationText(Drivers, Drivers);
    XmlDocument document(L"configuration");
    RawDocument raw(text);
    if (!document.Parse(text))
        throw std::runtime_error("the document is malformed");
    // Changed, or it would be written as it was read.
    document.Root()->SetValue(L"mark", L"1");
    raw.Root().append_child(L"mark").text().set(L"1");

    const std::string size = std::to_string(text.size() / 1000) + " KB";
    report.Add({"load a document of " + size, "parse with pugixml", {}},
               RunInTurn(
                   [&] {
                       XmlDocument loaded(L"configuration");
                       kzbench::Keep(loaded.Parse(text));
                   },
                   [&] { kzbench::Keep(RawDocument(text)); }));
    report.Add({"write out a changed document of " + size, "serialise with pugixml", {}},
               RunInTurn([&] { kzbench::Keep(document.Serialize()); },
                         [&] {
                             BytesWriter bytes;
                             raw.Tree().save(bytes, L"", pugi::format_raw, pugi::encoding_utf8);
                             kzbench::Keep(bytes);
                         }));
    // Where the disk is quick, this is the serialising alone.
    report.Add({"save a changed document of " + size, "serialise, flush, rename", 2.00},
               RunInTurn(
                   [&] {
                       if (!document.Save(folder / L"ours.xml"))
                           throw std::runtime_error("the document cannot be saved");
                   },
                   [&] { SaveRaw(raw, folder / L"raw.xml"); }));
}

}  // namespace

int main()
{
    Report report;
    const kztest::TemporaryFolder folder;
    CompareLarge(report, folder.Path());
    return report.ExitCode();
}
