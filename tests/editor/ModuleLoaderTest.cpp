#include "modules/ModuleLoader.h"

#include "KZDriverDeviceZEP.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <fstream>

#include "EditorProcess.h"
#include "KZDriverServices.h"
#include "KZUtf8.h"
#include "TemporaryFolder.h"
#include "modules/PeFile.h"

namespace fs = std::filesystem;

namespace {

using editor_tests::EditorFolder;
using kztest::TemporaryFolder;
using testing::HasSubstr;

constexpr std::uint16_t MachineX86 = 0x014C;
constexpr std::uint16_t MachineX64 = 0x8664;

class ModuleLoaderTest : public testing::Test {
protected:
    void Add(const std::string& kind, const std::string& model = "ZEP")
    {
        fs::copy_file(EditorFolder::ModuleFile(kind), m_folder.Path() / ("KZUsr" + model + ".dll"));
    }

    // Writes a machine into the header of a copied module.
    void BuildFor(std::uint16_t machine, const fs::path& file)
    {
        std::fstream stream(file, std::ios::binary | std::ios::in | std::ios::out);
        std::uint32_t header = 0;
        stream.seekg(0x3C).read(reinterpret_cast<char*>(&header), sizeof header);
        stream.seekp(header + 4).write(reinterpret_cast<const char*>(&machine), sizeof machine);
        ASSERT_TRUE(stream.flush());
    }

    // What a user reads of the one module of the folder.
    void ExpectOnlyModule(ModuleState state, const char* reasonPart)
    {
        const ModuleLoader loader(m_folder.Path());
        ASSERT_EQ(loader.Modules().size(), 1u);
        const ModuleStatus& status = loader.Modules()[0].Status();
        EXPECT_EQ(status.state, state);
        EXPECT_THAT(ToUtf8(status.reason), HasSubstr("KZUsrZEP.dll"));
        EXPECT_THAT(ToUtf8(status.reason), HasSubstr(reasonPart));
        EXPECT_FALSE(status.remedy.empty());
        EXPECT_EQ(loader.CallbacksOf(L"ZEP"), nullptr);
        EXPECT_EQ(loader.StatusOf(L"ZEP").state, state);
    }

    TemporaryFolder m_folder;
};

bool IsLoaded(const wchar_t* name)
{
    return ::GetModuleHandleW(name) != nullptr;
}

}  // namespace

TEST_F(ModuleLoaderTest, LoadsAModuleAndOffersItsCallbacksToItsDevices)
{
    Add("ready");
    const ModuleLoader loader(m_folder.Path());
    ASSERT_EQ(loader.Modules().size(), 1u);
    EXPECT_EQ(loader.Modules()[0].Model(), L"ZEP");
    EXPECT_EQ(loader.Modules()[0].File(), m_folder.Path() / "KZUsrZEP.dll");
    EXPECT_TRUE(loader.Modules()[0].Status().IsReady());
    const KZDriverCallbacks* callbacks = loader.CallbacksOf(L"ZEP");
    ASSERT_NE(callbacks, nullptr);
    EXPECT_NE(callbacks->options, nullptr);
    EXPECT_NE(callbacks->createChildOptions, nullptr);
}

TEST_F(ModuleLoaderTest, FreesAModuleAndForgetsWhatItRegistered)
{
    Add("ready");
    {
        const ModuleLoader loader(m_folder.Path());
        EXPECT_TRUE(IsLoaded(L"KZUsrZEP.dll"));
        EXPECT_NE(KZDriverServices::Find(RUNTIME_CLASS(KZDriverDeviceZEP)), nullptr);
    }
    EXPECT_FALSE(IsLoaded(L"KZUsrZEP.dll"));
    EXPECT_EQ(KZDriverServices::Find(RUNTIME_CLASS(KZDriverDeviceZEP)), nullptr);
    const ModuleLoader again(m_folder.Path());
    EXPECT_TRUE(again.Modules()[0].Status().IsReady());
}

