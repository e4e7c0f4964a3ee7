// JSON as the commands print it.
#pragma once

#include <nlohmann/json.hpp>

#include <string>

namespace cli {

/// Keeps its members in the order in which they were added.
using Json = nlohmann::ordered_json;

/// The text on one line. Bytes that are not UTF-8 become U+FFFD.
inline std::string Dump(const Json& json) { return json.dump(-1, ' ', false, Json::error_handler_t::replace); }

}  // namespace cli
