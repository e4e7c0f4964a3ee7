// The sections of a report. Each writes nothing when there is nothing to show.
#pragma once

#include "report/Side.h"

#include <analysis/Differences.h>

#include <string>
#include <string_view>
#include <vector>

namespace vifanalysis {

/// The files of a report: one, or an earlier and a later one.
using ShownFiles = std::vector<ShownFile>;

/// The same port in all files of a report, by its section's ID.
struct ReportedPort {
  std::string id;
  PortSides sides;
};

using ReportedPorts = std::vector<ReportedPort>;

/// Such as "Component 1" or "Component 1 \u00b7 Left".
std::string TitleOf(const ReportedPort& port);

/// The place of the group in the later file, or else in the earlier one, and what is to be said about the other file:
/// "Component 2 (Component 1 in passed.txt)" or "Router 1 (only in passed.txt)".
std::string TitleOf(const Sides& sides);

/// What the product is, each port in one line, and the number of findings by severity.
void WriteSummary(CMarkup& page, const ShownFiles& vifs, const ReportedPorts& ports);

/// One port: its roles, its power with pictures, its alternate modes, or what a cable carries.
void WritePort(CMarkup& page, const ReportedPort& port);

/// The same router in all files of a report.
using ReportedRouters = std::vector<Sides>;

/// The USB4 routers of the product.
void WriteRouters(CMarkup& page, const ReportedRouters& routers);

/// The alternate modes of a port or a cable.
void WriteModes(CMarkup& page, const PortSides& sides);

/// What checking the only file found.
void WriteFindings(CMarkup& page, const ShownFile& file);

/// What checking two files found: what only one of them has, then what both have.
void WriteFindings(CMarkup& page, const ShownFiles& files, const Differences& differences);

/// All fields by group, with what is known about each.
void WriteFields(CMarkup& page, const CReportedVif& vif);

/// How two files differ, in short.
void WriteDifferences(CMarkup& page, const ShownFiles& vifs, const Differences& differences);

/// All fields of two files by group, side by side.
void WriteFieldsSideBySide(CMarkup& page, const ShownFiles& vifs, const Differences& differences);

}  // namespace vifanalysis
