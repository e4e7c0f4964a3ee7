// Documents in many threads, one each, validated against the same schemas.
#include "BaseUtilities/Exceptions.h"
#include "support/Schemas.h"
#include "support/XmlDocument.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <latch>
#include <string>
#include <thread>
#include <vector>

namespace {

using testsupport::CSchemaDocument;
using testsupport::Schema;
using testsupport::TempDir;

namespace fs = std::filesystem;

constexpr int kThreadCount = 8;

/// Runs the action in many threads that start together; it receives the thread's number.
template <typename Action>
void RunInThreads(const Action& action) {
  std::latch start(kThreadCount);
  std::vector<std::thread> threads;
  for (int i = 0; i < kThreadCount; ++i) {
    threads.emplace_back([&, i] {
      start.arrive_and_wait();
      action(i);
    });
  }
  for (std::thread& thread : threads) thread.join();
}

/// Two schemas, one of which includes a file where that is supported, and documents for them.
class DomDocConcurrentTest : public testing::Test {
 protected:
  DomDocConcurrentTest() {
    const std::string numbers = "<xs:element name='n' type='xs:integer'/>";
#ifdef _WIN32
    const std::string content = numbers;
#else
    m_dir.Write("included.xsd", Schema("urn:t", numbers));
    const std::string content = "<xs:include schemaLocation='included.xsd'/>";
#endif
    m_schemas = {{m_dir.Write("t.xsd", Schema("urn:t", content)), "urn:t"},
                 {m_dir.Write("u.xsd", Schema("urn:u", "<xs:element name='n' type='xs:boolean'/>")), "urn:u"}};
    for (int i = 0; i < kThreadCount; ++i) {
      m_valid.push_back(Write(i, "valid", std::to_string(i)));
      m_invalid.push_back(Write(i, "invalid", std::to_string(i) + "x"));
    }
  }

  /// Validates a valid and an invalid document of the thread's own; returns whether the results were right.
  bool ValidateOwn(CSchemaDocument& document, int thread) const {
    const auto index = static_cast<std::size_t>(thread);
    if (!document.ValidateDoc(m_valid[index]) || document.ValidateDoc(m_invalid[index])) return false;
    if (document.Problems().size() != 1) return false;
#ifdef _WIN32  // MSXML has its own words
    return !document.Problems().front().reason.empty();
#else
    return document.Problems().front().reason.find(std::to_string(thread) + "x'") != std::string::npos;
#endif
  }

  const CSchemaDocument::Schemas& Schemas() const { return m_schemas; }

  const fs::path& Invalid() const { return m_invalid.front(); }

 private:
  fs::path Write(int number, const std::string& name, const std::string& value) const {
    return m_dir.Write(name + std::to_string(number) + ".xml", "<n xmlns='urn:t'>" + value + "</n>");
  }

  TempDir m_dir;
  CSchemaDocument::Schemas m_schemas;
  std::vector<fs::path> m_valid;
  std::vector<fs::path> m_invalid;
};

TEST_F(DomDocConcurrentTest, ThreadsMayCompileTheSchemasAtOnce) {
  std::atomic<int> failures = 0;
  RunInThreads([&](int thread) {
    CSchemaDocument document(Schemas());
    if (!ValidateOwn(document, thread)) ++failures;
  });
  EXPECT_EQ(failures, 0);
}

TEST_F(DomDocConcurrentTest, ThreadsMayValidateWhileASchemaChanges) {
  std::atomic<int> failures = 0;
  std::atomic<bool> isOver = false;
  std::thread toucher([&] {
    const fs::path& schema = Schemas().front().first;
    const fs::file_time_type begin = fs::last_write_time(schema);
    for (int i = 1; !isOver; ++i) {
      fs::last_write_time(schema, begin + std::chrono::seconds(i));
      std::this_thread::sleep_for(std::chrono::microseconds(200));
    }
  });
  RunInThreads([&](int thread) {
    CSchemaDocument document(Schemas());
    for (int i = 0; i < 50; ++i) {
      if (!ValidateOwn(document, thread)) ++failures;
    }
  });
  isOver = true;
  toucher.join();
  EXPECT_EQ(failures, 0);
}

TEST_F(DomDocConcurrentTest, ThreadsMayFailToLoadSchemasAtOnce) {
  std::atomic<int> errors = 0;
  RunInThreads([&](int thread) {
    for (int i = 0; i < 20; ++i) {
      CSchemaDocument broken({{Schemas().front().first, "urn:wrong"}});
      try {
        broken.ValidateDoc(Invalid());
      } catch (const CZoDOMDocException&) {
        ++errors;
      }
      CSchemaDocument document(Schemas());
      if (!ValidateOwn(document, thread)) --errors;
    }
  });
  EXPECT_EQ(errors, kThreadCount * 20);
}

TEST_F(DomDocConcurrentTest, ThreadsMayUseTheNodesOfTheirOwnDocuments) {
  std::atomic<int> failures = 0;
  RunInThreads([&](int thread) {
    const std::string text = std::to_string(thread);
    for (int i = 0; i < 20; ++i) {
      testsupport::CTextDocument document("<a><b>" + text + "</b></a>");
      for (const wchar_t* xpath : {L"b", L"//b", L"*[1]"}) {
        if (testsupport::Text(*testsupport::SelectOne(document.Root(), xpath)) != text) ++failures;
      }
    }
  });
  EXPECT_EQ(failures, 0);
}

TEST_F(DomDocConcurrentTest, ThreadsMaySetAndReadTheSchemaDirectory) {
  const fs::path first = Schemas().front().first.parent_path() / "1";
  const fs::path second = Schemas().front().first.parent_path() / "2";
  std::atomic<int> failures = 0;
  RunInThreads([&](int thread) {
    for (int i = 0; i < 100; ++i) {
      CDOMDoc::SetSchemaDirectory(thread % 2 == 0 ? first : second);
      const fs::path found = fs::path(CDOMDoc::MakeFullSchemaPath(L"missing.xsd")).parent_path();
      if (found != first && found != second) ++failures;
    }
  });
  CDOMDoc::SetSchemaDirectory({});
  EXPECT_EQ(failures, 0);
}

}  // namespace
