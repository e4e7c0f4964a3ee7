// What loading throws for an XML file that is not a valid VIF.
#pragma once

#include "BaseUtilities/Exceptions.h"
#include "TestUtilities/DOMDocProblem.h"
#include "VIFExport.h"

#include <memory>
#include <string>
#include <vector>

/// "<path> is not a valid Vendor Info File.", with the reasons beside it.
class VIF_API CVIFInvalidFile : public CZoRunTimeException {
 public:
  /// \param message the whole message
  /// \param problems the reasons; must not be empty
  CVIFInvalidFile(const std::string& message, std::vector<DOMDocProblem> problems);
  CVIFInvalidFile(const CVIFInvalidFile&) = default;
  CVIFInvalidFile(CVIFInvalidFile&&) = default;
  CVIFInvalidFile& operator=(const CVIFInvalidFile&) = default;
  CVIFInvalidFile& operator=(CVIFInvalidFile&&) = default;
  ~CVIFInvalidFile() override;

  /// The reasons, in the order in which they were found; never empty. Valid while this exception or a copy of it
  /// lives.
  const std::vector<DOMDocProblem>& Problems() const noexcept;

 private:
  std::shared_ptr<const std::vector<DOMDocProblem>> m_problems;  // shared, so that copying cannot fail
};
