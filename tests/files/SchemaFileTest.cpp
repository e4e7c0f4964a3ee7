// Schema files that misbehave while they are read.
#include "BaseUtilities/StringConvert.h"
#include "FileTest.h"
#include "TestUtilities/DOMDoc.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace {

using testsupport::CFileCalls;
using testsupport::CheckXml;
using testsupport::FileCall;
using testsupport::FileCallFate;
using testsupport::FileScript;
using testsupport::ReadOutcome;

namespace fs = std::filesystem;

using Kind = FileCall::Kind;

constexpr const char* kNames[] = {"VendorInfoFile.xsd", "VendorInfoFileOptionalContent.xsd"};

/// A schema is opened twice: to be examined, and to be compiled.
constexpr std::size_t kOpenings[] = {1, 2};

/// Applies the script to the calls of one of the openings only.
FileScript At(std::size_t opening, FileScript script) {
  return [=, opened = std::size_t{0}](const FileCall& call) mutable -> FileCallFate {
    if (call.kind == Kind::Open) ++opened;
    return opened == opening ? script(call) : FileCallFate();
  };
}

FileScript Fails(Kind kind, int error) {
  return [=](const FileCall& call) { return FileCallFate{call.kind == kind ? error : 0}; };
}

/// The reason given for a file that cannot be used; the compiler words it differently.
std::string Reason(std::size_t opening, const std::string& what) {
  return opening == 1 ? "The file " + what + "." : "the file " + what;
}

FileScript FailsAfter(std::size_t readable) {
  return [=](const FileCall& call) -> FileCallFate {
    if (call.kind != Kind::Read) return {};
    if (call.position >= readable) return {EIO};
    return {0, readable - call.position};
  };
}

/// Numbers up to and including the greatest.
std::vector<std::size_t> Samples(std::size_t greatest) {
  constexpr std::size_t count = 30;
  std::vector<std::size_t> samples;
  for (std::size_t i = 0; i <= count; ++i) samples.push_back(greatest * i / count);
  return samples;
}

