// Calls on the nodes of one document with memory running out.
#pragma once

#include "ComMemory.h"
#include "msxml/ComTypes.h"
#include "support/ForEveryFailingAllocation.h"
#include "support/XmlDocument.h"

#include <gtest/gtest.h>

#include <new>
#include <string>

namespace testsupport {

/// What a call returns: its result and its answer.
template <typename Answer>
struct Given {
  HRESULT result = E_FAIL;
  Answer answer;
};

/// Makes a call with every allocation failing in turn. A call that runs out of memory must return E_OUTOFMEMORY and no
/// answer.
/// \param call receives an empty answer and returns its result
/// \param check tests whether the answer is right
template <typename Answer, typename Call, typename Check>
void ExpectCallBearsFailures(const Call& call, const Check& check) {
  ForEveryFailingAllocation([] { return Given<Answer>(); },
                            [&](Given<Answer>& given) {
                              given.result = call(given.answer);
                              if (given.result == E_OUTOFMEMORY) throw std::bad_alloc();
                            },
                            [&](Given<Answer>& given, bool isDone) {
                              if (isDone) {
                                check(given.result, given.answer);
                                return;
                              }
                              EXPECT_EQ(given.result, E_OUTOFMEMORY);
                              Answer again;
                              check(call(again), again);
                            });
}

/// The same for a call that returns a text.
template <typename Call>
void ExpectTextBearsFailures(const std::wstring& expected, const Call& call) {
  ExpectCallBearsFailures<CBstr>([&](CBstr& text) { return call(text.Receive()); },
                                 [&](HRESULT result, const CBstr& text) {
                                   EXPECT_EQ(result, S_OK);
                                   EXPECT_EQ(text.View(), expected);
                                 });
}

}  // namespace testsupport
