// A picture drawn for a test, and what is in it.
#pragma once

#include "PdoList.h"
#include "report/LabelPlacer.h"
#include "report/PowerPicture.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vifanalysis {

/// An element without its content.
struct SvgElement {
  std::string name;
  std::vector<std::pair<std::string, std::string>> attributes;
  std::string text;  ///< directly after its start tag, with entities as they are

  std::string Get(std::string_view attribute) const;
  double Number(std::string_view attribute) const;

  /// Whether it has all the classes, which spaces separate.
  bool Is(std::string_view classes) const;
};

class CPicture {
 public:
  explicit CPicture(const std::vector<PowerLayer>& layers, const std::string& title = "Power",
                    const std::string& idPrefix = "p");

  /// Of one list.
  explicit CPicture(const CPdoList& list, std::optional<std::uint64_t> rating = {});

  /// Of two lists, over one another.
  CPicture(const CPdoList& first, const CPdoList& second);

  const std::string& Svg() const { return m_svg; }
  const PicturedPdos& Count() const { return m_count; }
  const std::vector<SvgElement>& Elements() const { return m_elements; }

  /// The elements with all these classes.
  std::vector<SvgElement> Of(std::string_view classes) const;

  /// What is written in elements with all these classes.
  std::vector<std::string> Texts(std::string_view classes) const;

  /// Where the texts are.
  std::vector<Box> TextBoxes() const;

  double Height() const;

 private:
  void Draw(const std::vector<PowerLayer>& layers, const std::string& title, const std::string& idPrefix);

  std::string m_svg;
  PicturedPdos m_count;
  std::vector<SvgElement> m_elements;
};

/// The elements of a well-formed piece of XML, in the order of their start tags; throws std::runtime_error otherwise.
std::vector<SvgElement> ElementsOf(std::string_view xml);

/// The corners of a path of straight lines.
std::vector<std::pair<double, double>> Corners(const SvgElement& path);

}  // namespace vifanalysis
