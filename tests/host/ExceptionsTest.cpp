#include "BaseUtilities/Exceptions.h"

#include <gtest/gtest.h>

#include <exception>
#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>

namespace {

static_assert(std::is_abstract_v<CZoException>);
static_assert(std::has_virtual_destructor_v<CZoException>);
static_assert(!std::is_base_of_v<std::exception, CZoException>);

// Not std::is_base_of, which also holds for a base that a class has twice; pointers do not convert to that.
static_assert(std::is_convertible_v<CZoRunTimeException*, CZoException*>);
static_assert(std::is_convertible_v<CZoRunTimeException*, std::runtime_error*>);
static_assert(std::is_convertible_v<CZoRunTimeException*, std::exception*>);
static_assert(std::is_convertible_v<CZoDOMDocException*, CZoException*>);
static_assert(std::is_convertible_v<CZoDOMDocException*, std::exception*>);
static_assert(!std::is_base_of_v<std::runtime_error, CZoDOMDocException>);

static_assert(!std::is_convertible_v<const char*, CZoRunTimeException>);
static_assert(!std::is_convertible_v<const char*, CZoDOMDocException>);

/// Throws the exception and returns the message that a handler of that type sees.
template <typename Handled, typename Thrown>
std::string MessageCaughtAs(const Thrown& thrown) {
  try {
    throw thrown;
  } catch (const Handled& caught) {
    return caught.what();
  }
}

TEST(RunTimeException, IsCaughtAsItself) {
  EXPECT_EQ(MessageCaughtAs<CZoRunTimeException>(CZoRunTimeException("lost")), "lost");
}

TEST(RunTimeException, IsCaughtAsTheHostsException) {
  EXPECT_EQ(MessageCaughtAs<CZoException>(CZoRunTimeException("lost")), "lost");
}

TEST(RunTimeException, IsCaughtAsTheStandardRunTimeError) {
  EXPECT_EQ(MessageCaughtAs<std::runtime_error>(CZoRunTimeException("lost")), "lost");
}

TEST(RunTimeException, IsCaughtAsTheStandardException) {
  EXPECT_EQ(MessageCaughtAs<std::exception>(CZoRunTimeException("lost")), "lost");
}

TEST(DomDocException, IsCaughtAsItself) {
  EXPECT_EQ(MessageCaughtAs<CZoDOMDocException>(CZoDOMDocException("lost")), "lost");
}

TEST(DomDocException, IsCaughtAsTheHostsException) {
  EXPECT_EQ(MessageCaughtAs<CZoException>(CZoDOMDocException("lost")), "lost");
}

TEST(DomDocException, IsCaughtAsTheStandardException) {
  EXPECT_EQ(MessageCaughtAs<std::exception>(CZoDOMDocException("lost")), "lost");
}

TEST(DomDocException, IsNotCaughtAsTheStandardRunTimeError) {
  bool passedBy = false;
  try {
    throw CZoDOMDocException("lost");
  } catch (const std::runtime_error&) {
    FAIL();
  } catch (const CZoException&) {
    passedBy = true;
  }
  EXPECT_TRUE(passedBy);
}

TEST(RunTimeException, HasADefaultMessage) {
  EXPECT_STREQ(CZoRunTimeException().what(), "Run time exception thrown");
  EXPECT_STREQ(CZoRunTimeException(nullptr).what(), "Run time exception thrown");
  EXPECT_STREQ(CZoRunTimeException("").what(), "Run time exception thrown");
}

TEST(DomDocException, HasADefaultMessage) {
  EXPECT_STREQ(CZoDOMDocException().what(), "DOM document exception thrown");
  EXPECT_STREQ(CZoDOMDocException(nullptr).what(), "DOM document exception thrown");
  EXPECT_STREQ(CZoDOMDocException("").what(), "DOM document exception thrown");
}

template <typename Exception>
class EveryException : public testing::Test {};

using Exceptions = testing::Types<CZoRunTimeException, CZoDOMDocException>;
TYPED_TEST_SUITE(EveryException, Exceptions);

const std::string kLongMessage(10'000, 'm');

TYPED_TEST(EveryException, OwnsItsMessage) {
  std::string message = "first";
  const TypeParam exception(message.c_str());
  message = "other";
  EXPECT_STREQ(exception.what(), "first");
}

TYPED_TEST(EveryException, PassesTheMessageOnByteByByte) {
  EXPECT_STREQ(TypeParam("%s%n 100%").what(), "%s%n 100%");
  EXPECT_STREQ(TypeParam("not UTF-8: \xFF\x80").what(), "not UTF-8: \xFF\x80");
  EXPECT_EQ(TypeParam(kLongMessage.c_str()).what(), kLongMessage);
}

TYPED_TEST(EveryException, SaysTheSameThroughEachBase) {
  const TypeParam exception("lost");
  EXPECT_STREQ(static_cast<const CZoException&>(exception).what(), "lost");
  EXPECT_STREQ(static_cast<const std::exception&>(exception).what(), "lost");
}

TYPED_TEST(EveryException, CopiesOutliveTheOriginal) {
  auto original = std::make_unique<TypeParam>(kLongMessage.c_str());
  const TypeParam constructed(*original);
  TypeParam assigned("other");
  assigned = *original;
  original.reset();
  EXPECT_EQ(constructed.what(), kLongMessage);
  EXPECT_EQ(assigned.what(), kLongMessage);
}

TYPED_TEST(EveryException, MovesItsMessage) {
  TypeParam original(kLongMessage.c_str());
  TypeParam constructed(std::move(original));
  EXPECT_EQ(constructed.what(), kLongMessage);
  TypeParam assigned("other");
  assigned = std::move(constructed);
  EXPECT_EQ(assigned.what(), kLongMessage);
  EXPECT_NE(constructed.what(), nullptr);
}

TYPED_TEST(EveryException, IsDestroyedThroughTheHostsException) {
  const std::unique_ptr<CZoException> exception = std::make_unique<TypeParam>(kLongMessage.c_str());
  EXPECT_EQ(exception->what(), kLongMessage);
}

TYPED_TEST(EveryException, IsDestroyedThroughTheStandardException) {
  const std::unique_ptr<std::exception> exception = std::make_unique<TypeParam>(kLongMessage.c_str());
  EXPECT_EQ(exception->what(), kLongMessage);
}

}  // namespace
