#include "FaultyDisk.h"

#include <gtest/gtest.h>

#include "TemporaryFolder.h"

namespace {

using kztest::FaultyDisk;
using plant::Refusal;

class FailingDisk : public testing::Test {
protected:
    kztest::TemporaryFolder m_folder;
    plant::Path m_file = m_folder.Path() / "file";
    FaultyDisk m_disk{plant::RealDisk()};
};

TEST_F(FailingDisk, FailsOnceAtTheNumberAskedFor)
{
    m_disk.FailAt(2);
    m_disk.MakeFolder(m_folder.Path() / "folder");
    EXPECT_THROW(m_disk.Write(m_file, "text"), Refusal);
    EXPECT_EQ(m_folder.Read("file"), "te");
    EXPECT_EQ(m_disk.Read(m_file), "te");
    EXPECT_EQ(m_disk.Count(), 3);
}

TEST_F(FailingDisk, DoesNothingMoreOnceItHasDied)
{
    m_folder.Write("file", "text");
    m_disk.DieAt(2);
    const auto held = m_disk.Hold(m_file, KZHold::ExistingFile);
    ASSERT_TRUE(held);
    EXPECT_THROW(held->Write(2, "more"), Refusal);
    EXPECT_THROW(held->Write(0, "x"), Refusal);
    EXPECT_THROW(static_cast<void>(m_disk.Find(m_file)), Refusal);
    EXPECT_THROW(m_disk.Remove(m_file), Refusal);
    held->Remove();
    EXPECT_EQ(m_disk.Count(), 6);
    m_disk.FailAt(0);
    EXPECT_EQ(held->Read(), "temo");
}

}  // namespace
