// Why an XML document is not valid.
#pragma once

#include <cstddef>
#include <string>

/// One reason. Texts are UTF-8.
struct DOMDocProblem {
  std::size_t line = 0;    ///< where, from 1; 0 when the problem has no place, such as a file that cannot be opened
  std::size_t column = 0;  ///< the character in the line, from 1; 0 when unknown
  std::string element;     ///< the qualified name of the element concerned; empty if none
  std::string reason;      ///< what is wrong: a sentence for people, on one line
};
