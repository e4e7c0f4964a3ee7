#include "DOMDocVIF.h"
#include "DomCalls.h"
#include "VIFXmlCheck.h"
#include "XmlReader.h"

#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace {

/// Reports what becomes of the elements of one document.
class CElementReporter {
 public:
  CElementReporter(const CDOMDocVIF& document, const VifElementObserver& observer)
      : m_document(document), m_observer(observer) {}

  void ReportField(IXMLDOMNode& element, const CVIFField& field) {
    VifElementReport report = Describe(element);
    report.field = &field;
    m_withField.insert(report.path);
    if (m_observer) m_observer(report);
  }

  /// Reports the elements under the root that loading has passed over.
  void ReportPassedOver(IXMLDOMElement& root) {
    const DOMNodeListPtr children = vif::SelectNodes(root, m_anyChild);
    const LONG count = vif::Length(*children);
    for (LONG i = 0; i < count; ++i) {
      const DOMNodePtr child = vif::Item(*children, i);
      const std::string name = vif::LocalName(*child);
      if (name == "Product") {
        if (!IsLeaf(*child)) ReportWithoutField(*child);
      } else if (name == "Component" || name == "VIF_App") {
        ReportWithoutField(*child);
      } else if (!HasField(*child)) {
        Report(*child);
      }
    }
  }

 private:
  VifElementReport Describe(IXMLDOMNode& element) const {
    VifElementReport report{0, 0, m_document.PathOf(element), nullptr};
    m_document.Locate(element, report.line, report.column);
    return report;
  }

  bool HasField(IXMLDOMNode& element) const { return m_withField.contains(m_document.PathOf(element)); }

  void Report(IXMLDOMNode& element) const {
    if (m_observer) m_observer(Describe(element));
  }

  bool IsLeaf(IXMLDOMNode& element) const { return vif::Length(*vif::SelectNodes(element, m_anyChild)) == 0; }

  /// Reports the leaves of a group that have yielded no field, the group itself when it is a leaf.
  void ReportWithoutField(IXMLDOMNode& group) const {
    if (HasField(group)) return;
    const DOMNodeListPtr children = vif::SelectNodes(group, m_anyChild);
    const LONG count = vif::Length(*children);
    if (count == 0) Report(group);
    for (LONG i = 0; i < count; ++i) ReportWithoutField(*vif::Item(*children, i));
  }

  const CDOMDocVIF& m_document;
  const VifElementObserver& m_observer;
  std::set<std::string> m_withField;  // paths
  const CBstr m_anyChild{L"vif:*"};
};

}  // namespace

void CheckXmlVif(const std::filesystem::path& fileName, const VifElementObserver& observer) {
  CDOMDocVIF document;
  vif::LoadXmlVif(fileName, document);
  CElementReporter reporter(document, observer);
  std::vector<CVIFField> fields;
  std::uint32_t componentCount = 0;
  const vif::XmlFieldObserver reportField = [&](IXMLDOMNode& element, const CVIFField& field) {
    reporter.ReportField(element, field);
  };
  const DOMElementPtr root = document.GetRootElement();
  vif::ExtractFields(*root, {fields, componentCount}, &reportField);
  reporter.ReportPassedOver(*root);
}
