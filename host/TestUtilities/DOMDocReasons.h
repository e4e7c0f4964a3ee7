// What CDOMDoc says, the same over every parser.
#pragma once

#include "TestUtilities/DOMDocProblem.h"

#include <cstddef>
#include <string>
#include <string_view>

/// Why a root element is not the one asked for. Texts are UTF-8; an empty namespace is none.
/// \param wantedNamespace null when any would have done
std::string WrongRootReason(std::string_view name, std::string_view namespaceUri, std::string_view wantedName,
                            const std::string* wantedNamespace);

/// An element in a path: its name, cut where it is long, and its number in brackets unless that is 0.
std::string PathStep(std::string_view name, std::size_t number);

/// \param what the schema's file and the reason
/// \throws CZoDOMDocException "Couldn't load the schema <what>", always
[[noreturn]] void ThrowSchemaError(const std::string& what);

/// The same for a schema file that is no well-formed document.
[[noreturn]] void ThrowSchemaError(const std::string& file, const DOMDocProblem& problem);

/// \throws CZoDOMDocException when a schema file does not describe the namespace that it is said to
void RequireNamespace(const std::string& file, const std::string& described, const std::string& wanted);
