// Texts of limits are turned into numbers by the C library, which tells nobody when it finds no memory.
#include <gtest/gtest.h>

#include <new>

#include "LimitsStore.h"
#include "MemoryFaults.h"

namespace {

TEST(LimitTexts, AreReadOrNotReadWhenMemoryRunsOutAtAnyMoment)
{
    XmlDocument document(L"configuration");
    ASSERT_TRUE(document.Parse("<configuration><check><var>AP</var><nominal>7.250000</nominal><maxW>99.999999"
                               "</maxW><maxD>100.000000</maxD></check></configuration>"));
    MemoryFaults memory({L"endure_faults.exe", L"KZHost.dll"});
    bool failed = true;
    for (long failing = 1; failed; ++failing) {
        zep::LimitsStore store(zep::PowerLimitsTable);
        failed = false;
        MemoryFaults::Arm(failing);
        try {
            store.Load(*document.Root());
        } catch (const std::bad_alloc&) {
            failed = true;
        }
        MemoryFaults::Disarm();
        EXPECT_EQ(failed, MemoryFaults::Count() >= failing) << "a failure was swallowed";
        ASSERT_LT(failing, 1000);
    }
}

}  // namespace
