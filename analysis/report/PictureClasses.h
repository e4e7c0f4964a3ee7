// The CSS classes of a picture's elements.
#pragma once

#include "report/PictureContent.h"

#include <string>
#include <string_view>

namespace vifanalysis {

/// What an element is, and what decides its colour: where two layers are compared, its layers, or else its supply.
std::string ClassOf(std::string_view what, const PictureContent& content, Supply supply, InLayers layers);

/// The same for a rating, which has no supply.
std::string ClassOf(std::string_view what, const PictureContent& content, InLayers layers);

}  // namespace vifanalysis
