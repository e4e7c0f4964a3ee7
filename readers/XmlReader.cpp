#include "XmlReader.h"
#include "msxml/ComTypes.h"

#include "BaseUtilities/PathText.h"
#include "BaseUtilities/StringConvert.h"
#include "DOMDocVIF.h"
#include "DomCalls.h"
#include "Errors.h"
#include "GroupNames.h"
#include "HeaderElements.h"
#include "ProgressMeter.h"
#include "VIFInvalidFile.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vif {

namespace {

constexpr std::size_t kDepth = CVIFField::MAX_INDEX_DEPTH;
constexpr std::string_view kYes = "YES";
constexpr std::string_view kNo = "NO";

using Slots = std::array<VifIndex, kDepth>;

constexpr Slots kNoSlots = {CVIFField::UNSPECIFIED_INDEX, CVIFField::UNSPECIFIED_INDEX, CVIFField::UNSPECIFIED_INDEX};

/// The slots of a field outside any numbered group.
constexpr Slots HeaderSlots(EVifLocation location) {
  return {VifIndex{location, 0}, CVIFField::UNSPECIFIED_INDEX, CVIFField::UNSPECIFIED_INDEX};
}

/// Makes room for that many more fields. The capacity at least doubles, so that a list that grows file by file is not
/// moved for each of them.
void Reserve(std::vector<CVIFField>& list, std::size_t count) {
  const std::size_t needed = list.size() + count;
  if (needed > list.capacity()) list.reserve(std::max(needed, 2 * list.capacity()));
}

/// Moves all fields to the end of the list. When memory runs out, the list stays as it was.
void MoveToEnd(std::vector<CVIFField>& list, std::vector<CVIFField>& fields) {
  Reserve(list, fields.size());
  for (CVIFField& field : fields) list.push_back(std::move(field));
}

/// A list element and the items in it.
struct GroupList {
  DOMNodePtr element;
  DOMNodeListPtr items;
};

/// Turns one document into fields. `Run` shows their order.
class CExtraction {
 public:
  CExtraction(IXMLDOMElement& root, FieldSink sink, const XmlObserver* observer)
      : m_root(root), m_sink(sink), m_observer(observer) {}

  void Run() {
    ReadApplication();
    ReadSpecification();
    for (const HeaderElement& element : kHeaderElements) {
      ReadHeaderElement(Utf8ToUtf16("vif:" + std::string(element.name)), HeaderSlots(element.location));
    }
    Walk(*SelectNodes(m_root, CBstr(L"vif:Product")), 0, kNoSlots, eVifLocProduct, nullptr, m_header);
    MoveToEnd(m_sink.fields, m_header);
    Walk(*SelectNodes(m_root, CBstr(L"vif:Component")), 0, kNoSlots, eVifLocComponent, &m_sink.componentCount,
         m_sink.fields);
  }

 private:
  /// The application that wrote the file: its description if there is one; otherwise one field of its vendor, name and
  /// version.
  void ReadApplication() {
    if (ReadHeaderElement(L"vif:VIF_App/vif:Description", kNoSlots)) return;
    const std::optional<std::string> vendor = HeaderText(L"vif:VIF_App/vif:Vendor");
    const std::optional<std::string> name = HeaderText(L"vif:VIF_App/vif:Name");
    const std::optional<std::string> version = HeaderText(L"vif:VIF_App/vif:Version");
    if (!vendor && !name && !version) return;
    const std::string text =
        MessageBuffer().Printf("%s %s %s", vendor.value_or("--"), name.value_or("--"), version.value_or("--"));
    AddText(*SelectSingleNode(m_root, CBstr(L"vif:VIF_App")), "VIF_Producer", text);
  }

  void ReadSpecification() {
    const DOMNodePtr element = SelectSingleNode(m_root, CBstr(L"vif:VIF_Specification"));
    if (element != nullptr) AddText(*element, "VIF_Specification", "Version " + Text(*element));
  }

  /// \return whether there is such an element
  bool ReadHeaderElement(std::wstring_view xpath, const Slots& slots) {
    const DOMNodePtr element = SelectSingleNode(m_root, CBstr(xpath));
    if (element != nullptr) ReadLeaf(*element, slots, m_header);
    return element != nullptr;
  }

  std::optional<std::string> HeaderText(const wchar_t* xpath) {
    const DOMNodePtr element = SelectSingleNode(m_root, CBstr(xpath));
    if (element == nullptr) return std::nullopt;
    return Text(*element);
  }

  /// Adds a header field whose value and description are one text.
  void AddText(IXMLDOMNode& element, const std::string& name, const std::string& text) {
    m_header.emplace_back(false, name, text, text, HeaderSlots(eVifLocVif));
    ReportField(element, m_header.back());
  }

  /// Makes a field of a leaf. It is numeric when the element has a value attribute, whatever that holds.
  void ReadLeaf(IXMLDOMNode& element, const Slots& slots, std::vector<CVIFField>& fields) {
    std::string name = LocalName(element);
    // Unlike the name and the text, which are in the system code page, the value is UTF-8 on every system. Test suites
    // compare values byte by byte.
    std::optional<std::string> value = Attribute(element, m_value);
    std::string description = Text(element);
    if (value == "true" || value == "false") {
      const bool isTrue = value == "true";
      value.emplace(1, isTrue ? '1' : '0');
      if (description.empty()) description = isTrue ? kYes : kNo;
    }
    const bool isNumeric = value.has_value();
    fields.emplace_back(isNumeric, std::move(name), std::move(value).value_or(std::string()), std::move(description),
                        slots);
    ReportField(element, fields.back());
  }

