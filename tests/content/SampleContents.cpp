#include "SampleContents.h"

#include "BaseUtilities/StringConvert.h"
#include "platforms/RandomTextVif.h"
#include "platforms/RandomXmlVif.h"
#include "support/Random.h"
#include "support/XmlVif.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string_view>

namespace testsupport {

namespace {

std::string BytesOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// The characters of a text that is ASCII or UTF-8 as UTF-16.
std::string Utf16Of(std::string_view text, bool isBigEndian) {
  std::string bytes;
  for (const wchar_t c : Utf8ToUtf16(text)) {
    const char low = static_cast<char>(c & 0xFF);
    const char high = static_cast<char>((c >> 8) & 0xFF);
    bytes += isBigEndian ? high : low;
    bytes += isBigEndian ? low : high;
  }
  return bytes;
}

std::string Spoiled(std::string bytes, std::mt19937_64& generator) {
  if (bytes.empty()) return bytes;
  for (std::size_t i = RandomBelow(generator, 4); i > 0; --i) {
    bytes[RandomBelow(generator, bytes.size())] = static_cast<char>(RandomBelow(generator, 256));
  }
  return bytes;
}

}  // namespace

std::vector<SampleContent> ContentsInSources() {
  std::vector<SampleContent> contents;
  for (const char* folder : {"examples/vif", "docs", "tests/analysis/clean"}) {
    for (const auto& entry : std::filesystem::directory_iterator(std::filesystem::path(SOURCE_FOLDER) / folder)) {
      const std::filesystem::path extension = entry.path().extension();
      if (extension != ".txt" && extension != ".xml") continue;
      contents.push_back({entry.path().filename().string(), BytesOf(entry.path())});
    }
  }
  return contents;
}

std::vector<SampleContent> OddContents() {
  const std::string xml = XmlVif("<vif:TID>1</vif:TID>");
  const std::string declared = "<?xml version=\"1.0\" encoding=\"";
  const std::string nul(1, '\0');
  std::vector<SampleContent> contents;
  const auto addBoth = [&](const std::string& bytes) {
    contents.push_back({"odd.txt", bytes});
    contents.push_back({"ODD.XML", bytes});
  };
  for (const char* text : {"", "\n", "\xEF\xBB\xBF", "\xFF\xFE", "\xFE\xFF", "\xFF", "<", "<a", "<a/>", "PID: 1",
                           "PID: 1\r\nXID: 2\r\n", "PID: 1\x1AXID: 2", "PID: 1\n\x1A\nXID: 2\n", "\x4C\x6F\xA7\x94"}) {
    addBoth(text);
  }
  for (const char* encoding : {"utf-8", "utf8", "UTF-16", "windows-1252", "Shift_JIS", "", "no-such-encoding"}) {
    addBoth(declared + encoding + "\"?>" + xml.substr(xml.find('\n')));
  }
  addBoth(xml);
  addBoth("\xEF\xBB\xBF" + xml);
  addBoth(nul);
  addBoth("PID: 1\n" + nul + "XID: 2\nPID: 3" + nul + "\n");
  addBoth(xml.substr(0, 150) + nul + xml.substr(150));
  addBoth(xml + nul);
  addBoth("<!DOCTYPE a [<!ENTITY e 'text'>]><a>&e;</a>");
  for (const bool isBigEndian : {false, true}) {
    const std::string utf16 = Utf16Of(xml.substr(xml.find('\n') + 1), isBigEndian);
    const std::string mark = isBigEndian ? "\xFE\xFF" : "\xFF\xFE";
    addBoth(utf16);
    addBoth(mark + utf16);
    addBoth(mark + utf16.substr(0, utf16.size() - 1));
    addBoth(mark + utf16 + nul + nul);
  }
  // As long as a file is read in one piece, and a NUL in a later piece.
  constexpr std::size_t piece = std::size_t{1} << 20;
  addBoth(std::string(piece, ' '));
  addBoth(std::string(piece + 1, '\n') + "PID: 1\n");
  addBoth("<?xml " + nul + std::string(piece, ' ') + "encoding='EBCDIC'?><a/>");
  addBoth("<?xml " + std::string(2 * piece, ' ') + nul + "encoding='EBCDIC'?><a/>");
  std::string deep;
  for (int i = 0; i < 300; ++i) deep += "<a>";
  addBoth(deep);
  return contents;
}

std::vector<SampleContent> GeneratedContents(std::size_t count) {
  std::mt19937_64 generator = SeededGenerator();
  std::vector<SampleContent> contents;
  for (std::size_t i = 0; i < count; ++i) {
    for (const bool isXml : {false, true}) {
      const std::string bytes = isXml ? platforms::RandomXmlVif(generator) : platforms::RandomTextVif(generator);
      const std::string name = std::to_string(i) + (isXml ? ".xml" : ".txt");
      contents.push_back({name, bytes});
      contents.push_back({"cut" + name, bytes.substr(0, RandomBelow(generator, bytes.size() + 1))});
      contents.push_back({"spoiled" + name, Spoiled(bytes, generator)});
      if (i % 4 == 0) contents.push_back({"wide" + name, "\xFF\xFE" + Utf16Of(bytes, false)});
    }
  }
  return contents;
}

}  // namespace testsupport
