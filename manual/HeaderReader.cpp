#include "HeaderReader.h"

#include "Lines.h"

#include <algorithm>
#include <cstddef>
#include <stdexcept>

namespace manual {

namespace {

using Kind = HeaderItem::Kind;

constexpr std::string_view kCommentBegin = "/*";
constexpr std::string_view kCommentEnd = "*/";
constexpr std::string_view kPartBegin = "\\name ";

std::string Trimmed(std::string_view text) {
  const std::size_t begin = text.find_first_not_of(' ');
  if (begin == std::string_view::npos) return {};
  return std::string(text.substr(begin, text.find_last_not_of(' ') - begin + 1));
}

/// Whether a line of a comment is for Doxygen alone: the begin or the end of a part, or the mark of the file.
bool IsMark(std::string_view line) {
  return line.starts_with("\\{") || line.starts_with("\\}") || line.starts_with("\\file");
}

/// The lines of a comment without what marks it as one.
std::vector<std::string> CommentLines(std::string_view comment) {
  comment.remove_prefix(std::min(comment.find_first_not_of("/*<"), comment.size()));
  comment.remove_suffix(kCommentEnd.size());
  std::vector<std::string> lines;
  for (std::string_view line : LinesOf(comment)) {
    if (line.starts_with(" *")) line.remove_prefix(2);
    if (line.starts_with(' ')) line.remove_prefix(1);
    if (!IsMark(line)) lines.emplace_back(line.substr(0, line.find_last_not_of(' ') + 1));
  }
  return lines;
}

/// Joins lines to paragraphs. Lines of code stay lines.
std::vector<std::string> Paragraphs(const std::vector<std::string>& lines) {
  std::vector<std::string> paragraphs;
  bool isNew = true;
  for (const std::string& line : lines) {
    if (Trimmed(line).empty()) {
      isNew = true;
      continue;
    }
    const char* separator = line.starts_with(' ') ? "\n" : " ";
    if (isNew) {
      paragraphs.push_back(line);
    } else {
      paragraphs.back().append(separator).append(line);
    }
    isNew = false;
  }
  return paragraphs;
}

/// Reads the header from its beginning to its end.
class CHeaderReader {
 public:
  explicit CHeaderReader(std::string_view text) : m_rest(text) {}

  bool IsAtEnd() {
    SkipBlanks();
    return m_rest.empty();
  }

  /// Whether a comment is next; if so, takes it.
  bool TakeComment(std::string_view& comment) {
    SkipBlanks();
    if (!m_rest.starts_with(kCommentBegin)) return false;
    comment = Take(m_rest.find(kCommentEnd) + kCommentEnd.size());
    return true;
  }

  /// A macro to the end of its line, anything else to the semicolon outside of braces, with comments.
  std::string_view TakeDeclaration() {
    SkipBlanks();
    if (m_rest.starts_with('#')) return Take(m_rest.find('\n'));
    std::size_t depth = 0;
    for (std::size_t i = 0; i < m_rest.size(); ++i) {
      if (m_rest.substr(i).starts_with(kCommentBegin)) i = m_rest.find(kCommentEnd, i) + 1;
      if (m_rest[i] == '{') ++depth;
      if (m_rest[i] == '}') --depth;
      if (m_rest[i] == ';' && depth == 0) return Take(i + 1);
    }
    throw std::runtime_error("a declaration has no end: " + std::string(m_rest.substr(0, 60)));
  }

 private:
  void SkipBlanks() { m_rest.remove_prefix(std::min(m_rest.find_first_not_of(" \n"), m_rest.size())); }

  std::string_view Take(std::size_t size) {
    const std::string_view taken = m_rest.substr(0, size);
    m_rest.remove_prefix(taken.size());
    return taken;
  }

