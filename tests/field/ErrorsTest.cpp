#include "Errors.h"

#include "support/RunTimeErrorOf.h"

#include <gtest/gtest.h>

#include <thread>

namespace {

using testsupport::RunTimeErrorOf;

TEST(MessageBuffer, IsOnePerThread) {
  const CSimpleBuffer* mine = &vif::MessageBuffer();
  EXPECT_EQ(mine, &vif::MessageBuffer());
  const CSimpleBuffer* other = nullptr;
  std::thread([&] { other = &vif::MessageBuffer(); }).join();
  EXPECT_NE(other, mine);
}

TEST(ThrowRunTimeError, FormatsTheMessage) {
  EXPECT_EQ(RunTimeErrorOf([] { vif::ThrowRunTimeError("Field '%s' has %d values.", "name", 2); }),
            "Field 'name' has 2 values.");
}

TEST(ThrowRunTimeError, HasADefaultMessage) {
  EXPECT_EQ(RunTimeErrorOf([] { vif::ThrowRunTimeError(""); }), "Run time exception thrown");
  EXPECT_EQ(RunTimeErrorOf([] { vif::ThrowRunTimeError(nullptr); }), "Run time exception thrown");
}

}  // namespace
