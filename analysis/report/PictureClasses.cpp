#include "report/PictureClasses.h"

namespace vifanalysis {

namespace {

std::string_view LayerClass(InLayers layers) {
  switch (layers) {
    case InLayers::First: return " power-first";
    case InLayers::Second: return " power-second";
    case InLayers::Both: break;
  }
  return " power-both";
}

std::string_view SupplyClass(Supply supply) {
  switch (supply) {
    case Supply::Battery: return " power-battery";
    case Supply::Variable: return " power-variable";
    case Supply::Programmable: return " power-pps";
    case Supply::EprAdjustable:
    case Supply::SprAdjustable: return " power-avs";
    default: return " power-fixed";
  }
}

}  // namespace

std::string ClassOf(std::string_view what, const PictureContent& content, Supply supply, InLayers layers) {
  return std::string(what).append(content.isCompared ? LayerClass(layers) : SupplyClass(supply));
}

std::string ClassOf(std::string_view what, const PictureContent& content, InLayers layers) {
  return std::string(what).append(content.isCompared ? LayerClass(layers) : "");
}

}  // namespace vifanalysis