TEST_F(ModuleLoaderTest, NamesTheMissingModuleOfADevice)
{
    const ModuleLoader loader(m_folder.Path());
    EXPECT_TRUE(loader.Modules().empty());
    const ModuleStatus status = loader.StatusOf(L"ZEP");
    EXPECT_EQ(status.state, ModuleState::Missing);
    EXPECT_THAT(ToUtf8(status.reason), HasSubstr("KZUsrZEP.dll"));
    EXPECT_THAT(ToUtf8(status.reason), HasSubstr(ToUtf8(m_folder.Path().wstring())));
    EXPECT_EQ(loader.CallbacksOf(L"ZEP"), nullptr);
}

TEST_F(ModuleLoaderTest, NamesATypeThatNoModuleCanServe)
{
    Add("ready");
    const ModuleLoader loader(m_folder.Path());
    const ModuleStatus status = loader.StatusOf(L"XYZ");
    EXPECT_EQ(status.state, ModuleState::Missing);
    EXPECT_THAT(ToUtf8(status.reason), HasSubstr("\"XYZ\""));
    EXPECT_EQ(loader.CallbacksOf(L"XYZ"), nullptr);
}

TEST_F(ModuleLoaderTest, SaysThatAFileIsNoLibrary)
{
    m_folder.Write("KZUsrZEP.dll", "this is no library");
    ExpectOnlyModule(ModuleState::CannotLoad, "cannot be loaded");
    EXPECT_FALSE(IsLoaded(L"KZUsrZEP.dll"));
}

TEST_F(ModuleLoaderTest, SaysForWhichArchitectureAModuleIsBuilt)
{
    Add("ready");
    BuildFor(MachineX86, m_folder.Path() / "KZUsrZEP.dll");
    ExpectOnlyModule(ModuleState::WrongArchitecture, "x86");
}

TEST_F(ModuleLoaderTest, NamesTheEntryThatAModuleLacksAndFreesIt)
{
    Add("noentry");
    ExpectOnlyModule(ModuleState::NoEntry, "InitializeUsrDriver_ZEP");
    EXPECT_FALSE(IsLoaded(L"KZUsrZEP.dll"));
}

TEST_F(ModuleLoaderTest, SaysThatTheEntryAnsweredFalse)
{
    Add("refusing");
    ExpectOnlyModule(ModuleState::Refused, "InitializeUsrDriver_ZEP");
    EXPECT_FALSE(IsLoaded(L"KZUsrZEP.dll"));
}

TEST_F(ModuleLoaderTest, GoesOnWithTheOthersWhenOneFails)
{
    m_folder.Write("KZUsrAAA.dll", "no library");
    Add("noentry", "BBB");
    Add("ready");
    const ModuleLoader loader(m_folder.Path());
    ASSERT_EQ(loader.Modules().size(), 3u);
    EXPECT_EQ(loader.Modules()[0].Status().state, ModuleState::CannotLoad);
    EXPECT_EQ(loader.Modules()[1].Status().state, ModuleState::NoEntry);
    EXPECT_TRUE(loader.Modules()[2].Status().IsReady());
    EXPECT_NE(loader.CallbacksOf(L"ZEP"), nullptr);
}

TEST_F(ModuleLoaderTest, LooksAtNothingButModules)
{
    m_folder.Write("KZUsr.dll", "no model");
    m_folder.Write("KZUsrZEP.txt", "no library");
    m_folder.Write("OtherZEP.dll", "no module");
    EXPECT_TRUE(ModuleLoader(m_folder.Path()).Modules().empty());
}

TEST_F(ModuleLoaderTest, HasNoModulesInAFolderThatDoesNotExist)
{
    EXPECT_TRUE(ModuleLoader(m_folder.Path() / "nowhere").Modules().empty());
}

TEST(PeMachine, IsReadFromTheHeaderAndFromNothingElse)
{
    EXPECT_EQ(PeMachine(EditorFolder::ModuleFile("ready")), MachineX64);
    EXPECT_EQ(OwnMachine(), MachineX64);
    const TemporaryFolder folder;
    folder.Write("empty", "");
    folder.Write("short", "MZ");
    folder.Write("far", std::string("MZ") + std::string(58, '\0') + "\xFF\xFF\xFF\x7F");
    for (const char* file : {"missing", "empty", "short", "far"})
        EXPECT_FALSE(PeMachine(folder.Path() / file)) << file;
}
