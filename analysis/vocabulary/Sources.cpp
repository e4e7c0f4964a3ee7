// Where the facts of the vocabulary and the rules come from.
#include <analysis/Sources.h>

#include <algorithm>
#include <iterator>

namespace vifanalysis {

namespace {

constexpr Source kSources[] = {
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
    {"R1", "a public generator of VIFs, whose code shows which fields follow from one another", ""},
    {"R2",
     "the tables of USB PD revision 3.2 for the ID header and the VDOs of UFP, DFP and cables, from a public header",
     ""},
    {"R3", "USB PD revision 3.1 on PDO lists, fast role swap currents and batteries, from a public header", ""},
    {"R4", "the order that USB PD demands of PDOs, as the Linux kernel checks it", ""},
    {"R5", "the units of PDOs, from the Linux kernel's USB PD headers", ""},
    {"R6", "the ID header, the DFP VDO and the standard IDs of USB PD, from the Linux kernel's headers", ""},
    {"R7", "the Enter_USB message of USB PD, from the Linux kernel's headers", ""},
    {"R8", "a public application note on filling in a VIF, which says what each field follows from", ""},
    {"R9", "another public application note on filling in a VIF, with definitions of fields", ""},
    {"R10", "a public course on USB PD: the voltages and currents that a source of a given power offers", ""},
    {"R12", "a public device tree binding for VIFs, on product types, certification types and the TID", ""},
    {"R13", "a public generator of sink PDOs", ""},
    {"R14", "the revision history of the format's definition", ""},
    {"R15", "a public application note on ports of assured capacity", ""},
    {"R16", "a public data sheet on the port types of BC 1.2", ""},
    {"R17", "a public document on Try.SRC and Try.SNK, which exclude one another", ""},
    {"R18", "a public document on the preferred role of a dual-role port", ""},
    {"R19", "a public manual of a controller that reads the cable and limits the current", ""},
    {"R20", "several public lists of the revisions and versions of USB PD", ""},
};

}  // namespace

std::span<const Source> Sources() noexcept { return kSources; }

const Source* FindSource(std::string_view code) noexcept {
  const auto* const found = std::find_if(std::begin(kSources), std::end(kSources),
                                         [code](const Source& source) { return source.code == code; });
  return found != std::end(kSources) ? found : nullptr;
}

std::vector<std::string> SourcesInWords(std::string_view codes) {
  std::vector<std::string> sources;
  while (!codes.empty()) {
    const std::string_view code = codes.substr(0, codes.find(' '));
    if (const Source* const source = FindSource(code)) sources.emplace_back(source->what);
    codes.remove_prefix(std::min(code.size() + 1, codes.size()));
  }
  return sources;
}

}  // namespace vifanalysis
