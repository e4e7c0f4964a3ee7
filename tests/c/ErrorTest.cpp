// Errors of the C interface.
#include "Handles.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

using namespace testsupport;

TEST(CErrorTest, EveryStatusHasATextOfItsOwn) {
  std::set<std::string> texts;
  for (vif_status status = VIF_OK; status <= VIF_ERROR_INTERNAL; ++status) texts.insert(vif_status_text(status));
  EXPECT_EQ(texts.size(), static_cast<std::size_t>(VIF_ERROR_INTERNAL) + 1);
  EXPECT_FALSE(texts.contains("unknown status"));
  EXPECT_STREQ(vif_status_text(VIF_ERROR_INTERNAL + 1), "unknown status");
  EXPECT_STREQ(vif_status_text(-1), "unknown status");
}

TEST(CErrorTest, SuccessClearsAnEarlierError) {
  vif_error* error = nullptr;
  vif_explanation* explanation = nullptr;
  ASSERT_EQ(vif_explain("no such field at all", &explanation, &error), VIF_ERROR_NOT_FOUND);
  vif_error* first = error;
  ASSERT_EQ(vif_explain("PID", &explanation, &error), VIF_OK);
  EXPECT_EQ(error, nullptr);
  vif_error_free(first);
  vif_explanation_free(explanation);
}

TEST(CErrorTest, NullIsNoError) {
  EXPECT_EQ(vif_error_status(nullptr), VIF_OK);
  EXPECT_STREQ(vif_error_message(nullptr), "");
  EXPECT_EQ(vif_error_reason_count(nullptr), 0U);
  auto reason = Sized<vif_reason>();
  EXPECT_EQ(vif_error_reason(nullptr, 0, &reason), VIF_ERROR_ARGUMENT);
  vif_error_free(nullptr);
}

}  // namespace
