// Running out of memory in calls on XML documents.
#pragma once

#include "msxml/ComTypes.h"
#include "msxml/MsXml.h"

#include <gtest/gtest.h>

#include <new>

namespace testsupport {

/// Makes a call that reports memory that has run out either by `std::bad_alloc` or by the error of COM; the latter
/// becomes the former.
template <typename Call>
auto WithComErrors(const Call& call) {
  try {
    return call();
  } catch (const _com_error& error) {
    EXPECT_EQ(error.Error(), E_OUTOFMEMORY);
    throw std::bad_alloc();
  }
}

/// A result that is no failure, or that memory has run out.
/// \throws std::bad_alloc
inline HRESULT Succeeded(HRESULT result) {
  if (result == E_OUTOFMEMORY) throw std::bad_alloc();
  return result;
}

}  // namespace testsupport
