// Handles that several threads use at once.
#include "Handles.h"
#include "support/InAllThreads.h"
#include "support/XmlVif.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace testsupport;

TEST(CThreadTest, ThreadsLoadAndReadAtOnce) {
  const std::string xml = XmlVif("<vif:Component><vif:RP_Value value=\"1\"/></vif:Component>");
  const FilePointer shared = FileOf(xml, "a.xml");
  const std::vector<std::string> expected = CFieldTexts(shared.get());
  InAllThreads([&](std::size_t) {
    for (int i = 0; i < 20; ++i) {
      const FilePointer own = FileOf(xml, "a.xml");
      EXPECT_EQ(CFieldTexts(own.get()), expected);
      EXPECT_EQ(CFieldTexts(shared.get()), expected);
      std::size_t position = 1;
      EXPECT_EQ(vif_file_find_unique(shared.get(), "rp_.*", nullptr, 0, &position, nullptr), VIF_OK);
      EXPECT_EQ(position, 0U);
      CError error;
      EXPECT_EQ(LoadBytes(own.get(), "<a/>", "b.xml", error.Receive()), VIF_ERROR_INVALID);
      EXPECT_EQ(vif_error_reason_count(error.Get()), 1U);
    }
    return true;
  });
}

}  // namespace
