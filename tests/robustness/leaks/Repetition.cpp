#include "Repetition.h"

#include <gtest/gtest.h>

#include "Endurance.h"
#include "ProcessState.h"

void Repetition::Repeat(const std::function<long()>& round, long shortRun) const
{
    constexpr long WarmUp = 12;
    const long rounds = endurance::Rounds(shortRun, 1000);
    for (long count = 0; count < WarmUp; ++count)
        round();
    const StaticControlCount statics;
    const ProcessState before = CountProcessState();
    const long long bytesBefore = CountHeapBytes();
    long blocks = 0;
    for (long count = 0; count < rounds; ++count)
        blocks += round();
    const long long bytes = CountHeapBytes() - bytesBefore;
    const long long systems = StaticControlCount::Count() * m_bytesPerStatic;
    EXPECT_EQ(CountProcessState(), before);
    EXPECT_EQ(blocks, 0) << "blocks that the product's own DLLs and the C++ library have left";
    EXPECT_LT(bytes - systems, 1024) << "bytes by which all heaps of the process have grown";
    std::printf("%ld rounds: %ld blocks of the product left; the process has grown by %lld bytes, up to %lld of "
                "them Wine's own for %ld static controls\n",
                rounds, blocks, bytes, systems, StaticControlCount::Count());
}
