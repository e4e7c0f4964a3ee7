#include "VIFInvalidFile.h"

#include <utility>

CVIFInvalidFile::CVIFInvalidFile(const std::string& message, std::vector<DOMDocProblem> problems)
    : CZoRunTimeException(message.c_str()),  // NOLINT(bugprone-throw-keyword-missing): it is the base
      m_problems(std::make_shared<const std::vector<DOMDocProblem>>(std::move(problems))) {}

CVIFInvalidFile::~CVIFInvalidFile() = default;

const std::vector<DOMDocProblem>& CVIFInvalidFile::Problems() const noexcept { return *m_problems; }
