// Temporary files that a killed process has left behind.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#ifdef _WIN32
#include <process.h>
#define getpid _getpid
#else
#include <unistd.h>
#endif

#include "KZXmlDocument.h"
#include "TemporaryFolder.h"

namespace {

// Systems give process numbers away again, so a later process may come to the very names of the one that was killed.
TEST(LeftTemporaryFiles, AreNoObstacleToAProcessOfTheSameNumber)
{
    const kztest::TemporaryFolder folder;
    const std::filesystem::path file = folder.Path() / "main.xml";
    constexpr int Leftovers = 20;
    for (int number = 1; number <= Leftovers; ++number)
        folder.Write("main.xml." + std::to_string(getpid()) + "-" + std::to_string(number) + ".tmp", "x");

    XmlDocument document(L"configuration");
    const KZDocumentResult saved = document.Save(file);
    EXPECT_TRUE(saved) << testing::PrintToString(std::wstring(saved.message.View()));
    EXPECT_TRUE(document.Load(file));
    // They may be another machine's, on a share: they stay.
    EXPECT_EQ(folder.Count(), Leftovers + 1U);
}

}  // namespace