class SchemaFileTest : public testsupport::CFileTest {
 protected:
  SchemaFileTest() : m_whole(Append(WriteXml())) {
    for (const char* name : kNames) {
      const fs::path installed = Utf16ToUtf8(CDOMDoc::MakeFullSchemaPath(fs::path(name).wstring().c_str()));
      std::ifstream stream(installed, std::ios::binary);
      m_contents.emplace_back(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
    }
    UseNewSchemas();
  }

  void TearDown() override { CDOMDoc::SetSchemaDirectory({}); }

  /// Sets a directory with schemas that have never been compiled.
  void UseNewSchemas() {
    m_directory = Dir().Path() / ("schemas" + std::to_string(++m_count));
    fs::create_directory(m_directory);
    for (std::size_t i = 0; i < m_contents.size(); ++i) Dir().Write(m_directory / kNames[i], m_contents[i]);
    CDOMDoc::SetSchemaDirectory(m_directory);
  }

  fs::path SchemaPath(const char* name) const { return m_directory / name; }

  /// Expects that loading fails with that message about the schema and loses nothing, and that it succeeds once the
  /// schema has recovered.
  void ExpectError(const char* name, const FileScript& script, const std::string& reason) {
    const ReadOutcome expected = Ended("Couldn't load the schema " + SchemaPath(name).native() + ": " + reason);
    {
      const CFileCalls calls(SchemaPath(name), script);
      EXPECT_EQ(Append(XmlPath()), expected);
      EXPECT_EQ(NewComponents(), 0U);
    }
    {
      const CFileCalls calls(SchemaPath(name), script);
      EXPECT_EQ(CheckXml(XmlPath()), expected);
    }
    if (HasFailure()) return;
    EXPECT_EQ(Append(XmlPath()), m_whole);
    UseNewSchemas();
  }

  void ExpectNoError(const char* name, const FileScript& script) {
    const CFileCalls calls(SchemaPath(name), script);
    EXPECT_EQ(Append(XmlPath()), m_whole);
    EXPECT_GT(calls.Count(Kind::Read), 0U);
    UseNewSchemas();
  }

  std::size_t SizeOf(const char* name) const { return static_cast<std::size_t>(fs::file_size(SchemaPath(name))); }

 private:
  ReadOutcome m_whole;
  std::vector<std::string> m_contents;
  fs::path m_directory;
  int m_count = 0;
};

TEST_F(SchemaFileTest, CannotBeOpened) {
  for (const char* name : kNames) {
    for (const std::size_t opening : kOpenings) {
      for (const int error : {EACCES, EIO, EMFILE, ENOMEM, ELOOP}) {
        SCOPED_TRACE(testing::Message() << name << ", opening " << opening << ", error " << error);
        for (const Kind kind : {Kind::Open, Kind::Status}) {
          ExpectError(name, At(opening, Fails(kind, error)), Reason(opening, "cannot be opened: " + ErrorText(error)));
        }
      }
    }
  }
}

TEST_F(SchemaFileTest, CannotBeRead) {
  for (const char* name : kNames) {
    for (const std::size_t readable : Samples(SizeOf(name))) {
      SCOPED_TRACE(testing::Message() << name << ", readable " << readable);
      ExpectError(name, At(1, FailsAfter(readable)), Reason(1, "cannot be read: " + ErrorText(EIO)));
      if (HasFailure()) return;
    }
  }
}

TEST_F(SchemaFileTest, CannotBeReadAgainToBeCompiled) {
  for (const char* name : kNames) {
    for (const std::size_t readable : Samples(SizeOf(name) - 10)) {
      SCOPED_TRACE(testing::Message() << name << ", readable " << readable);
      ExpectError(name, At(2, FailsAfter(readable)), Reason(2, "cannot be read: " + ErrorText(EIO)));
      if (HasFailure()) return;
    }
  }
}

TEST_F(SchemaFileTest, ReadInPiecesGivesTheSame) {
  for (const char* name : kNames) {
    for (const std::size_t size : {1U, 3U, 1000U}) {
      ExpectNoError(name, [=](const FileCall& call) {
        return FileCallFate{call.kind == Kind::Read && call.number % 2 == 0 ? EINTR : 0, size};
      });
    }
  }
}

TEST_F(SchemaFileTest, VanishesBeforeItIsOpened) {
  for (const char* name : kNames) {
    for (const std::size_t opening : kOpenings) {
      SCOPED_TRACE(testing::Message() << name << ", opening " << opening);
      const fs::path schema = SchemaPath(name);
      {
        const CFileCalls calls(schema, At(opening, [&](const FileCall& call) {
                                 if (call.kind == Kind::Open) fs::remove(schema);
                                 return FileCallFate();
                               }));
        EXPECT_EQ(Append(XmlPath()), Ended("Couldn't load the schema " + schema.native() + ": " +
                                           Reason(opening, "cannot be opened: " + ErrorText(ENOENT))));
      }
      UseNewSchemas();
    }
  }
}

TEST_F(SchemaFileTest, VanishesWhileItIsRead) {
  for (const char* name : kNames) {
    for (const std::size_t opening : kOpenings) {
      const fs::path schema = SchemaPath(name);
      const fs::path away = Dir().Path() / "away";
      ExpectNoError(name, [=, opened = 0U](const FileCall& call) mutable {
        if (call.kind == Kind::Open && opened++ == opening) fs::rename(away, schema);
        if (call.kind == Kind::Read && opened == opening && fs::exists(schema)) fs::rename(schema, away);
        return FileCallFate();
      });
    }
  }
}

TEST_F(SchemaFileTest, GrowsWhileItIsRead) {
  for (const char* name : kNames) {
    const fs::path schema = SchemaPath(name);
    ExpectNoError(name, [=](const FileCall& call) {
      if (call.kind == Kind::Read && call.number < 100) std::ofstream(schema, std::ios::app) << "<!-- grown -->\n";
      return FileCallFate{0, 500};
    });
  }
}

TEST_F(SchemaFileTest, IsAnErrorIfCutWhileItIsRead) {
  for (const char* name : kNames) {
    for (const std::size_t opening : kOpenings) {
      for (const std::size_t parts : {0U, 1U, 2U, 3U}) {
        SCOPED_TRACE(testing::Message() << name << ", opening " << opening << ", " << parts << " fourths");
        const fs::path schema = SchemaPath(name);
        const std::size_t size = SizeOf(name) * parts / 4;
        {
          const CFileCalls calls(schema, At(opening, [=](const FileCall& call) {
                                   if (call.kind == Kind::Read && call.number > 1) fs::resize_file(schema, size);
                                   return FileCallFate{0, 100};
                                 }));
          const ReadOutcome outcome = Append(XmlPath());
          EXPECT_TRUE(outcome.found.empty());
          EXPECT_TRUE(outcome.error.starts_with("Couldn't load the schema " + schema.native() + ": ")) << outcome.error;
        }
        UseNewSchemas();
      }
    }
  }
}

TEST_F(SchemaFileTest, ChangeDuringTheReadIsSeenAtTheNextLoad) {
  const fs::path schema = SchemaPath(kNames[0]);
  {
    const CFileCalls calls(schema, At(2, [&](const FileCall& call) {
                             if (call.kind == Kind::Read && call.position > 0)
                               std::ofstream(schema, std::ios::app) << "x";
                             return FileCallFate{0, SizeOf(kNames[0])};
                           }));
    Append(XmlPath());
  }
  EXPECT_TRUE(Append(XmlPath()).error.starts_with("Couldn't load the schema " + schema.native() + ": "));
}

}  // namespace
