// Documents and the records in them, with every one of their allocations failing in its turn. The sanitizers of the
// program look for what a failure leaves behind.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <new>
#include <pugixml.hpp>

#include "FailingMemory.h"
#include "InformationRecord.h"
#include "LimitsStore.h"
#include "TemporaryFolder.h"
#include "UnitsRecord.h"

namespace {

constexpr const char* Configuration =
    "<configuration>\n  <unitSetups><unitSetup><driverId>other</driverId></unitSetup></unitSetups>\n"
    "  <viewSetups><viewSetup><driverId>zep1</driverId><check><var>AP</var><nominal>7</nominal></check></viewSetup>"
    "</viewSetups>\n</configuration>\n";
constexpr const char* Device = "<device><information><mode>10</mode><numZEP>3</numZEP></information></device>";

class FailingMemory : public testing::Test {
protected:
    FailingMemory() { pugi::set_memory_management_functions(&FailingMalloc, &std::free); }
    ~FailingMemory() override { pugi::set_memory_management_functions(&std::malloc, &std::free); }

    // Prepares and runs the operation with its first, second, third… allocation failing, until it makes it through.
    // After each failure check is called; what it is given is what a run without failures leaves.
    template <class Subject>
    void ForEachFailure(const std::function<Subject()>& prepare, const std::function<void(Subject&)>& operation,
                        const std::function<void(Subject&)>& check)
    {
        bool failed = true;
        for (long number = 1; failed; ++number) {
            ASSERT_LT(number, 5000);
            SCOPED_TRACE("allocation " + std::to_string(number));
            Subject subject = prepare();
            failed = false;
            FailAllocation(number);
            try {
                operation(subject);
            } catch (const std::bad_alloc&) {
                failed = true;
            }
            const long count = CountAllocations();
            FailAllocation(0);
            EXPECT_EQ(failed, count >= number) << "a failure was swallowed";
            if (failed)
                check(subject);
        }
    }
};

using Document = std::unique_ptr<XmlDocument>;

Document Parsed(const wchar_t* root, const char* text)
{
    auto document = std::make_unique<XmlDocument>(root);
    EXPECT_TRUE(document->Parse(text));
    return document;
}

Document ParsedConfiguration()
{
    return Parsed(L"configuration", Configuration);
}

Document ParsedDevice()
{
    return Parsed(L"device", Device);
}

// A record that could not be written is not in the document at all, and whole when it is written once more, as when the
// user presses OK again.
void ExpectWholeOrNotAtAll(const std::function<Document()>& prepare, const std::function<void(Document&)>& write)
{
    Document undisturbed = prepare();
    write(undisturbed);
    const std::string whole = undisturbed->Serialize();
    for (long number = 1;; ++number) {
        ASSERT_LT(number, 5000);
        Document document = prepare();
        const std::string before = document->Serialize();
        bool failed = false;
        FailAllocation(number);
        try {
            write(document);
        } catch (const std::bad_alloc&) {
            failed = true;
        }
        FailAllocation(0);
        if (failed) {
            ASSERT_EQ(document->Serialize(), before) << "allocation " << number;
            EXPECT_FALSE(document->IsDirty()) << "an interrupted record is not to be saved";
            write(document);
        }
        ASSERT_EQ(document->Serialize(), whole) << "allocation " << number;
        if (!failed)
            return;
    }
}

// The parser's tree takes its memory in pages: with other elements in front of the record, each of its own elements and
// texts comes to be the first of a new page.
void ExpectWholeOrNotAtAllOnEveryPage(const wchar_t* root, const std::string& text,
                                      const std::function<void(Document&)>& write)
{
    constexpr int elementsInAPage = 512;
    for (int elements = 0; elements < elementsInAPage && !testing::Test::HasFailure(); elements += 8) {
        std::string filled = text;
        for (int i = 0; i < elements; ++i)
            filled.insert(filled.rfind("</"), "<x/>");
        ExpectWholeOrNotAtAll([&] { return Parsed(root, filled.c_str()); }, write);
    }
}

void WriteUnits(Document& document)
{
    zep::UnitsRecord(*document, L"zep1").Write({{{2, zep::UnitChoice::Kilo}, {0, zep::UnitChoice::Plain}}});
}

void WriteInformation(Document& document)
{
    zep::InformationSettings settings;
    settings.modes = 5;
    settings.minimumCurrent = 17;
    settings.unitCount = 8;
    zep::WriteInformation(*document->Root(), settings);
}

void SaveLimits(Document& document)
{
    const zep::LimitsStore store(zep::PowerLimitsTable);
    store.Save(*document->Node(L"viewSetups/viewSetup?driverId=zep1?"));
}

TEST_F(FailingMemory, LeavesTheUnitsWholeOrAsTheyWere)
{
    ExpectWholeOrNotAtAllOnEveryPage(L"configuration", Configuration, WriteUnits);
}

TEST_F(FailingMemory, LeavesTheDevicesRecordWholeOrAsItWas)
{
    ExpectWholeOrNotAtAllOnEveryPage(L"device", Device, WriteInformation);
}

TEST_F(FailingMemory, LeavesTheLimitsWholeOrAsTheyWere)
{
    ExpectWholeOrNotAtAllOnEveryPage(L"configuration", Configuration, SaveLimits);
    ExpectWholeOrNotAtAllOnEveryPage(L"configuration", "<configuration></configuration>", [](Document& document) {
        const zep::LimitsStore store(zep::PowerLimitsTable);
        store.Save(zep::AppendSetup(*document, zep::ViewSetups, L"zep1"));
    });
}

// The same object writes again, as the dialog does that stays open after a failure.
TEST_F(FailingMemory, LeavesNoNamelessRecordForTheNextOk)
{
    const std::wstring driverId(20000, L'z');  // more than a page of the tree holds
    Document document = ParsedConfiguration();
    zep::UnitsRecord record(*document, driverId);
    bool failed = true;
    for (long number = 1; failed; ++number) {
        failed = false;
        FailAllocation(number);
        try {
            record.Write({});
        } catch (const std::bad_alloc&) {
            failed = true;
        }
        FailAllocation(0);
        EXPECT_EQ(document->Serialize() == Configuration, failed) << "allocation " << number;
    }
    EXPECT_NE(document->Root()->NodeV(L"unitSetups/unitSetup?driverId=%s?/unit?name=RP?", driverId.c_str()), nullptr);
}

TEST_F(FailingMemory, LeavesADocumentAsItWasWhenARecordIsRead)
{
    const auto unchanged = [](const char* text) {
        return [text](Document& document) { EXPECT_EQ(document->Serialize(), text); };
    };
    ForEachFailure<Document>(
        ParsedDevice, [](Document& document) { const zep::InformationRecord record(*document->Root()); },
        unchanged(Device));
    ForEachFailure<Document>(
        ParsedConfiguration, [](Document& document) { static_cast<void>(zep::UnitsRecord(*document, L"zep1").Read()); },
        unchanged(Configuration));
    ForEachFailure<Document>(
        ParsedConfiguration,
        [](Document& document) {
            zep::LimitsStore store(zep::PowerLimitsTable);
            store.Load(*document->Node(L"viewSetups/viewSetup?driverId=zep1?"));
        },
        unchanged(Configuration));
}

class FailingMemoryAndFiles : public FailingMemory {
protected:
    kztest::TemporaryFolder m_folder;
    const std::filesystem::path m_file = m_folder.Path() / "main.xml";
};

TEST_F(FailingMemoryAndFiles, LeaveTheOldFileAloneInItsFolder)
{
    m_folder.Write("main.xml", "the old file");
    ForEachFailure<Document>(
        ParsedConfiguration, [&](Document& document) { static_cast<void>(document->Save(m_file)); },
        [&](Document&) {
            EXPECT_EQ(m_folder.Read("main.xml"), "the old file");
            EXPECT_EQ(m_folder.Count(), 1U);
        });
    EXPECT_EQ(m_folder.Read("main.xml"), Configuration);
}

TEST_F(FailingMemoryAndFiles, LeaveTheOldContentWhenALoadFails)
{
    m_folder.Write("main.xml", Device);
    const auto old = [] { return Parsed(L"device", "<device><a>old</a></device>"); };
    ForEachFailure<Document>(
        old, [&](Document& document) { static_cast<void>(document->Load(m_file)); },
        [](Document& document) { EXPECT_EQ(document->Serialize(), "<device><a>old</a></device>"); });
}

}  // namespace
