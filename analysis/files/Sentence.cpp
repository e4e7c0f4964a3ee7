#include "Sentence.h"

#include <analysis/FieldText.h>
#include <analysis/Text.h>

namespace vifanalysis {

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

std::string Listed(std::span<const std::string_view> words) {
  std::string list;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (i > 0) list += i + 1 < words.size() ? ", " : " and ";
    list += words[i];
  }
  return list;
}

}  // namespace vifanalysis
