// The field that a misspelled name most probably means.
#include "Alignment.h"
#include "SpellingMatch.h"

#include <analysis/Text.h>
#include <analysis/Vocabulary.h>

#include <algorithm>
#include <vector>

namespace vifanalysis {

namespace {

/// How often each letter is in a text, in any letter case, and underscores as another letter.
class CLetters {
 public:
  explicit CLetters(std::string_view text) {
    for (const char c : text) {
      const char letter = ToLowerAscii(c);
      if (letter >= 'a' && letter <= 'z') {
        ++m_counts[static_cast<std::size_t>(letter - 'a')];
      } else if (letter == '_') {
        ++m_counts.back();
      }
    }
  }

  /// The distance of the two texts is never less, because one edit adds at most one letter and takes one away.
  std::size_t LeastDistance(const CLetters& other) const {
    int more = 0;
    int less = 0;
    for (std::size_t i = 0; i < m_counts.size(); ++i) {
      const int difference = int{m_counts[i]} - int{other.m_counts[i]};
      more += std::max(difference, 0);
      less += std::max(-difference, 0);
    }
    return static_cast<std::size_t>(std::max(more, less));
  }

 private:
  std::array<std::uint8_t, 27> m_counts{};
};

struct Candidate {
  std::string_view spelling;
  CLetters letters;
};

/// All names that exist in some edition. Names that differ in letter case only are the same here.
std::vector<Candidate> AllCandidates() {
  std::vector<Candidate> candidates;
  for (const FieldInfo& field : Fields()) candidates.push_back({field.spelling, CLetters(field.spelling)});
  for (const FieldSpelling& row : Spellings()) {
    const bool isRepeated = candidates.back().spelling == row.spelling;
    if (row.kind == NameKind::OlderField && !isRepeated) candidates.push_back({row.spelling, CLetters(row.spelling)});
  }
  return candidates;
}

const std::vector<Candidate>& Candidates() {
  static const std::vector<Candidate> candidates = AllCandidates();
  return candidates;
}

/// How many mistakes a name may have: one in five letters.
std::size_t MostMistakes(std::string_view name) {
  const auto digits = static_cast<std::size_t>(std::count_if(name.begin(), name.end(), IsDigit));
  const std::size_t letters = name.size() - digits;
  return letters < 3 ? 0 : std::clamp<std::size_t>(letters / 5, 1, 5);
}

/// The nearest candidate's spelling with the name's digits; empty when none is near or two are equally near.
std::string Nearest(std::string_view name) {
  if (name.size() > CAlignment::kMaxLength) return {};
  const CLetters letters(name);
  std::size_t least = MostMistakes(name) + 1;
  std::string nearest;
  for (const Candidate& candidate : Candidates()) {
    if (letters.LeastDistance(candidate.letters) > least) continue;
    const CAlignment alignment(name, candidate.spelling);
    if (alignment.Distance() > least) continue;
    const bool isNearer = alignment.Distance() < least;
    nearest = isNearer ? alignment.Corrected() : std::string();
    least = alignment.Distance();
  }
  return nearest;
}

/// Text files write a text field with a dollar sign.
std::string WithDollarSign(std::string name) {
  if (name.empty() || name.front() == '$' || FindField(name).field->type != FieldType::Text) return name;
  return "$" + name;
}

}  // namespace

std::string SuggestField(std::string_view name) {
  const bool hasDollarSign = name.starts_with('$');
  std::string suggestion;
  switch (const NameMatch match = FindField(name); match.kind) {
    case NameKind::Unknown: suggestion = Nearest(hasDollarSign ? name.substr(1) : name); break;
    case NameKind::LetterCase:
    case NameKind::OtherSpelling:
    case NameKind::Mistake: suggestion = WithDigits(match.field->spelling, match.indexDigits); break;
    case NameKind::Canonical:
    case NameKind::TextForm:
    case NameKind::OlderField:
    case NameKind::NewerField:
    case NameKind::XmlStructure:
    case NameKind::OptionalContent: break;
  }
  return hasDollarSign ? WithDollarSign(std::move(suggestion)) : suggestion;
}

}  // namespace vifanalysis