  void ReportField(IXMLDOMNode& element, const CVIFField& field) const {
    if (m_observer != nullptr) m_observer->onField(element, field);
  }

  /// Reads the items of one list, which is no deeper than there are slots: all leaves of an item first, then the lists
  /// in it, wherever they are. `slots` are those of the groups around the items, filled up to the depth. `counter`
  /// counts the items over several lists and files; null numbers them within the list.
  void Walk(IXMLDOMNodeList& items, std::size_t depth, Slots slots, EVifLocation location, std::uint32_t* counter,
            std::vector<CVIFField>& fields) {
    const LONG count = Length(items);
    for (LONG i = 0; i < count; ++i) {
      const std::uint64_t number = counter != nullptr ? (*counter)++ : static_cast<std::uint64_t>(i);
      slots[depth] = {location, number + GetVifLocFirstIndex(location)};
      ReadItem(*Item(items, i), depth, slots, fields);
    }
  }

  void ReadItem(IXMLDOMNode& item, std::size_t depth, const Slots& slots, std::vector<CVIFField>& fields) {
    const DOMNodeListPtr children = SelectNodes(item, m_anyChild);
    const LONG count = Length(*children);
    std::vector<GroupList> lists;
    for (LONG i = 0; i < count; ++i) {
      DOMNodePtr child = Item(*children, i);
      DOMNodeListPtr grandchildren = SelectNodes(*child, m_anyChild);
      if (Length(*grandchildren) == 0) {
        ReadLeaf(*child, slots, fields);
      } else {
        lists.push_back({std::move(child), std::move(grandchildren)});
      }
    }
    for (const GroupList& list : lists) {
      const EVifLocation location = ListLocation(*list.element);
      if (depth + 1 >= kDepth) {
        ReportFailure(*list.element);
        ThrowRunTimeError("Invalid node depth: groupLists should only be nested %u level%s deep.", kDepth, "s");
      }
      Walk(*list.items, depth + 1, slots, location, nullptr, fields);
    }
  }

  /// The location of a list's items, which depends on the name of the list only, not on what the items are called.
  EVifLocation ListLocation(IXMLDOMNode& list) const {
    CBstr name;
    const HRESULT result = list.get_nodeName(name.Receive());
    if (result == E_OUTOFMEMORY) _com_issue_errorex(result, &list, IID_IXMLDOMNode);  // not the document's fault
    if (FAILED(result) || name.get() == nullptr) {
      ReportFailure(list);
      ThrowDomDocError("ERROR:  Couldn't get node name.\r\n");
    }
    std::wstring_view localName = name.View();
    if (const std::size_t colon = localName.find(L':'); colon != std::wstring_view::npos) {
      localName.remove_prefix(colon + 1);
    }
    const std::optional<EVifLocation> location = FindGroupLocation(localName);
    if (location) return *location;
    ReportFailure(list);
    ThrowDomDocError("Unexpected list element name: %ls", std::wstring(localName));
  }

  void ReportFailure(IXMLDOMNode& group) const {
    if (m_observer != nullptr) m_observer->onFailure(group);
  }

  IXMLDOMElement& m_root;
  FieldSink m_sink;
  const XmlObserver* m_observer;
  std::vector<CVIFField> m_header;  // goes to the sink as a whole, once the product has been read
  const CBstr m_anyChild{L"vif:*"};
  const CBstr m_value{L"value"};
};

/// Makes room for the fields of a file, which has about 90 bytes for each, so that the list is not moved again and
/// again while it grows.
void ReserveFor(const CVifSource& source, std::vector<CVIFField>& fields) {
  constexpr std::uintmax_t bytesOfField = 80;
  constexpr std::uintmax_t most = 100'000;  // the rest of a file may be of any size
  const std::optional<std::uintmax_t> size = source.Size();
  if (size) Reserve(fields, static_cast<std::size_t>(std::min(*size / bytesOfField, most)));
}

}  // namespace

void ReadXmlVif(const CVifSource& source, FieldSink sink) {
  constexpr std::uint64_t stretch = 1'000;
  CProgressMeter meter(source, stretch);
  CDOMDocVIF document;
  LoadXmlVif(source, document);
  ReserveFor(source, sink.fields);
  if (source.Progress() == nullptr) {
    ExtractFields(*document.GetRootElement(), sink);
  } else {
    std::uint64_t fieldCount = 0;
    meter.Finish();
    const auto onField = [&](IXMLDOMNode&, const CVIFField&) { meter.Reach(++fieldCount, meter.Total()); };
    const XmlObserver observer = {onField, [](IXMLDOMNode&) {}};
    ExtractFields(*document.GetRootElement(), sink, &observer);
    meter.Finish();
  }
  // A file may consist almost entirely of something other than fields.
  if (sink.fields.capacity() > 2 * sink.fields.size()) sink.fields.shrink_to_fit();
}

void LoadXmlVif(const CVifSource& source, CDOMDocVIF& document) {
  if (source.ValidateIn(document)) return;
  throw CVIFInvalidFile(MessageBuffer().Printf("%s is not a valid Vendor Info File.", PathToSystem(source.Name())),
                        document.Problems());
}

void ExtractFields(IXMLDOMElement& root, FieldSink sink, const XmlObserver* observer) {
  CExtraction(root, sink, observer).Run();
}

}  // namespace vif
