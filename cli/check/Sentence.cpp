#include "Sentence.h"

#include "FieldText.h"
#include "Text.h"

namespace cli {

std::string Quoted(std::string_view text) {
  constexpr std::size_t widest = 60;
  constexpr std::size_t enoughBytes = widest * 4;  // a character has at most four; one more shows that the text is cut
  const bool isLong = text.size() > enoughBytes + 1;
  return '\'' + CutToWidth(Printable(isLong ? text.substr(0, enoughBytes + 1) : text), widest) + '\'';
}

std::string NameAndPlace(const CVIFField& field) {
  const std::string place = LocationText(field);
  return place.empty() ? Quoted(field.Name()) : Quoted(field.Name()) + " (" + place + ')';
}

std::string Amount(std::size_t count, const std::string& noun) {
  return std::to_string(count) + ' ' + noun + (count == 1 ? "" : "s");
}

}  // namespace cli
