// The store of limits in a host that has set a numeric locale of its own.
#include <gtest/gtest.h>

#include <clocale>

#include "LimitsStore.h"
#include "LimitsTesting.h"
#include "OtherLocale.h"

namespace {

using namespace zep;
using namespace limits_testing;

TEST(LimitsStoreInAnotherLocale, ReadsAndWritesAPointWhateverTheHostHasSet)
{
    const OtherLocale spain(OtherLocale::Spain);
    if (!spain.IsSet())
        GTEST_SKIP() << "the machine cannot make the locale";
    const std::string before = std::setlocale(LC_NUMERIC, nullptr);
    Configuration configuration("<check><var>AP</var><maxW>0.950000</maxW></check>");
    LimitsStore store(PowerLimitsTable);
    store.Load(configuration.ViewSetup());
    EXPECT_EQ(store.Value({1, LimitField::MaxW}), 0.95);
    EXPECT_EQ(std::setlocale(LC_NUMERIC, nullptr), before);
    store.Save(configuration.ViewSetup());
    EXPECT_EQ(configuration.Stored(PowerLimitsTable, {1, LimitField::MaxW}), L"0.950000");
    EXPECT_EQ(std::setlocale(LC_NUMERIC, nullptr), before);
}

}  // namespace
