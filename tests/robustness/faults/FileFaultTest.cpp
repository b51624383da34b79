// Documents when any one of the file operations behind them fails.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "FileFaults.h"
#include "KernelHandles.h"
#include "ScriptedUser.h"
#include "ZepProject.h"

namespace {

using testing::HasSubstr;
using testing::SizeIs;

constexpr int MostCalls = 50;

// Runs a test with the first, second, third… call of every file function failing, until there is none more to fail.
void ForEachFault(const std::function<void(FileCall)>& test)
{
    for (int function = 0; function < FileCallCount; ++function) {
        for (int failing = 1; failing < MostCalls; ++failing) {
            const FileFaults faults(static_cast<FileCall>(function), failing);
            SCOPED_TRACE(std::string(NameOf(static_cast<FileCall>(function))) + ", call " + std::to_string(failing));
            test(static_cast<FileCall>(function));
            if (FileFaults::Count() < failing)
                break;
        }
    }
}

// The first pass may open what the system keeps open, such as the texts of its messages.
void ExpectNoHandlesLeft(const std::function<void(FileCall)>& test)
{
    ForEachFault(test);
    const int handles = CountKernelHandles();
    ForEachFault(test);
    EXPECT_EQ(CountKernelHandles(), handles);
}

bool HasFailed(int failing)
{
    return FileFaults::Count() >= failing;
}

class FailingFiles : public testing::Test {
protected:
    [[nodiscard]] std::vector<std::wstring> FilesOfDevices() const
    {
        std::vector<std::wstring> files;
        for (const auto& entry : std::filesystem::directory_iterator(m_project.plant.DeviceFile().parent_path()))
            files.push_back(entry.path().filename().wstring());
        return files;
    }

    ZepProject m_project;
};

TEST_F(FailingFiles, LeaveTheOldDocumentOrTheNewOneAndSayWhich)
{
    const std::filesystem::path file = m_project.plant.DeviceFile();
    const auto save = [&](FileCall) {
        m_project.plant.WriteDevice("<a>old</a>");
        const std::string before = m_project.plant.DeviceText();
        XmlDocument document(L"device");
        document.Root()->SetValue(L"a", L"new");
        document.SetDirty(true);
        const KZDocumentResult saved = document.Save(file);
        EXPECT_EQ(m_project.plant.DeviceText(), saved ? document.Serialize() : before);
        EXPECT_EQ(document.IsDirty(), !saved);
        EXPECT_EQ(saved.message.IsEmpty(), saved.ok);
        EXPECT_THAT(FilesOfDevices(), SizeIs(1));
    };
    ExpectNoHandlesLeft(save);
}

TEST_F(FailingFiles, LeaveWhatADocumentHeldBeforeItsLoad)
{
    m_project.plant.WriteDevice("<a>in the file</a>");
    const auto load = [&](FileCall) {
        XmlDocument document(L"device");
        document.Root()->SetValue(L"a", L"in memory");
        const std::string before = document.Serialize();
        const KZDocumentResult loaded = document.Load(m_project.plant.DeviceFile());
        EXPECT_EQ(document.Serialize(), loaded ? m_project.plant.DeviceText() : before);
        EXPECT_EQ(loaded.message.IsEmpty(), loaded.ok);
    };
    ExpectNoHandlesLeft(load);
}

TEST_F(FailingFiles, AreSaidInTheDeviceDialogWhichStaysOpen)
{
    int failures = 0;
    for (const FileCall call : {FileCall::Write, FileCall::Flush, FileCall::Move}) {
        m_project.plant.WriteDevice(ZepProject::Record);
        const std::string before = m_project.plant.DeviceText();
        const FileFaults faults(call, 1);
        const ScriptedUser user(KZSectionDevice, false);
        EXPECT_TRUE(m_project.Options());
        ASSERT_TRUE(HasFailed(1)) << NameOf(call);
        // The question whether to write, and that it could not be; the dialog was still there to be cancelled.
        EXPECT_THAT(user.Messages(), SizeIs(2));
        EXPECT_EQ(m_project.plant.DeviceText(), before) << NameOf(call);
        EXPECT_THAT(FilesOfDevices(), SizeIs(1));
        ++failures;
    }
    EXPECT_EQ(failures, 3);
}

TEST_F(FailingFiles, AreGoneWhenTheUserPressesOkOnceMore)
{
    const FileFaults faults(FileCall::Move, 1);
    const ScriptedUser user(KZSectionDevice);
    EXPECT_TRUE(m_project.Options());
    ASSERT_TRUE(HasFailed(1));
    // What the script changes is the first mode, which the record has not set: 10 becomes 11.
    EXPECT_THAT(m_project.plant.DeviceText(), HasSubstr("<mode>11</mode>"));
}

TEST_F(FailingFiles, AreNotOverwrittenWhenTheyCouldNotBeRead)
{
    const std::string before = m_project.plant.DeviceText();
    const FileFaults faults(FileCall::Read, 1);
    const ScriptedUser user(KZSectionDevice);
    EXPECT_TRUE(m_project.Options());
    ASSERT_TRUE(HasFailed(1));
    EXPECT_GE(user.Messages().size(), 1U);
    EXPECT_EQ(m_project.plant.DeviceText(), before);
}

}  // namespace
