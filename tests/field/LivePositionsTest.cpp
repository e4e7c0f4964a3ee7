// Positions in a text are counted while they live.
#include "LivePositions.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace {

using vif::CLivePosition;

TEST(LivePositions, AreCountedHoweverTheyComeAndGo) {
  const std::size_t before = CLivePosition::Count();
  {
    const CLivePosition first;
    CLivePosition second(first);
    second = first;
    const CLivePosition third(std::move(second));
    EXPECT_EQ(CLivePosition::Count(), before + 3);
    std::vector<CLivePosition> many(100, first);
    many.emplace_back(third);
    EXPECT_EQ(CLivePosition::Count(), before + 104);
    many.resize(10);
    EXPECT_EQ(CLivePosition::Count(), before + 13);
  }
  EXPECT_EQ(CLivePosition::Count(), before);
}

}  // namespace
