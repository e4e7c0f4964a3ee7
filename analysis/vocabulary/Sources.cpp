// Where the facts of the vocabulary come from.
#include <analysis/Vocabulary.h>

#include <algorithm>
#include <iterator>

namespace vifanalysis {

namespace {

constexpr VocabularySource kSources[] = {
    {"C", "180 real files of 87 product families; everything that is counted is counted in them", "1.11-3.36"},
    {"N", "the field's name, with the values that were seen", ""},
    {"S1", "the first page of the revision history in a public copy of the format's definition", "0.5-1.34"},
    {"S2", "a public generator of VIFs: its list of fields with types, its texts and its history", "1.11-3.18"},
    {"S3", "a public device tree binding and its script, which describe VIF fields in words", "3.19"},
    {"S4", "two public application notes on filling in a VIF", "3.2x-3.3x"},
    {"S5", "public configuration headers that name their settings after VIF fields", "1.00-3.2x"},
    {"S6", "public headers with the bit fields of USB PD's discovery objects, whose codes files are taken to repeat",
     ""},
    {"S7", "public override fragments for the generator S2", "3.12-3.18"},
    {"S8", "the public source of a compliance test, which names the fields that it compares", "about 2.x"},
};

}  // namespace

std::span<const VocabularySource> VocabularySources() noexcept { return kSources; }

const VocabularySource* FindVocabularySource(std::string_view code) noexcept {
  const auto* const found = std::find_if(std::begin(kSources), std::end(kSources),
                                         [code](const VocabularySource& source) { return source.code == code; });
  return found != std::end(kSources) ? found : nullptr;
}

}  // namespace vifanalysis
