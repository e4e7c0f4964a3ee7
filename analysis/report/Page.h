// The frame of a report: an HTML page that makes no request.
#pragma once

#include "report/Markup.h"

#include <string>

namespace vifanalysis {

/// Begins the page with its style sheet and its script, which are all that its content security policy allows. What
/// follows is in `main`.
void BeginPage(CMarkup& page, const std::string& title);

/// Ends the page.
void EndPage(CMarkup& page);

}  // namespace vifanalysis
