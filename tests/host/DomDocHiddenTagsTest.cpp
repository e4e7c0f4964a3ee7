// Tags that a check of the bytes does not see.
#include "TestUtilities/DOMDoc.h"
#include "support/TempDir.h"
#include "support/Watchdog.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>

namespace {

std::string Attributes(int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += " a" + std::to_string(i) + "='1'";
  return text;
}

bool IsValid(const std::string& document) {
  const testsupport::TempDir dir;
  return CDOMDoc({}).ValidateDoc(dir.Write("x.xml", document));
}

// A parser that compares each of so many attributes with all others takes half a minute.
TEST(HiddenTagsTest, TagsAfterAnErrorTakeNoTime) {
  const testsupport::CWatchdog watchdog(std::chrono::seconds(60));
  const std::string tag = "<x" + Attributes(400'000) + "/></r>";
  const std::string value = "<a b=\"" + std::string(2000, ' ');
  for (const char* before : {"<![foo[ ", "<!-x ", "<?p \x01 ", "<!-- \x01 ", "<![CDATA[ \x01 ", value.c_str()}) {
    EXPECT_FALSE(IsValid(std::string("<r>").append(before) + tag)) << before;
  }
}

TEST(HiddenTagsTest, CharactersOfTwoBytesHideNoAttributes) {
  const std::string tag = "<![CDATA[\x83\x5D]><!-- ]]><x" + Attributes(1001) + "/></r>";
  for (const char* encoding : {"Shift_JIS", "CP932", "GBK", "GB18030", "Big5"}) {
    EXPECT_FALSE(IsValid(std::string("<?xml version='1.0' encoding='").append(encoding) + "'?><r>" + tag)) << encoding;
  }
}

}  // namespace
