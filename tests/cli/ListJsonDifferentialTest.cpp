// Compares the output of `vif list --format json` with the same document written by a JSON library.
#include "support/Random.h"
#include "support/TempDir.h"
#include "support/VifCommand.h"

#include <VendorInfoFile.h>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cstddef>
#include <random>
#include <string>
#include <tuple>

namespace {

using nlohmann::ordered_json;
using testsupport::RandomBelow;
using testsupport::TempDir;

using Generator = std::mt19937_64;

std::string Dump(const ordered_json& json) { return json.dump(-1, ' ', false, ordered_json::error_handler_t::replace); }

ordered_json ToJson(const VifIndex& slot) {
  const auto& [location, number] = slot;
  const bool hasNumber = number != CVIFField::INDEX_NOT_SPECIFIED;
  return {{"location", GetVifLocInfo(location).name}, {"index", hasNumber ? ordered_json(number) : ordered_json()}};
}

ordered_json ToJson(const CVIFField& field) {
  ordered_json indexes = ordered_json::array();
  for (const VifIndex& slot : field.Indexes()) {
    if (std::get<0>(slot) != eVifLocUnset) indexes.push_back(ToJson(slot));
  }
  ordered_json number;
  if (field.IsNumeric() && field.GetULongNumericValue() != CVIFField::VIF_VALUE_UNSET_64) {
    number = field.GetULongNumericValue();
  }
  return {{"name", field.Name()},         {"value", field.Value()}, {"description", field.Description()},
          {"numeric", field.IsNumeric()}, {"number", number},       {"indexes", indexes}};
}

/// The document that is expected for a file.
std::string DocumentOf(const std::string& file, const CVendorInfoFile& vif) {
  std::string text = "{\"files\":" + Dump(ordered_json::array({file})) + ",\n\"componentCount\":";
  text.append(std::to_string(vif.ComponentCount())).append(",\n\"fields\":[");
  const char* separator = "\n";
  const VifFieldList fields = vif.GetFields();
  for (const CVIFField& field : *fields) {
    text.append(separator).append(Dump(ToJson(field)));
    separator = ",\n";
  }
  return text + "\n]}\n";
}

/// Lists a file with that content and compares the output.
/// \return the number of fields
std::size_t CheckListed(const TempDir& dir, const std::string& name, const std::string& content) {
  const std::string file = dir.Write(name, content).string();
  const testsupport::ProgramResult result = testsupport::Vif({"list", "--format", "json", file});
  EXPECT_EQ(result.status, 0) << result.error;
  const CVendorInfoFile vif(file);
  EXPECT_EQ(result.output, DocumentOf(file, vif));
  EXPECT_EQ(ordered_json::parse(result.output)["fields"].size(), vif.Count());
  return vif.Count();
}

constexpr char kCtrlZ = '\x1A';  // ends a text file on Windows

/// Random bytes except Ctrl-Z. Many need an escape or are not UTF-8.
std::string RandomBytes(Generator& generator, std::size_t mostBytes) {
  std::string text;
  for (std::size_t i = RandomBelow(generator, mostBytes + 1); i > 0; --i) {
    switch (RandomBelow(generator, 8)) {
      case 0: text += static_cast<char>(1 + RandomBelow(generator, 255)); break;
      case 1: text += "\"\\/\x7F\x1F\t\b\x1B"[RandomBelow(generator, 8)]; break;
      case 2: text += "\u00E4\u20AC\U0001F50C"; break;
      case 3: text += std::string("\xF0\x9F\x94\x8C").substr(0, 1 + RandomBelow(generator, 3)); break;
      default: text += static_cast<char>(' ' + RandomBelow(generator, 95));
    }
  }
  std::erase(text, kCtrlZ);
  return text;
}

TEST(ListJsonDifferentialTest, EveryByteIsListedInEveryText) {
  const TempDir dir;
  std::string content;
  for (int byte = 1; byte < 256; ++byte) {
    const auto c = static_cast<char>(byte);
    if (c == '\n' || c == kCtrlZ) continue;  // they end the line or, on Windows, the file
    content.append("$TID: \"a").append(1, c).append("z\" ; d").append(1, c).append("e\n");
  }
  EXPECT_GE(CheckListed(dir, "a.txt", content), 250U);
}

TEST(ListJsonDifferentialTest, RandomTextsAreListed) {
  SCOPED_TRACE(testsupport::SeedMessage());
  Generator generator = testsupport::SeededGenerator();
  const TempDir dir;
  std::size_t fieldCount = 0;
  for (int i = 0; i < 20; ++i) {
    std::string content;
    for (std::size_t line = RandomBelow(generator, 100); line > 0; --line) {
      content.append(RandomBelow(generator, 2) == 0 ? "$TID" : "$").append(RandomBytes(generator, 1)).append(": \"");
      content.append(RandomBytes(generator, 40)).append("\" ; ").append(RandomBytes(generator, 40)).append("\n");
    }
    fieldCount += CheckListed(dir, "a.txt", content);
  }
  EXPECT_GT(fieldCount, 200U);
}

TEST(ListJsonDifferentialTest, NumbersAndPlacesAreListed) {
  const TempDir dir;
  const std::string content =
      "PID: 0\nPID: 0xFFFFFFFFFFFFFFFE\nPID: 18446744073709551615\nPID: 18446744073709551616\nPD_Port_Type: YES\n"
      "Src_PDO_Voltage: 1\nSrc_PDO_Voltage7: 1\nSVID2_Mode1_Enter_SOP: NO\nUnknown: 1\n$Unknown: \"1\"\n";
  EXPECT_EQ(CheckListed(dir, "a.txt", content), 10U);
}

TEST(ListJsonDifferentialTest, ListsOfManyBlocksAreComplete) {
  SCOPED_TRACE(testsupport::SeedMessage());
  Generator generator = testsupport::SeededGenerator();
  const TempDir dir;
  std::string content;
  for (int i = 0; i < 4000; ++i) {
    content.append("Src_PDO_Voltage").append(std::to_string(i)).append(": ").append(std::to_string(i)).append(" ; ");
    content.append(RandomBytes(generator, 60)).append("\n");
  }
  content.append("$TID: \"").append(200'000, 'v').append("\"\n$TID: \"").append(200'000, '\x7F').append("\"\n");
  EXPECT_EQ(CheckListed(dir, "a.txt", content), 4002U);
}

TEST(ListJsonDifferentialTest, AnEmptyFileHasNoFields) {
  const TempDir dir;
  EXPECT_EQ(CheckListed(dir, "a.txt", ""), 0U);
}

}  // namespace
