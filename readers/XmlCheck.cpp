#include "DOMDocVIF.h"
#include "DomCalls.h"
#include "HeaderElements.h"
#include "VIFXmlCheck.h"
#include "XmlReader.h"
#include "msxml/ComTypes.h"

#include <algorithm>
#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace {

/// Whether the first element of that name under the root is read.
bool IsHeaderName(const std::string& name) {
  if (name == "VIF_App" || name == "VIF_Specification") return true;
  return std::any_of(vif::kHeaderElements.begin(), vif::kHeaderElements.end(),
                     [&](const vif::HeaderElement& element) { return element.name == name; });
}

/// Reports what becomes of each element of one document.
class CElementReporter {
 public:
  CElementReporter(const CDOMDocVIF& document, const VifElementObserver& observer)
      : m_document(document), m_observer(observer) {}

  void Report(EVifElementFate fate, IXMLDOMNode& element, const CVIFField* field = nullptr) const {
    if (!m_observer) return;
    VifElementReport report{fate, 0, 0, m_document.PathOf(element), field};
    m_document.Locate(element, report.line, report.column);
    m_observer(report);
  }

  /// Reports the elements that loading skips.
  void ReportSkipped(IXMLDOMElement& root) {
    m_vifNamespace = vif::Namespace(root);
    ForEach(root, m_anyElement, [&](IXMLDOMNode& element) {
      if (!IsOfVif(element)) {
        Report(eVifElementForeign, element);
        return;
      }
      const std::string name = vif::LocalName(element);
      if (name == "Product") {
        if (!IsEmpty(element)) ReportItem(element);
      } else if (name == "Component") {
        ReportItem(element);
      } else if (!m_seen.insert(name).second || !IsHeaderName(name)) {
        Report(eVifElementNotRead, element);
      } else if (name == "VIF_App") {
        ReportApplication(element);
      }
    });
  }

 private:
  template <typename Action>
  void ForEach(IXMLDOMNode& parent, const CBstr& xpath, const Action& action) const {
    const DOMNodeListPtr nodes = vif::SelectNodes(parent, xpath);
    const LONG count = vif::Length(*nodes);
    for (LONG i = 0; i < count; ++i) action(*vif::Item(*nodes, i));
  }

  bool IsEmpty(IXMLDOMNode& element) const { return vif::Length(*vif::SelectNodes(element, m_vifElement)) == 0; }

  bool IsOfVif(IXMLDOMNode& element) const { return vif::Namespace(element) == m_vifNamespace; }

  /// An application is named by its description if it has one, else by its vendor, name and version.
  void ReportApplication(IXMLDOMNode& application) const {
    const bool hasDescription = vif::SelectSingleNode(application, CBstr(L"vif:Description")) != nullptr;
    std::set<std::string> seen;
    ForEach(application, m_anyElement, [&](IXMLDOMNode& element) {
      if (!IsOfVif(element)) {
        Report(eVifElementForeign, element);
        return;
      }
      const std::string name = vif::LocalName(element);
      const bool isName = name == "Vendor" || name == "Name" || name == "Version";
      if (isName && hasDescription) {
        Report(eVifElementGivesWay, element);
      } else if (!seen.insert(name).second || (!isName && name != "Description")) {
        Report(eVifElementNotRead, element);
      }
    });
  }

  /// An item is the product, a component or an element of a list. Its leaves are fields; anything else in it is a list.
  void ReportItem(IXMLDOMNode& item) const {
    if (IsEmpty(item)) Report(eVifElementEmpty, item);
    ForEach(item, m_anyElement, [&](IXMLDOMNode& child) {
      if (!IsOfVif(child)) {
        Report(eVifElementForeign, child);
      } else {
        ForEach(child, m_vifElement, [&](IXMLDOMNode& inner) { ReportItem(inner); });
      }
    });
  }

  const CDOMDocVIF& m_document;
  const VifElementObserver& m_observer;
  std::string m_vifNamespace;
  std::set<std::string> m_seen;  // names of elements under the root
  const CBstr m_vifElement{L"vif:*"};
  const CBstr m_anyElement{L"*[not(self::opt:*)]"};
};

}  // namespace

void CheckXmlVif(const std::filesystem::path& fileName, const VifElementObserver& observer) {
  vif::FollowXmlVif(fileName, observer);
}

void vif::FollowXmlVif(const CVifSource& source, const VifElementObserver& observer) {
  CDOMDocVIF document;
  LoadXmlVif(source, document);
  CElementReporter reporter(document, observer);
  std::vector<CVIFField> fields;
  std::uint32_t componentCount = 0;
  const XmlObserver extraction = {
      [&](IXMLDOMNode& element, const CVIFField& field) { reporter.Report(eVifElementField, element, &field); },
      [&](IXMLDOMNode& group) { reporter.Report(eVifElementNotUnderstood, group); }};
  const DOMElementPtr root = document.GetRootElement();
  ExtractFields(*root, {fields, componentCount}, &extraction);
  reporter.ReportSkipped(*root);
}
