// The rules of the check, for a manual page.
#pragma once

#include <map>
#include <string>

namespace manual {

/// The rules about the form of a file, or those about what it declares.
/// \param examples a message by the code of its rule
std::string RuleList(bool aboutForm, const std::map<std::string, std::string>& examples);

}  // namespace manual
