// Tells whether two interfaces belong to the same element.
#pragma once

#include "msxml/MsXml.h"
#include "msxml6/DocumentLoader.h"

namespace msxml6 {

/// Marks an element while it lives. Not every MSXML returns the same object for an element each time, so comparing
/// pointers does not work; but a change made through one object is visible through the others.
class CElementMark {
 public:
  /// \throws _com_error
  explicit CElementMark(IXMLDOMElement& element) : m_element(element), m_name(kName) {
    RequireSuccess(m_element.getAttribute(m_name.get(), m_before.Receive()), m_element, IID_IXMLDOMElement);
    Set(kMark);
  }
  CElementMark(const CElementMark&) = delete;
  CElementMark& operator=(const CElementMark&) = delete;
  ~CElementMark() {
    // A destructor cannot report a failure.
    if (m_before.get().vt == VT_BSTR) {
      static_cast<void>(m_element.setAttribute(m_name.get(), m_before.get()));
    } else {
      static_cast<void>(m_element.removeAttribute(m_name.get()));
    }
  }

  /// Whether it is the same element.
  /// \throws _com_error
  bool IsOn(IXMLDOMElement& element) {
    if (!IsMarked(element, kMark)) return false;
    // An attribute of the file may look like the mark, but does not change with it.
    Set(kOtherMark);
    const bool isSame = IsMarked(element, kOtherMark);
    Set(kMark);
    return isSame;
  }

 private:
  static constexpr const wchar_t* kName = L"element-mark";
  static constexpr const wchar_t* kMark = L"marked";
  static constexpr const wchar_t* kOtherMark = L"marked otherwise";

  void Set(const wchar_t* mark) {
    const CVariant value{CBstr(mark)};
    RequireSuccess(m_element.setAttribute(m_name.get(), value.get()), m_element, IID_IXMLDOMElement);
  }

  bool IsMarked(IXMLDOMElement& element, const wchar_t* mark) const {
    CVariant value;
    RequireSuccess(element.getAttribute(m_name.get(), value.Receive()), element, IID_IXMLDOMElement);
    return value.Text() == mark;
  }

  IXMLDOMElement& m_element;
  CBstr m_name;
  CVariant m_before;  // the value of the file's own attribute with the mark's name, if there is one
};

}  // namespace msxml6
