// What an observer of the progress of loading is told, and that it can end the loading.
#include "BaseUtilities/Exceptions.h"
#include "SampleContents.h"
#include "VIFContent.h"
#include "VIFInvalidFile.h"
#include "VIFProgress.h"
#include "VendorInfoFile.h"
#include "support/FieldText.h"
#include "support/TempDir.h"
#include "support/XmlVif.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::Pair;
using Calls = std::vector<std::pair<std::uint64_t, std::uint64_t>>;

VifProgressObserver AddTo(Calls& calls) {
  return [&](std::uint64_t done, std::uint64_t total) { calls.emplace_back(done, total); };
}

std::string LongText() {
  std::string text;
  while (text.size() < 300'000) text += "PID: 1 ; a comment\n";
  return text;
}

std::string LongXml() {
  std::string content = "<vif:Component>";
  for (int i = 0; i < 3500; ++i) content += "<vif:Port_Label>a</vif:Port_Label>";
  return testsupport::XmlVif(content + "</vif:Component>");
}

TEST(ProgressTest, ATextFileIsFollowedThroughItsBytes) {
  const std::string text = LongText();
  CVendorInfoFile vif;
  Calls calls;
  AppendVifContent(vif, text, "a.txt", AddTo(calls));
  ASSERT_GE(calls.size(), 6U);
  EXPECT_THAT(calls.front(), Pair(0, text.size()));
  EXPECT_THAT(calls.back(), Pair(text.size(), text.size()));
  for (std::size_t i = 1; i + 1 < calls.size(); ++i) {
    EXPECT_GE(calls[i].first, calls[i - 1].first + 65'536);
    EXPECT_LT(calls[i].first, calls[i - 1].first + 65'636);
  }
}

TEST(ProgressTest, AShortTextFileIsReportedAtItsStartAndEnd) {
  const testsupport::TempDir dir;
  CVendorInfoFile vif;
  Calls calls;
  AppendVifFile(vif, dir.Write("a.txt", "PID: 1\n"), AddTo(calls));
  EXPECT_THAT(calls, ElementsAre(Pair(0, 7), Pair(7, 7)));
  EXPECT_EQ(vif.Count(), 1U);
}

TEST(ProgressTest, AnXmlFileIsReportedWhenItIsValidAndThroughItsFields) {
  const std::string xml = LongXml();
  CVendorInfoFile vif;
  Calls calls;
  AppendVifContent(vif, xml, "a.xml", AddTo(calls));
  const auto whole = Pair(xml.size(), xml.size());
  EXPECT_THAT(calls, ElementsAre(Pair(0, xml.size()), whole, whole, whole, whole, whole));
}

TEST(ProgressTest, ARefusedFileIsReportedAtItsStartOnly) {
  CVendorInfoFile vif;
  Calls calls;
  EXPECT_THROW(AppendVifContent(vif, "<a/>", "a.xml", AddTo(calls)), CVIFInvalidFile);
  EXPECT_THAT(calls, ElementsAre(Pair(0, 4)));
}

TEST(ProgressTest, AMissingFileIsNotReported) {
  const testsupport::TempDir dir;
  CVendorInfoFile vif;
  Calls calls;
  EXPECT_THROW(AppendVifFile(vif, dir.Path() / "a.xml", AddTo(calls)), CZoRunTimeException);
  EXPECT_TRUE(calls.empty());
}

TEST(ProgressTest, NoObserverAndAnyObserverLoadTheSame) {
  for (const testsupport::SampleContent& content : testsupport::GeneratedContents(20)) {
    const auto load = [&](const VifProgressObserver& progress) {
      CVendorInfoFile vif;
      try {
        AppendVifContent(vif, content.bytes, content.name, progress);
      } catch (const CVIFInvalidFile&) {
        return std::vector<std::string>{"not valid"};
      } catch (const CZoRunTimeException&) {
        return std::vector<std::string>{"too deep"};
      }
      return testsupport::FieldTexts(vif.Fields());
    };
    Calls calls;
    EXPECT_EQ(load(AddTo(calls)), load(nullptr)) << content.name;
  }
}

struct Cancelled {};

TEST(ProgressTest, WhateverItThrowsEndsTheLoading) {
  for (const auto& [bytes, name] : {std::pair(LongText(), "a.txt"), std::pair(LongXml(), "a.xml")}) {
    std::size_t most = 0;
    {
      CVendorInfoFile vif;
      Calls calls;
      AppendVifContent(vif, bytes, name, AddTo(calls));
      most = calls.size();
    }
    for (std::size_t cancelAt = 1; cancelAt <= most; ++cancelAt) {
      CVendorInfoFile vif;
      std::size_t count = 0;
      const VifProgressObserver cancel = [&](std::uint64_t, std::uint64_t) {
        if (++count == cancelAt) throw Cancelled();
      };
      EXPECT_THROW(AppendVifContent(vif, bytes, name, cancel), Cancelled);
      EXPECT_EQ(count, cancelAt);
    }
  }
}

}  // namespace
