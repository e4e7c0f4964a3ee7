// Contents of files for tests that compare two ways to read them.
#pragma once

#include <string>
#include <vector>

namespace testsupport {

/// A file of a test.
struct SampleContent {
  std::string name;   ///< with the extension of its form
  std::string bytes;  ///< anything
};

/// Every VIF in the sources: examples, those of the documentation and of other tests.
std::vector<SampleContent> ContentsInSources();

/// What no program should write: nothing at all, NULs, marks of other encodings, other forms than the name says.
std::vector<SampleContent> OddContents();

/// Generated files of both forms, each also cut off or spoiled somewhere, some of them in UTF-16.
/// \param count how many to generate
std::vector<SampleContent> GeneratedContents(std::size_t count);

}  // namespace testsupport
