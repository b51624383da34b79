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

// A record that was interrupted is complete when it is written once more, as when the user presses OK again.
void ExpectCompletedByAnotherTry(const std::function<Document()>& prepare, const std::function<void(Document&)>& write)
{
    Document undisturbed = prepare();
    write(undisturbed);
    const std::string whole = undisturbed->Serialize();
    for (long number = 1;; ++number) {
        ASSERT_LT(number, 5000);
        Document document = prepare();
        bool failed = false;
        FailAllocation(number);
        try {
            write(document);
        } catch (const std::bad_alloc&) {
            failed = true;
        }
        FailAllocation(0);
        pugi::xml_document parser;
        const std::string interrupted = document->Serialize();
        EXPECT_TRUE(parser.load_buffer(interrupted.data(), interrupted.size())) << interrupted;
        if (failed) {
            EXPECT_FALSE(document->IsDirty()) << "an interrupted record is not to be saved";
            write(document);
        }
        EXPECT_EQ(document->Serialize(), whole) << "allocation " << number;
        if (!failed)
            return;
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

TEST_F(FailingMemory, IsMadeGoodByWritingTheUnitsOnceMore)
{
    ExpectCompletedByAnotherTry(ParsedConfiguration, WriteUnits);
}

TEST_F(FailingMemory, IsMadeGoodByWritingTheDevicesRecordOnceMore)
{
    ExpectCompletedByAnotherTry(ParsedDevice, WriteInformation);
}

TEST_F(FailingMemory, IsMadeGoodBySavingTheLimitsOnceMore)
{
    ExpectCompletedByAnotherTry(ParsedConfiguration, SaveLimits);
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
