// That a failed allocation of libxml2's is noticed, on its own thread and for as long as somebody watches.
#include "msxml/MemoryWatch.h"

#include <gtest/gtest.h>
#include <libxml/xmlmemory.h>

#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <new>
#include <thread>

namespace {

using msxml::CMemoryWatch;

bool g_fails = false;

void* Allocate(std::size_t size) { return g_fails ? nullptr : std::malloc(size); }
void* AllocateAtomic(std::size_t size) { return Allocate(size); }
void* Reallocate(void* memory, std::size_t size) { return g_fails ? nullptr : std::realloc(memory, size); }
char* Duplicate(const char* text) {
  void* copy = Allocate(std::strlen(text) + 1);
  return copy != nullptr ? static_cast<char*>(std::memcpy(copy, text, std::strlen(text) + 1)) : nullptr;
}

// Before anything is watched in this program.
[[maybe_unused]] const bool isSet = xmlGcMemSetup(std::free, Allocate, AllocateAtomic, Reallocate, Duplicate) == 0;

class MemoryWatchTest : public testing::Test {
 protected:
  static void SetUpTestSuite() { CMemoryWatch::Install(); }

  void TearDown() override { g_fails = false; }

  static void FailOnce() {
    g_fails = true;
    EXPECT_EQ(xmlMalloc(1), nullptr);
    g_fails = false;
  }
};

TEST_F(MemoryWatchTest, SeesNothingWhileThereIsMemory) {
  const CMemoryWatch watch;
  void* memory = xmlMalloc(1);
  ASSERT_NE(memory, nullptr);
  memory = xmlRealloc(memory, 2);
  ASSERT_NE(memory, nullptr);
  xmlFree(memory);
  EXPECT_FALSE(watch.HasRunOut());
  EXPECT_NO_THROW(watch.RequireMemory());
}

TEST_F(MemoryWatchTest, ReallocatingToNothingIsNoFailure) {
  const CMemoryWatch watch;
  static_cast<void>(xmlRealloc(xmlMalloc(1), 0));
  EXPECT_FALSE(watch.HasRunOut());
}

TEST_F(MemoryWatchTest, SeesEachWayOfAllocatingFail) {
  void* memory = xmlMalloc(1);
  char text[] = "text";
  g_fails = true;
  {
    const CMemoryWatch watch;
    EXPECT_EQ(xmlMalloc(1), nullptr);
    EXPECT_TRUE(watch.HasRunOut());
    EXPECT_THROW(watch.RequireMemory(), std::bad_alloc);
  }
  {
    const CMemoryWatch watch;
    EXPECT_EQ(xmlMallocAtomic(1), nullptr);
    EXPECT_TRUE(watch.HasRunOut());
  }
  {
    const CMemoryWatch watch;
    EXPECT_EQ(xmlRealloc(memory, 2), nullptr);
    EXPECT_TRUE(watch.HasRunOut());
  }
  {
    const CMemoryWatch watch;
    EXPECT_EQ(xmlMemStrdup(text), nullptr);
    EXPECT_TRUE(watch.HasRunOut());
  }
  xmlFree(memory);
}

TEST_F(MemoryWatchTest, BeginsWithoutWhatFailedBefore) {
  FailOnce();
  const CMemoryWatch watch;
  EXPECT_FALSE(watch.HasRunOut());
}

TEST_F(MemoryWatchTest, KeepsForTheOuterWhatTheInnerHasSeen) {
  const CMemoryWatch outer;
  {
    const CMemoryWatch inner;
    FailOnce();
  }
  EXPECT_TRUE(outer.HasRunOut());
}

TEST_F(MemoryWatchTest, KeepsForTheOuterWhatItSawBeforeTheInner) {
  const CMemoryWatch outer;
  FailOnce();
  {
    const CMemoryWatch inner;
    EXPECT_FALSE(inner.HasRunOut());
  }
  EXPECT_TRUE(outer.HasRunOut());
}

TEST_F(MemoryWatchTest, LeavesOtherThreadsAlone) {
  const CMemoryWatch watch;
  std::thread(FailOnce).join();
  EXPECT_FALSE(watch.HasRunOut());
}

}  // namespace
