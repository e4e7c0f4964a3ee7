#include "Header.h"

#include "HeaderReader.h"
#include "Lines.h"
#include "Mdoc.h"

#include <cctype>

namespace manual {

namespace {

using Kind = HeaderItem::Kind;

/// "vif_file *file" for "vif_file* file", as C programs and their manuals have it.
std::string InC(const std::string& declaration) {
  std::string text;
  for (const char c : declaration) {
    const bool isAfterStar = !text.empty() && text.back() == '*' && c == ' ';
    if (c == '*' && !text.empty() && text.back() != ' ' && text.back() != '(' && text.back() != '*') text += ' ';
    if (!isAfterStar) text += c;
  }
  return text;
}

std::string TextBlocks(const std::vector<std::string>& paragraphs) {
  std::string blocks;
  for (const std::string& paragraph : paragraphs) {
    const bool isCode = paragraph.starts_with(' ');
    if (!blocks.empty() && !isCode) blocks += ".Pp\n";
    blocks += isCode ? Literal(paragraph) : Paragraph(paragraph);
  }
  return blocks;
}

std::string Parameters(const std::string& declaration) {
  const std::size_t begin = declaration.find('(') + 1;
  std::string arguments;
  for (const std::string_view argument :
       Split(std::string_view(declaration).substr(begin, declaration.rfind(')') - begin), ',')) {
    arguments += ' ' + Argument(InC(std::string(argument.substr(argument.starts_with(' ') ? 1 : 0))));
  }
  return arguments;
}

std::string Prototype(const HeaderItem& function) {
  const std::string& declaration = function.declaration;
  const std::string type = declaration.substr(0, declaration.find(function.name + '('));
  return ".Ft " + Argument(InC(type.substr(0, type.size() - 1))) + "\n.Fn " + function.name + Parameters(declaration) +
         '\n';
}

std::string Capitalised(std::string text) {
  if (!text.empty()) text[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(text[0])));
  return text;
}

std::string MemberList(const HeaderItem& item, const char* macro) {
  std::string list;
  for (const HeaderMember& member : item.members) {
    list += std::string(".It ") + macro + ' ' + Argument(InC(member.declaration)) + '\n' +
            Paragraph(Sentence(Capitalised(member.comment)));
  }
  return list.empty() ? list : ".Bl -tag -width Ds -compact\n" + list + ".El\n";
}

std::string ItemBlock(const HeaderItem& item) {
  const std::string comment = TextBlocks(item.comment);
  switch (item.kind) {
    case Kind::Function: return ".It Fn " + item.name + '\n' + comment;
    case Kind::Structure: return ".It Vt " + item.name + '\n' + comment + MemberList(item, "Va");
    case Kind::Handle: return ".It Vt " + item.name + '\n' + comment;
    case Kind::Type:
      return ".It Vt " + item.name + "\n.Li " + Argument(InC(item.declaration)) + '\n' +
             (comment.empty() ? "" : ".Pp\n" + comment);
    case Kind::Constants:
    case Kind::Part: break;  // not items of a list
  }
  return {};
}

/// Constants that are defined together, in the list of their part.
std::string ConstantBlock(const HeaderItem& item) {
  if (item.members.size() == 1) return ".It Dv " + item.members.front().declaration + '\n' + TextBlocks(item.comment);
  std::string block;
  for (const HeaderMember& member : item.members) {
    block += ".It Dv " + Argument(member.declaration) + '\n' + Paragraph(Sentence(Capitalised(member.comment)));
  }
  return block;
}

}  // namespace

std::string HeaderIntroduction(std::string_view header) {
  std::string introduction = TextBlocks(ReadIntroduction(header));
  introduction[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(introduction[0])));
  return introduction;
}

std::string HeaderFunctions(std::string_view header) {
  std::string prototypes;
  for (const HeaderItem& item : ReadItems(header)) {
    if (item.kind == Kind::Function) prototypes += Prototype(item);
  }
  return prototypes;
}

std::string HeaderParts(std::string_view header) {
  std::string parts;
  bool isInList = false;
  for (const HeaderItem& item : ReadItems(header)) {
    if (item.kind == Kind::Part) {
      parts += (isInList ? ".El\n" : "") + (".Ss " + Arguments(item.name) + '\n') + TextBlocks(item.comment);
      isInList = false;
      continue;
    }
    const bool isCommentedEnum = item.kind == Kind::Constants && item.members.size() > 1 && !item.comment.empty();
    if (isCommentedEnum) {
      parts += std::string(isInList ? ".El\n.Pp\n" : "") + TextBlocks(item.comment);
      isInList = false;
    }
    if (!isInList) parts += ".Bl -tag -width Ds\n";
    isInList = true;
    parts += item.kind == Kind::Constants ? ConstantBlock(item) : ItemBlock(item);
  }
  return parts + (isInList ? ".El\n" : "");
}

}  // namespace manual