  std::string_view m_rest;
};

std::string OnOneLine(std::string_view text) {
  std::string line;
  for (const std::string_view word : WordsOf(text)) line.append(line.empty() ? "" : " ").append(word);
  return line;
}

/// The members between braces. The comment of a member ends before the next one.
std::vector<HeaderMember> Members(std::string_view body, char separator) {
  std::vector<HeaderMember> members;
  while (true) {
    const std::size_t begin = body.find_first_not_of(" \n");
    if (begin == std::string_view::npos) return members;
    body.remove_prefix(begin);
    if (body.starts_with(kCommentBegin)) {
      if (members.empty()) throw std::runtime_error("a comment before the first member");
      const std::size_t end = body.find(kCommentEnd) + kCommentEnd.size();
      members.back().comment = OnOneLine(Paragraphs(CommentLines(body.substr(0, end))).front());
      body.remove_prefix(end);
      continue;
    }
    const std::size_t end = std::min({body.find(separator), body.find(kCommentBegin), body.size()});
    members.push_back({OnOneLine(body.substr(0, end)), {}});
    body.remove_prefix(end);
    if (body.starts_with(separator)) body.remove_prefix(1);
  }
}

std::string_view Between(std::string_view text, std::string_view begin, std::string_view end) {
  const std::size_t from = text.find(begin) + begin.size();
  return text.substr(from, text.rfind(end) - from);
}

std::string LastWord(std::string_view text) { return std::string(WordsOf(text).back()); }

HeaderItem ReadFunction(std::string_view declaration) {
  const std::string line = OnOneLine(declaration.substr(std::string_view("VIF_C_API ").size()));
  return {Kind::Function, LastWord(line.substr(0, line.find('('))), line, {}, {}};
}

/// `typedef struct vif_file vif_file;`
bool IsHandle(std::string_view declaration) {
  return declaration.starts_with("typedef struct ") && declaration.find('{') == std::string_view::npos;
}

HeaderItem ReadDeclaration(std::string_view declaration) {
  if (declaration.starts_with("VIF_C_API ")) return ReadFunction(declaration);
  if (declaration.starts_with("#define ")) {
    const std::string name(WordsOf(declaration)[1]);
    return {Kind::Constants, name, {}, {}, {{name, {}}}};
  }
  if (declaration.starts_with("enum {")) {
    return {Kind::Constants, {}, {}, {}, Members(Between(declaration, "{", "}"), ',')};
  }
  if (declaration.find('{') != std::string_view::npos) {
    return {
        Kind::Structure, Trimmed(Between(declaration, "}", ";")), {}, {}, Members(Between(declaration, "{", "}"), ';')};
  }
  if (IsHandle(declaration)) return {Kind::Handle, LastWord(Between(declaration, " ", ";")), {}, {}, {}};
  const std::string line = OnOneLine(declaration);
  const bool isFunction = line.find("(*") != std::string::npos;
  return {Kind::Type,
          isFunction ? std::string(Between(line.substr(0, line.find(')') + 1), "(*", ")"))
                     : LastWord(line.substr(0, line.size() - 1)),
          line.substr(0, line.size() - 1),
          {},
          {}};
}

/// The part that a comment begins, which has its title in the first paragraph.
HeaderItem ReadPart(std::vector<std::string> paragraphs) {
  HeaderItem part = {Kind::Part, paragraphs.front().substr(kPartBegin.size()), {}, {}, {}};
  paragraphs.erase(paragraphs.begin());
  part.comment = std::move(paragraphs);
  return part;
}

std::string_view Body(std::string_view header) {
  constexpr std::string_view begin = "extern \"C\" {\n#endif\n";
  constexpr std::string_view end = "#ifdef __cplusplus\n}\n";
  const std::size_t from = header.find(begin);
  if (from == std::string_view::npos) throw std::runtime_error("the header has no extern \"C\"");
  return header.substr(from + begin.size(), header.rfind(end) - from - begin.size());
}

}  // namespace

std::vector<std::string> ReadIntroduction(std::string_view header) {
  std::string_view comment;
  if (!CHeaderReader(header).TakeComment(comment)) throw std::runtime_error("the header does not begin with a comment");
  return Paragraphs(CommentLines(comment));
}

std::vector<HeaderItem> ReadItems(std::string_view header) {
  std::vector<HeaderItem> items;
  CHeaderReader reader(Body(header));
  while (!reader.IsAtEnd()) {
    std::string_view text;
    std::vector<std::string> comment;
    if (reader.TakeComment(text)) {
      comment = Paragraphs(CommentLines(text));
      if (comment.empty()) continue;  // the end of a part
      if (comment.front().starts_with(kPartBegin)) {
        items.push_back(ReadPart(std::move(comment)));
        continue;
      }
    }
    items.push_back(ReadDeclaration(reader.TakeDeclaration()));
    items.back().comment = std::move(comment);
  }
  return items;
}

}  // namespace manual
