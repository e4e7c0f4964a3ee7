// The messages of CDOMDoc, the same for every parser.
#pragma once

#include "TestUtilities/DOMDocProblem.h"

#include <cstddef>
#include <string>
#include <string_view>

/// Why the root element is not the required one. Texts are UTF-8; an empty namespace means none.
/// \param wantedNamespace null when any is allowed
std::string WrongRootReason(std::string_view name, std::string_view namespaceUri, std::string_view wantedName,
                            const std::string* wantedNamespace);

/// One step of a path: the element's name, truncated if long, and its number in brackets unless that is 0.
std::string PathStep(std::string_view name, std::size_t number);

/// \param what the schema's file and the reason
/// \throws CZoDOMDocException "Couldn't load the schema <what>", always
[[noreturn]] void ThrowSchemaError(const std::string& what);

/// The same for a schema file that is not a well-formed document.
[[noreturn]] void ThrowSchemaError(const std::string& file, const DOMDocProblem& problem);

/// \throws CZoDOMDocException when a schema file does not describe the namespace that it is registered for
void RequireNamespace(const std::string& file, const std::string& described, const std::string& wanted);
