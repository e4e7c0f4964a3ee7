// The sections of a report. Each writes nothing when there is nothing to show.
#pragma once

#include "report/Side.h"

#include <analysis/Differences.h>

#include <string>
#include <string_view>
#include <vector>

namespace vifanalysis {

/// The files of a report: one, or an earlier and a later one.
using ReportedVifs = std::vector<const CReportedVif*>;

/// The same port in all files of a report, by its section's ID.
struct ReportedPort {
  std::string id;
  PortSides sides;
};

using ReportedPorts = std::vector<ReportedPort>;

/// Such as "Component 1" or "Component 1 \u00b7 Left".
std::string TitleOf(const ReportedPort& port);

/// What the product is, each port in one line, and the number of findings by severity.
void WriteSummary(CMarkup& page, const ReportedVifs& vifs, const ReportedPorts& ports);

/// One port: its roles, its power with pictures, its alternate modes, or what a cable carries.
void WritePort(CMarkup& page, const ReportedPort& port);

/// The USB4 routers of the product.
/// \param sides the products
void WriteRouters(CMarkup& page, const Sides& sides);

/// The alternate modes of a port or a cable.
void WriteModes(CMarkup& page, const PortSides& sides);

/// What checking the file found.
void WriteFindings(CMarkup& page, const CReportedVif& vif);

/// The findings that only one of two files has.
/// \param earlier the rows of the earlier file's fields
void WriteFindingChanges(CMarkup& page, const FindingChanges& changes, const CFieldRows& earlier);

/// All fields by group, with what is known about each.
void WriteFields(CMarkup& page, const CReportedVif& vif);

/// How two files differ, in short.
void WriteDifferences(CMarkup& page, const ReportedVifs& vifs, const Differences& differences);

/// All fields of two files by group, side by side.
void WriteFieldsSideBySide(CMarkup& page, const ReportedVifs& vifs, const Differences& differences);

}  // namespace vifanalysis
