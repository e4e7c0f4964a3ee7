#include "report/PowerPicture.h"

#include "Picture.h"
#include "report/PicturePlane.h"
#include "support/Random.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>
#include <locale>
#include <sstream>

namespace vifanalysis {
namespace {

using testing::AllOf;
using testing::AnyOf;
using testing::Contains;
using testing::ElementsAre;
using testing::Ge;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Le;
using testing::Not;

/// Where an amount is on an axis, by its first and last tick.
double OnAxis(const CPicture& picture, double amount, char unit, std::string_view coordinate) {
  std::vector<SvgElement> ticks = picture.Of("power-tick");
  std::erase_if(ticks, [&](const SvgElement& tick) { return tick.text.back() != unit; });
  const double first = std::stod(ticks.front().text);
  const double last = std::stod(ticks.back().text);
  const double start = ticks.front().Number(coordinate);
  return start + (ticks.back().Number(coordinate) - start) * (amount - first) / (last - first);
}

double X(const CPicture& picture, double volts) { return OnAxis(picture, volts, 'V', "x"); }

/// The base line of a tick's text is a little below its line.
double Y(const CPicture& picture, double amperes) { return OnAxis(picture, amperes, 'A', "y") - 4.2; }

/// The edge of an area or a curve at an x.
double EdgeAt(const SvgElement& path, double x) {
  double edge = std::numeric_limits<double>::max();
  for (const auto& [cornerX, cornerY] : Corners(path)) {
    if (std::abs(cornerX - x) < 0.2) edge = std::min(edge, cornerY);
  }
  return edge;
}

/// The only element with these classes.
SvgElement Only(const CPicture& picture, std::string_view classes) {
  const std::vector<SvgElement> found = picture.Of(classes);
  EXPECT_EQ(found.size(), 1U) << classes;
  return found.empty() ? SvgElement{} : found.front();
}

/// What must hold for every picture.
void ExpectGood(const CPicture& picture) {
  const Tenths height = static_cast<Tenths>(10 * picture.Height());
  const Box bounds{0, 0, kPictureWidth, height};
  const std::vector<Box> boxes = picture.TextBoxes();
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    EXPECT_TRUE(bounds.Contains(boxes[i])) << "text " << i << " in " << picture.Svg();
    for (std::size_t j = 0; j < i; ++j)
      EXPECT_FALSE(boxes[i].Overlaps(boxes[j])) << "texts " << j << " and " << i << " in " << picture.Svg();
  }
  for (const SvgElement& element : picture.Elements()) {
    for (const auto& [name, value] : element.attributes) {
      EXPECT_THAT(name, AnyOf("class", "viewBox", "role", "aria-labelledby", "aria-describedby", "id", "x", "y", "x1",
                              "x2", "y1", "y2", "cx", "cy", "r", "d", "text-anchor"));
      const bool isX = name == "x" || name == "x1" || name == "x2" || name == "cx";
      const bool isY = name == "y" || name == "y1" || name == "y2" || name == "cy";
      if (!isX && !isY) continue;
      EXPECT_THAT(std::stod(value), AllOf(Ge(0), Le(isX ? 720 : picture.Height())));
    }
    for (const auto& [x, y] : Corners(element)) {
      EXPECT_THAT(x, AllOf(Ge(0), Le(720)));
      EXPECT_THAT(y, AllOf(Ge(0), Le(picture.Height())));
    }
  }
}

TEST(PowerPictureTest, DrawsAFixedSupplyAsABarWithItsNumbersAbove) {
  const CPicture picture(CPdoList().Fixed(180, 300));
  const SvgElement bar = Only(picture, "power-bar power-fixed");
  EXPECT_NEAR(bar.Number("x1"), X(picture, 9), 0.1);
  EXPECT_NEAR(bar.Number("x2"), X(picture, 9), 0.1);
  EXPECT_NEAR(bar.Number("y1"), Y(picture, 0), 0.1);
  EXPECT_NEAR(bar.Number("y2"), Y(picture, 3), 0.1);
  EXPECT_THAT(picture.Texts("power-label"), ElementsAre("9 V", "3 A"));
  EXPECT_LT(picture.Of("power-label").back().Number("y"), bar.Number("y2"));
  ExpectGood(picture);
}

TEST(PowerPictureTest, DrawsABatteryBelowItsPower) {
  const CPicture picture(CPdoList().Battery(100, 200, 80));
  const SvgElement area = Only(picture, "power-area power-battery");
  EXPECT_NEAR(EdgeAt(area, X(picture, 5)), Y(picture, 4), 0.15);
  EXPECT_NEAR(EdgeAt(area, X(picture, 10)), Y(picture, 2), 0.15);
  EXPECT_THAT(picture.Texts("power-label"), ElementsAre("Battery 5–10 V · 20 W"));
  ExpectGood(picture);
}

TEST(PowerPictureTest, DrawsAVariableSupplyAsARectangle) {
  const CPicture picture(CPdoList(PdoSide::Sink).Variable(100, 200, 200), 15'000);
  const SvgElement area = Only(picture, "power-area power-variable");
  EXPECT_EQ(Corners(area).size(), 4U);
  EXPECT_NEAR(EdgeAt(area, X(picture, 5)), Y(picture, 2), 0.15);
  EXPECT_NEAR(EdgeAt(area, X(picture, 10)), Y(picture, 2), 0.15);
  EXPECT_THAT(picture.Texts("power-label"), Contains("Variable 5–10 V · 2 A"));
  ExpectGood(picture);
}

TEST(PowerPictureTest, CutsAProgrammableSourceByTheRating) {
  const CPicture picture(CPdoList().Pps(50, 200, 60), 30'000);
  const SvgElement area = Only(picture, "power-area power-pps");
  EXPECT_NEAR(EdgeAt(area, X(picture, 5)), Y(picture, 3), 0.15);
  EXPECT_NEAR(EdgeAt(area, X(picture, 10)), Y(picture, 3), 0.15);
  EXPECT_NEAR(EdgeAt(area, X(picture, 20)), Y(picture, 1.5), 0.15);
  EXPECT_THAT(picture.Texts("power-label"), Contains("PPS 5–20 V · 3 A"));
  ExpectGood(picture);
}

TEST(PowerPictureTest, DoesNotCutWhatAProgrammableSinkAsksFor) {
  const CPicture picture(CPdoList(PdoSide::Sink).Pps(50, 200, 60), 30'000);
  EXPECT_NEAR(EdgeAt(Only(picture, "power-area power-pps"), X(picture, 20)), Y(picture, 3), 0.15);
}

TEST(PowerPictureTest, CutsAnEprAvsByItsOwnRating) {
  const CPicture picture(CPdoList().EprAvs(150, 300, 120));
  const SvgElement area = Only(picture, "power-area power-avs");
  EXPECT_NEAR(EdgeAt(area, X(picture, 15)), Y(picture, 5), 0.15);
  EXPECT_NEAR(EdgeAt(area, X(picture, 30)), Y(picture, 4), 0.15);
  EXPECT_THAT(picture.Texts("power-label"), ElementsAre("EPR AVS 15–30 V · 120 W"));
  ExpectGood(picture);
}

TEST(PowerPictureTest, DrawsAnSprAvsUpTo3AWithoutSayingSo) {
  const CPicture picture(CPdoList().SprAvs(100, 200), 45'000);
  const SvgElement area = Only(picture, "power-area power-avs");
  EXPECT_NEAR(EdgeAt(area, X(picture, 10)), Y(picture, 3), 0.15);
  EXPECT_NEAR(EdgeAt(area, X(picture, 15)), Y(picture, 3), 0.15);
  EXPECT_NEAR(EdgeAt(area, X(picture, 20)), Y(picture, 2.25), 0.15);
  EXPECT_THAT(picture.Texts("power-label"), Contains("SPR AVS 10–20 V"));
}

TEST(PowerPictureTest, DrawsTheRatingAsACurve) {
  const CPicture picture(CPdoList().Fixed(100, 300).Fixed(400, 300), 50'000);
  const SvgElement curve = Only(picture, "power-rating");
  EXPECT_NEAR(EdgeAt(curve, X(picture, 25)), Y(picture, 2), 0.15);
  EXPECT_THAT(picture.Texts("power-watts"), ElementsAre("rating 50 W"));
}

TEST(PowerPictureTest, SaysSoWhenTheRatingIsBeyondThePicture) {
  const CPicture picture(CPdoList().Fixed(100, 300), 240'000);
  EXPECT_THAT(picture.Of("power-rating"), IsEmpty());
  EXPECT_THAT(picture.Texts("power-note"), ElementsAre("Beyond this picture: rating 240 W"));
  ExpectGood(picture);
}

TEST(PowerPictureTest, ShowsWhatASinkAsksFor) {
  const CPicture picture(CPdoList(PdoSide::Sink).Fixed(100, 50));
  EXPECT_THAT(picture.Texts("power-label"), ElementsAre("5 V", "0.5 A"));
  ExpectGood(picture);
}

TEST(PowerPictureTest, LabelsEachPdoOfACrowdedPort) {
  const CPicture picture(EprCharger(), 240'000);
  EXPECT_THAT(picture.Texts("power-label"),
              testing::UnorderedElementsAre("5 V", "3 A", "9 V", "3 A", "15 V", "3 A", "20 V", "5 A", "28 V", "5 A",
                                            "36 V", "5 A", "48 V", "5 A", "PPS 3.3–11 V · 5 A", "PPS 3.3–21 V · 5 A",
                                            "EPR AVS 15–48 V · 240 W", "rating 240 W"));
  EXPECT_THAT(picture.Texts("power-number"), IsEmpty());
  ExpectGood(picture);
}

TEST(PowerPictureTest, NumbersPdosWhereThereIsNoRoomForMore) {
  CPdoList list;
  for (std::uint64_t i = 0; i < 60; ++i) list.Fixed(100 + 2 * i, 300);
  const CPicture picture(list);
  EXPECT_EQ(picture.Of("power-bar").size(), 60U);
  EXPECT_THAT(picture.Texts("power-number"), Not(IsEmpty()));
  ExpectGood(picture);
}

TEST(PowerPictureTest, DrawsEqualPdosOnce) {
  const CPicture picture(CPdoList().Fixed(100, 300).Fixed(100, 300));
  EXPECT_EQ(picture.Of("power-bar").size(), 1U);
  EXPECT_EQ(picture.Count().drawn, 2U);
}

TEST(PowerPictureTest, LabelsSeveralCurrentsOfOneVoltageTogether) {
  const CPicture picture(CPdoList().Fixed(100, 150).Fixed(100, 300));
  EXPECT_THAT(picture.Texts("power-label"), ElementsAre("5 V", "3 A, 1.5 A"));
}

TEST(PowerPictureTest, DrawsNoMoreThan64ShapesAndCountsTheRest) {
  CPdoList list;
  for (std::uint64_t i = 0; i < 1000; ++i) list.Fixed(100 + i, 300);
  const CPicture picture(list);
  EXPECT_EQ(picture.Of("power-bar").size(), 64U);
  EXPECT_EQ(picture.Count().drawn, 64U);
  EXPECT_EQ(picture.Count().surplus, 936U);
  EXPECT_THAT(picture.Texts("power-note"), ElementsAre("Not drawn: 936 more PDOs"));
  EXPECT_LT(picture.Svg().size(), 40'000U);
  ExpectGood(picture);
}

TEST(PowerPictureTest, DrawsNoMoreLanesThanFit) {
  CPdoList list;
  for (std::uint64_t i = 0; i < 64; ++i) list.Pps(33 + i, 210, 60);
  const CPicture picture(list);
  EXPECT_EQ(picture.Of("power-area").size(), 64U);
  EXPECT_EQ(picture.Of("power-lane power-end").size(), 24U);
  ExpectGood(picture);
}

TEST(PowerPictureTest, WritesNothingWhereNothingCanBeDrawn) {
  const CPicture empty(CPdoList{}, 65'000);
  EXPECT_EQ(empty.Svg(), "");
  EXPECT_FALSE(empty.Count());
  EXPECT_EQ(CPicture(CPdoList().Pdo(0)).Svg(), "");
  EXPECT_EQ(CPicture(CPdoList(), CPdoList()).Svg(), "");
}

TEST(PowerPictureTest, LeavesOutPdosWithoutUsableNumbers) {
  CPdoList list;
  list.Fixed(100, 300).Pdo(0).Pdo(7).Fixed(0, 300).Variable(200, 100, 300).Fixed(1'000'000, 300).Fixed(100, 1'000'000);
  list.Fixed(1'000'001, 300).Pdo(1).With("Min_Voltage", 100).With("Max_Voltage", 200);
  const CPicture picture(list);
  EXPECT_EQ(picture.Count().drawn, 1U);
  EXPECT_EQ(picture.Count().unusable, 8U);
  EXPECT_THAT(picture.Texts("power-tick"), Contains("6 V"));
  EXPECT_THAT(picture.Texts("power-note"), ElementsAre("Not drawn: 8 PDOs without usable numbers"));
  ExpectGood(picture);
}

TEST(PowerPictureTest, DrawsZerosWithoutDividingByThem) {
  const CPicture picture(
      CPdoList().Fixed(100, 0).Battery(0, 100, 0).Battery(0, 200, 40).Pps(0, 110, 0).EprAvs(0, 280, 0), 0);
  EXPECT_EQ(picture.Count().drawn, 5U);
  EXPECT_THAT(picture.Of("power-rating"), IsEmpty());
  ExpectGood(picture);
}

TEST(PowerPictureTest, DrawsNoRatingThatIsAbsurd) {
  const CPicture picture(CPdoList().Pps(50, 110, 60), std::numeric_limits<std::uint64_t>::max());
  EXPECT_THAT(picture.Of("power-rating"), IsEmpty());
  EXPECT_NEAR(EdgeAt(Only(picture, "power-area"), X(picture, 5)), Y(picture, 3), 0.15);
}

TEST(PowerPictureTest, DrawsTwoLayersOverOneAnother) {
  const CPicture picture(CPdoList().Fixed(100, 300).Fixed(400, 300).Pps(33, 110, 60),
                         CPdoList().Fixed(100, 300).Fixed(400, 325).Fixed(180, 300).Pps(33, 160, 60));
  EXPECT_THAT(picture.Texts("power-legend"), ElementsAre("old.xml", "new.xml"));
  EXPECT_EQ(picture.Of("power-bar power-first").size(), 1U + 2U);
  EXPECT_EQ(picture.Of("power-bar power-second").size(), 1U + 3U);
  EXPECT_EQ(picture.Of("power-area power-first").size(), 1U);
  EXPECT_EQ(picture.Of("power-area power-second").size(), 1U);
  EXPECT_THAT(picture.Texts("power-label power-both"), ElementsAre("5 V", "3 A", "20 V", "3 A → 3.25 A"));
  EXPECT_THAT(picture.Texts("power-label power-second"), ElementsAre("9 V", "3 A"));
  ExpectGood(picture);
}

TEST(PowerPictureTest, DrawsAnAreaOfBothLayersOnce) {
  const CPdoList list = CPdoList().Pps(33, 110, 60);
  const CPicture picture(list, list);
  EXPECT_EQ(picture.Of("power-area power-both").size(), 1U);
  EXPECT_EQ(picture.Of("power-area").size(), 1U);
  EXPECT_THAT(picture.Of("power-lane power-both"), Not(IsEmpty()));
}

TEST(PowerPictureTest, TellsByTheEndsOfALaneWhichLayersHaveIt) {
  const CPdoList first = CPdoList().Pps(33, 110, 60).Pps(33, 210, 60);
  const CPdoList second = CPdoList().Pps(33, 110, 60).Pps(33, 160, 60);
  const CPicture picture(first, second);
  constexpr std::size_t inLegend = 1;
  EXPECT_EQ(picture.Of("power-point power-first").size(), inLegend + 2);
  EXPECT_EQ(picture.Of("power-point power-second").size(), inLegend + 2);
  EXPECT_EQ(picture.Of("power-end power-first").size(), 1U);
  EXPECT_EQ(picture.Of("power-end power-second").size(), 1U);
  EXPECT_THAT(picture.Of("power-end power-both"), IsEmpty());
}

TEST(PowerPictureTest, KeepsCrowdedLayersApart) {
  CPdoList other = EprCharger();
  other.Fixed(200, 300).Pps(50, 160, 60).Battery(120, 168, 60).Variable(180, 300, 300).SprAvs(90, 200);
  const CPicture picture(EprCharger(), other);
  EXPECT_THAT(picture.Texts("power-number"), IsEmpty());
  ExpectGood(picture);
}

TEST(PowerPictureTest, HasANameAndADescription) {
  const CPdoListView view(CPdoList().Fixed(100, 300).Pps(33, 110, 60));
  const CPicture picture({{"", view.Pdos(), 18'000}}, "Port 1 as a source", "port1-src");
  const SvgElement& svg = picture.Elements().at(0);
  EXPECT_EQ(svg.Get("role"), "img");
  EXPECT_EQ(svg.Get("aria-labelledby"), "port1-src-title");
  EXPECT_EQ(svg.Get("aria-describedby"), "port1-src-desc");
  EXPECT_EQ(picture.Elements().at(1).Get("id"), "port1-src-title");
  EXPECT_EQ(picture.Elements().at(1).text, "Port 1 as a source");
  EXPECT_EQ(picture.Elements().at(2).Get("id"), "port1-src-desc");
  EXPECT_EQ(picture.Elements().at(2).text, "5 V · 3 A, PPS 3.3–11 V · 3 A, rating 18 W");
}

TEST(PowerPictureTest, ShowsHostileTextsAsText) {
  const CPdoListView view(CPdoList().Fixed(100, 300));
  const std::string hostile = "\"><img onerror=alert(1)>\x01\xff</svg>";
  const CPicture picture({{hostile, view.Pdos(), {}}, {std::string(10'000, 'W'), view.Pdos(), {}}}, hostile, "p");
  EXPECT_THAT(picture.Svg(), Not(HasSubstr("<img")));
  EXPECT_THAT(picture.Texts("power-legend").at(0), HasSubstr("&lt;img"));
  ExpectGood(picture);
}

/// Numbers as some countries write them.
class CCommas : public std::numpunct<char> {
 protected:
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\1"; }
};

TEST(PowerPictureTest, IsTheSameInAnyLocale) {
  const std::string expected = CPicture(EprCharger(), 240'000).Svg();
  const std::locale before = std::locale::global(std::locale(std::locale(), new CCommas));
  const std::string actual = CPicture(EprCharger(), 240'000).Svg();
  std::locale::global(before);
  EXPECT_EQ(actual, expected);
}

std::string StyleSheet() {
  std::ifstream file(std::filesystem::path(VIF_ASSETS) / "picture.css");
  return {std::istreambuf_iterator<char>(file), {}};
}

/// Whether there is a rule for a class.
bool IsStyled(const std::string& css, const std::string& name) {
  return css.find("." + name + " ") != std::string::npos || css.find("." + name + ",") != std::string::npos;
}

TEST(PowerPictureTest, HasAStyleForEachElement) {
  const std::string css = StyleSheet();
  CPdoList list = EprCharger();
  list.Battery(120, 168, 60).Variable(180, 300, 300).SprAvs(90, 200).Pdo(7);
  for (const CPicture& picture : {CPicture(list, 240'000), CPicture(list, EprCharger())}) {
    for (const SvgElement& element : picture.Elements()) {
      std::istringstream classes(element.Get("class"));
      bool hasStyle = element.name == "title" || element.name == "desc";
      for (std::string name; classes >> name;) hasStyle = hasStyle || IsStyled(css, name);
      EXPECT_TRUE(hasStyle) << element.name << " " << element.Get("class");
    }
  }
}

TEST(PowerPictureTest, HasAStyleSheetThatAsksForNothing) {
  const std::string css = StyleSheet();
  EXPECT_THAT(css, HasSubstr("@media print"));
  for (const char* request : {"url(", "@import", "@font-face", "<", "\\"}) EXPECT_THAT(css, Not(HasSubstr(request)));
}

/// A number that is often at the edge of what makes sense.
std::uint64_t RandomNumber(std::mt19937_64& random) {
  constexpr std::size_t bounds[] = {2, 100, 600, 1000, 4000, 1'000'002};
  return testsupport::RandomBelow(random, bounds[testsupport::RandomBelow(random, std::size(bounds))]);
}

CPdoList RandomList(std::mt19937_64& random) {
  CPdoList list(testsupport::RandomBelow(random, 2) == 0 ? PdoSide::Source : PdoSide::Sink);
  const std::size_t count = 1 + testsupport::RandomBelow(random, 20);
  for (std::size_t i = 0; i < count; ++i) {
    const std::uint64_t a = RandomNumber(random);
    const std::uint64_t b = RandomNumber(random);
    const std::uint64_t c = RandomNumber(random);
    switch (testsupport::RandomBelow(random, 6)) {
      case 0: list.Fixed(a, b); break;
      case 1: list.Battery(a, b, c); break;
      case 2: list.Variable(a, b, c); break;
      case 3: list.Pps(a, b, c); break;
      case 4: list.EprAvs(a, b, c); break;
      default: list.SprAvs(a, b); break;
    }
  }
  return list;
}

TEST(PowerPictureTest, StaysInItsBoundsWhateverTheNumbers) {
  SCOPED_TRACE(testsupport::SeedMessage());
  std::mt19937_64 random = testsupport::SeededGenerator();
  for (int i = 0; i < 60 && !testing::Test::HasFailure(); ++i) {
    const CPdoList list = RandomList(random);
    const CPicture one(list, RandomNumber(random) * 1000);
    if (one.Count()) ExpectGood(one);
    const CPicture two(list, RandomList(random));
    if (two.Count()) ExpectGood(two);
  }
}

}  // namespace
}  // namespace vifanalysis
