// The pictures of the examples are committed, so that a change to them can be looked at.
#include "Picture.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>

namespace vifanalysis {
namespace {

const std::filesystem::path kPictures = VIF_PICTURES;

/// A picture as a file that a browser shows.
std::string FileOf(std::string svg) {
  const std::string begin = "<svg ";
  svg.insert(begin.size(), "xmlns=\"http://www.w3.org/2000/svg\" ");
  return "<?xml-stylesheet type=\"text/css\" href=\"../../../../analysis/report/assets/picture.css\"?>\n" + svg;
}

std::string ReadPicture(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

using Pictures = std::map<std::string, std::string>;

void AddPictures(const std::filesystem::path& path, Pictures& pictures) {
  const CExample example(path.filename().string());
  const CVifView view(example.Fields());
  for (const CComponentView& component : view.Components()) {
    for (const PdoSide side : {PdoSide::Source, PdoSide::Sink}) {
      const std::string name =
          path.filename().string() + "-" + std::to_string(component.Index()) + "-" + std::string(SideName(side));
      const CPicture picture({{"", component.Pdos(side), component.Number(RatingName(side))}}, name, "p");
      if (picture.Count()) pictures[name + ".svg"] = FileOf(picture.Svg());
    }
  }
}

CPicture ComparedChargers() {
  const CExample first("gan-charger-65w.xml");
  const CExample second("epr-charger-140w.txt");
  const CVifView firstView(first.Fields());
  const CVifView secondView(second.Fields());
  return CPicture({{"gan-charger-65w.xml", firstView.Components().front().Pdos(PdoSide::Source), 65'000},
                   {"epr-charger-140w.txt", secondView.Components().front().Pdos(PdoSide::Source), 140'000}},
                  "Two chargers");
}

Pictures AllPictures() {
  Pictures pictures;
  for (const std::filesystem::path& path : CleanExamples()) AddPictures(path, pictures);
  pictures["epr-charger-240w.svg"] = FileOf(CPicture(EprCharger(), 240'000).Svg());
  pictures["two-chargers.svg"] = FileOf(ComparedChargers().Svg());
  return pictures;
}

bool IsToRenew() { return std::getenv("VIF_RENEW_PICTURES") != nullptr; }

TEST(ExamplePicturesTest, AreThoseCommitted) {
  const Pictures pictures = AllPictures();
  EXPECT_GE(pictures.size(), 10U);
  for (const auto& [name, picture] : pictures) {
    if (IsToRenew()) std::ofstream(kPictures / name, std::ios::binary) << picture;
    EXPECT_EQ(ReadPicture(kPictures / name), picture)
        << "If the change to " << name << " is right, renew the pictures with VIF_RENEW_PICTURES=1, and look at them.";
  }
}

TEST(ExamplePicturesTest, AreAllThatIsCommitted) {
  const Pictures pictures = AllPictures();
  for (const auto& entry : std::filesystem::directory_iterator(kPictures)) {
    EXPECT_TRUE(pictures.contains(entry.path().filename().string())) << entry.path() << " is not drawn any more";
  }
}

}  // namespace
}  // namespace vifanalysis
