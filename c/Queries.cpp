// Queries. What they find are positions.
#include "File.h"
#include "Guard.h"
#include "Indexes.h"

#include <VIFPositions.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

struct vif_positions : vifc::CHandle<vifc::HandleKind::Positions> {
  explicit vif_positions(std::vector<std::size_t> positions) : list(std::move(positions)) {}

  const std::vector<std::size_t> list;
};

namespace vifc {

namespace {

using Positions = std::vector<std::size_t>;

/// What a caller asks for.
struct Query {
  const vif_file* file;
  const char* pattern;
  const vif_index* places;
  std::size_t count;
};

Positions Find(const Query& query) {
  const vif_file& file = Usable(query.file);
  return FindVifFields(file.content.file, query.pattern, SlotsOf(query.places, query.count, VIF_INDEX_COUNT));
}

Positions FindFirst(const Query& query) {
  const vif_file& file = Usable(query.file);
  const Slots slots = SlotsOf(query.places, query.count, VIF_INDEX_COUNT - 1);
  return FindFirstVifFields(file.content.file, query.pattern, slots[0], slots[1]);
}

/// "in "dock.xml" that matched with "PID"".
std::string Described(const Query& query) {
  const std::string& name = query.file->content.name;
  return "in " + (name.empty() ? std::string("this VIF") : "\"" + name + "\"") + " matched with \"" +
         (query.pattern != nullptr ? query.pattern : "") + "\".";
}

std::size_t Only(const Positions& positions, const Query& query) {
  if (positions.empty()) throw CFailure(VIF_ERROR_NOT_FOUND, "No field " + Described(query));
  if (positions.size() == 1) return positions.front();
  throw CFailure(VIF_ERROR_AMBIGUOUS, std::to_string(positions.size()) + " fields " + Described(query));
}

vif_status GivePositions(Positions (*find)(const Query&), const Query& query, vif_positions** positions,
                         vif_error** error) {
  return Guarded(error, [&] {
    Require(positions != nullptr, "there is nowhere to put the positions");
    *positions = nullptr;
    *positions = new vif_positions(find(query));
  });
}

vif_status GivePosition(Positions (*find)(const Query&), const Query& query, std::size_t* position, vif_error** error) {
  return Guarded(error, [&] {
    Require(position != nullptr, "there is nowhere to put the position");
    *position = VIF_NO_POSITION;
    *position = Only(find(query), query);
  });
}

}  // namespace

}  // namespace vifc

vif_status vif_file_count(const vif_file* file, const char* pattern, const vif_index* places, size_t place_count,
                          size_t* count, vif_error** error) {
  return vifc::Guarded(error, [&] {
    vifc::Require(count != nullptr, "there is nowhere to put the count");
    *count = 0;
    const CVendorInfoFile& content = vifc::Usable(file).content.file;
    *count = content.Count(pattern, vifc::SlotsOf(places, place_count, VIF_INDEX_COUNT));
  });
}

vif_status vif_file_find(const vif_file* file, const char* pattern, const vif_index* places, size_t place_count,
                         vif_positions** positions, vif_error** error) {
  return vifc::GivePositions(vifc::Find, {file, pattern, places, place_count}, positions, error);
}

vif_status vif_file_find_first(const vif_file* file, const char* pattern, const vif_index* places, size_t place_count,
                               vif_positions** positions, vif_error** error) {
  return vifc::GivePositions(vifc::FindFirst, {file, pattern, places, place_count}, positions, error);
}

vif_status vif_file_find_unique(const vif_file* file, const char* pattern, const vif_index* places, size_t place_count,
                                size_t* position, vif_error** error) {
  return vifc::GivePosition(vifc::Find, {file, pattern, places, place_count}, position, error);
}

vif_status vif_file_find_first_unique(const vif_file* file, const char* pattern, const vif_index* places,
                                      size_t place_count, size_t* position, vif_error** error) {
  return vifc::GivePosition(vifc::FindFirst, {file, pattern, places, place_count}, position, error);
}

vif_status vif_file_find_single(const vif_file* file, const char* pattern, const vif_index* places, size_t place_count,
                                size_t* position, vif_error** error) {
  return vifc::Guarded(error, [&] {
    vifc::Require(position != nullptr, "there is nowhere to put the position");
    *position = VIF_NO_POSITION;
    const vifc::Query query = {file, pattern, places, place_count};
    const vifc::Positions positions = vifc::Find(query);
    if (!positions.empty()) *position = vifc::Only(positions, query);
  });
}

size_t vif_positions_count(const vif_positions* positions) {
  return vifc::IsUsable(positions) ? positions->list.size() : 0;
}

const size_t* vif_positions_data(const vif_positions* positions) {
  return vifc::IsUsable(positions) && !positions->list.empty() ? positions->list.data() : nullptr;
}

void vif_positions_free(vif_positions* positions) { vifc::Free(positions); }
