#include "report/LabelPlacer.h"

#include <gtest/gtest.h>

#include <vector>

namespace vifanalysis {
namespace {

constexpr Box kBounds{0, 0, 100, 100};
constexpr std::ptrdiff_t kAny = 100;

std::optional<Tenths> LeftOf(const std::optional<Box>& box) { return box ? std::optional(box->left) : std::nullopt; }

std::optional<Tenths> PlacedAt(CLabelPlacer& placer, const std::vector<Box>& candidates,
                               std::ptrdiff_t mostHidden = kAny) {
  return LeftOf(placer.Place(candidates, mostHidden));
}

TEST(LabelPlacerTest, TakesTheFirstOfEqualPlaces) {
  CLabelPlacer placer(kBounds);
  EXPECT_EQ(PlacedAt(placer, {{10, 0, 20, 10}, {30, 0, 40, 10}}), 10);
}

TEST(LabelPlacerTest, PlacesNoLabelOverAnother) {
  CLabelPlacer placer(kBounds);
  EXPECT_EQ(PlacedAt(placer, {{10, 0, 20, 10}}), 10);
  EXPECT_EQ(PlacedAt(placer, {{15, 5, 25, 15}, {20, 0, 30, 10}}), 20);
  EXPECT_EQ(PlacedAt(placer, {{15, 5, 25, 15}}), std::nullopt);
}

TEST(LabelPlacerTest, PlacesNoLabelOutside) {
  CLabelPlacer placer(kBounds);
  EXPECT_EQ(PlacedAt(placer, {{-1, 0, 9, 10}, {0, -1, 9, 9}, {91, 0, 101, 10}, {0, 91, 10, 101}}), std::nullopt);
  EXPECT_EQ(PlacedAt(placer, {{90, 90, 100, 100}}), 90);
}

TEST(LabelPlacerTest, HidesAsFewLinesAsPossible) {
  CLabelPlacer placer(kBounds);
  placer.Avoid({0, 0, 20, 20});
  placer.Avoid({15, 0, 30, 20});
  EXPECT_EQ(PlacedAt(placer, {{10, 0, 20, 10}, {21, 0, 30, 10}}), 21);
}

TEST(LabelPlacerTest, HidesNoMoreLinesThanAllowed) {
  CLabelPlacer placer(kBounds);
  placer.Avoid({0, 0, 100, 100});
  EXPECT_EQ(PlacedAt(placer, {{10, 0, 20, 10}}, 0), std::nullopt);
  EXPECT_EQ(PlacedAt(placer, {{10, 0, 20, 10}}, 1), 10);
}

}  // namespace
}  // namespace vifanalysis
