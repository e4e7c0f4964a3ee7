// COM as the XML interfaces need it: texts, variants, errors and their owners.
#include "msxml/ComTypes.h"
#include "msxml/MsXml.h"
#include "support/ComErrors.h"

#include <gtest/gtest.h>

#include <cstring>
#include <exception>
#include <string>
#include <type_traits>
#include <utility>

namespace {

/// Counts its references and is never deleted.
struct CountedObject {
  ULONG AddRef() { return ++references; }
  ULONG Release() { return --references; }

  ULONG references = 1;
};
using CountedPointer = CComPointer<CountedObject>;

HRESULT IssuedBy(HRESULT result) {
  try {
    _com_issue_error(result);
  } catch (const _com_error& error) {
    return error.Error();
  }
  return S_OK;
}

// BSTR.

TEST(MsxmlComTest, BstrHoldsItsTextWithItsLengthAndANul) {
  BSTR text = SysAllocString(L"vif:VIF");
  EXPECT_EQ(SysStringLen(text), 7U);
  EXPECT_STREQ(text, L"vif:VIF");
  SysFreeString(text);
}

TEST(MsxmlComTest, BstrMayHoldNuls) {
  BSTR text = SysAllocStringLen(L"a\0b", 3);
  EXPECT_EQ(SysStringLen(text), 3U);
  EXPECT_EQ(std::wstring(text, 4), std::wstring(L"a\0b\0", 4));
  SysFreeString(text);
}

TEST(MsxmlComTest, BstrOfALengthCanBeFilled) {
  BSTR text = SysAllocStringLen(nullptr, 2);
  text[0] = L'x';
  text[1] = L'y';
  EXPECT_STREQ(text, L"xy");
  SysFreeString(text);
}

TEST(MsxmlComTest, NullBstrIsTheEmptyText) {
  EXPECT_EQ(SysAllocString(nullptr), nullptr);
  EXPECT_EQ(SysStringLen(nullptr), 0U);
  SysFreeString(nullptr);
}

// VARIANT.

TEST(MsxmlComTest, VariantStartsEmpty) {
  VARIANT variant;
  std::memset(&variant, 0x5A, sizeof variant);
  VariantInit(&variant);
  EXPECT_EQ(variant.vt, VT_EMPTY);
}

TEST(MsxmlComTest, ClearedVariantIsEmpty) {
  VARIANT variant;
  VariantInit(&variant);
  variant.vt = VT_BSTR;
  variant.bstrVal = SysAllocString(L"x");
  EXPECT_EQ(VariantClear(&variant), S_OK);
  EXPECT_EQ(variant.vt, VT_EMPTY);
}

// Errors.

TEST(MsxmlComTest, ErrorCarriesItsResult) {
  EXPECT_EQ(IssuedBy(E_FAIL), E_FAIL);
  EXPECT_EQ(IssuedBy(E_OUTOFMEMORY), E_OUTOFMEMORY);
}

TEST(MsxmlComTest, ErrorKnowsTheInterfaceThatFailed) {
  try {
    _com_issue_errorex(E_INVALIDARG, nullptr, IID_IXMLDOMNode);
  } catch (const _com_error& error) {
    EXPECT_EQ(error.Error(), E_INVALIDARG);
    EXPECT_EQ(testsupport::FailedInterface(error), IID_IXMLDOMNode);
  }
#ifdef _WIN32
  EXPECT_EQ(testsupport::FailedInterface(_com_error(E_FAIL)), IID{});
#else
  EXPECT_EQ(testsupport::FailedInterface(_com_error(E_FAIL)), IID_IUnknown);
#endif
}

TEST(MsxmlComTest, ErrorHasATextForKnownResults) {
#ifndef _WIN32  // Windows has its own words
  EXPECT_STREQ(_com_error(E_FAIL).ErrorMessage(), L"Unspecified error");
#endif
  for (const HRESULT result : {E_NOTIMPL, E_NOINTERFACE, E_POINTER, E_FAIL, E_OUTOFMEMORY, E_INVALIDARG}) {
    ASSERT_NE(_com_error(result).ErrorMessage(), nullptr);
    EXPECT_STRNE(_com_error(result).ErrorMessage(), L"");
  }
#ifdef _WIN32  // Windows has a text for every result, if only its number
  EXPECT_STRNE(_com_error(static_cast<HRESULT>(0x8FFF0154)).ErrorMessage(), L"");
#else
  EXPECT_EQ(_com_error(static_cast<HRESULT>(0x8FFF0154)).ErrorMessage(), nullptr);
#endif
}

TEST(MsxmlComTest, ErrorIsNotAStandardException) { EXPECT_FALSE((std::is_base_of_v<std::exception, _com_error>)); }

TEST(MsxmlComTest, ResultsSucceedUnlessTheyAreNegative) {
  EXPECT_TRUE(SUCCEEDED(S_OK));
  EXPECT_TRUE(SUCCEEDED(S_FALSE));
  EXPECT_FALSE(FAILED(S_FALSE));
  for (const HRESULT result : {E_NOTIMPL, E_NOINTERFACE, E_POINTER, E_FAIL, E_OUTOFMEMORY, E_INVALIDARG}) {
    EXPECT_TRUE(FAILED(result));
    EXPECT_FALSE(SUCCEEDED(result));
  }
}

// Pointers.

TEST(MsxmlComTest, PointerCountsAReferenceOfItsOwn) {
  CountedObject object;
  {
    const CountedPointer pointer(&object);
    EXPECT_EQ(object.references, 2U);
  }
  EXPECT_EQ(object.references, 1U);
}

TEST(MsxmlComTest, PointerTakesOverAReference) {
  CountedObject object;
  { const CountedPointer pointer(&object, false); }
  EXPECT_EQ(object.references, 0U);
}

TEST(MsxmlComTest, CopiedPointerCountsOnceMore) {
  CountedObject object;
  const CountedPointer pointer(&object);
  CountedPointer copy(pointer);
  EXPECT_EQ(object.references, 3U);
  copy = pointer;
  EXPECT_EQ(object.references, 3U);
  EXPECT_EQ(copy.GetInterfacePtr(), &object);
}

TEST(MsxmlComTest, CopyOfAnEmptyPointerIsEmpty) {
  const CountedPointer pointer;
  const CountedPointer copy(pointer);
  EXPECT_TRUE(copy == nullptr);
}

TEST(MsxmlComTest, PointerAssignedToItselfKeepsItsReference) {
  CountedObject object;
  CountedPointer pointer(&object);
  const CountedPointer& itself = pointer;
  pointer = itself;
  EXPECT_EQ(object.references, 2U);
  EXPECT_EQ(pointer.GetInterfacePtr(), &object);
}

TEST(MsxmlComTest, MovedPointerLeavesTheCount) {
  CountedObject object;
  CountedPointer pointer(&object);
  const CountedPointer moved(std::move(pointer));
  EXPECT_EQ(object.references, 2U);
  EXPECT_EQ(moved.GetInterfacePtr(), &object);
}

TEST(MsxmlComTest, AssignedPointerReleasesWhatItHeld) {
  CountedObject first;
  CountedObject second;
  CountedPointer pointer(&first);
  pointer = CountedPointer(&second);
  EXPECT_EQ(first.references, 1U);
  EXPECT_EQ(second.references, 2U);
}

TEST(MsxmlComTest, ReceivingPointerReleasesWhatItHeld) {
  CountedObject object;
  CountedPointer pointer(&object);
  EXPECT_EQ(*pointer.Receive(), nullptr);
  EXPECT_EQ(object.references, 1U);
}

TEST(MsxmlComTest, DetachedPointerKeepsTheReferenceCounted) {
  CountedObject object;
  CountedPointer pointer(&object);
  EXPECT_EQ(pointer.Detach(), &object);
  EXPECT_EQ(object.references, 2U);
  EXPECT_TRUE(pointer == nullptr);
}

TEST(MsxmlComTest, UsingAnEmptyPointerIsTheErrorEPointer) {
  const CountedPointer pointer;
  EXPECT_TRUE(pointer == nullptr);
  EXPECT_FALSE(pointer);
  try {
    static_cast<void>(pointer->AddRef());
    FAIL() << "no exception";
  } catch (const _com_error& error) {
    EXPECT_EQ(error.Error(), E_POINTER);
  }
  EXPECT_THROW(static_cast<void>(*pointer), _com_error);
}

// Owners of texts and variants.

TEST(MsxmlComTest, TextOwnerHasItsText) {
  const CBstr text(std::wstring_view(L"a\0b", 3));
  EXPECT_EQ(text.View(), std::wstring_view(L"a\0b", 3));
  EXPECT_EQ(SysStringLen(text.get()), 3U);
}

TEST(MsxmlComTest, EmptyTextOwnerIsNullAndReadsAsTheEmptyText) {
  const CBstr text;
  EXPECT_EQ(text.get(), nullptr);
  EXPECT_EQ(text.View(), L"");
}

TEST(MsxmlComTest, TextOwnerFreesWhatItHeldWhenItReceives) {
  CBstr text(L"x");
  *text.Receive() = SysAllocString(L"y");
  EXPECT_EQ(text.View(), L"y");
}

TEST(MsxmlComTest, TextOwnerDetachesItsText) {
  CBstr text(L"x");
  BSTR detached = text.Detach();
  EXPECT_EQ(text.get(), nullptr);
  EXPECT_STREQ(detached, L"x");
  SysFreeString(detached);
}

TEST(MsxmlComTest, MovedTextOwnerIsTheOnlyOne) {
  CBstr text(L"x");
  const CBstr moved(std::move(text));
  EXPECT_EQ(moved.View(), L"x");
}

TEST(MsxmlComTest, VariantOwnerOfATextHoldsIt) {
  const CVariant variant{CBstr(L"x")};
  EXPECT_EQ(variant.get().vt, VT_BSTR);
  EXPECT_EQ(variant.Text(), L"x");
}

TEST(MsxmlComTest, VariantOwnerWithoutATextReadsAsTheEmptyText) {
  CVariant variant;
  EXPECT_EQ(variant.get().vt, VT_EMPTY);
  EXPECT_EQ(variant.Text(), L"");
  variant.Receive()->vt = VT_NULL;
  EXPECT_EQ(variant.Text(), L"");
}

TEST(MsxmlComTest, VariantOwnerOfANullTextReadsAsTheEmptyText) {
  const CVariant variant{CBstr()};
  EXPECT_EQ(variant.get().vt, VT_BSTR);
  EXPECT_EQ(variant.Text(), L"");
}

TEST(MsxmlComTest, VariantOwnerClearsWhatItHeldWhenItReceives) {
  CVariant variant{CBstr(L"x")};
  EXPECT_EQ(variant.Receive()->vt, VT_EMPTY);
  EXPECT_EQ(variant.Text(), L"");
}

}  // namespace
