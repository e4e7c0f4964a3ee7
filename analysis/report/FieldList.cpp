#include "report/FieldRows.h"
#include "report/Sections.h"

namespace vifanalysis {

namespace {

class CFieldList {
 public:
  CFieldList(CMarkup& page, const CReportedVif& vif) : m_page(page), m_vif(vif) {}

  /// The group's own fields, then those of the groups in it.
  void WriteGroup(const CGroupView& group) {
    if (!group.Fields().empty()) {
      BeginTable(m_page, GroupTitle(group.Place()), {"Field", "Value"});
      for (const FoundField* found : m_vif.FieldsOf(group)) WriteRow(*found, group);
      EndTable(m_page);
    }
    for (const CGroupView& inner : group.Groups()) WriteGroup(inner);
  }

 private:
  void WriteRow(const FoundField& found, const CGroupView& group) {
    m_page.Begin("tr", {{"class", "field"}, {"id", FieldId(m_vif.PositionOf(found))}});
    m_names.Write(m_page, m_vif.Declared(found).Name());
    m_page.Begin("td");
    WriteValue(m_page, m_vif.Shown(found, group));
    m_page.End();
    m_page.End();
  }

  CMarkup& m_page;
  const CReportedVif& m_vif;
  CFieldNames m_names;
};

}  // namespace

void WriteFields(CMarkup& page, const CReportedVif& vif) {
  page.Begin("section", {{"id", "fields"}});
  page.Element("h2", "All fields");
  WriteFilter(page);
  CFieldList(page, vif).WriteGroup(vif.View().Root());
  page.End();
}

}  // namespace vifanalysis
