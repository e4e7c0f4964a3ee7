#include "report/Page.h"

#include <ReportAssets.h>

namespace vifanalysis {

void BeginPage(CMarkup& page, const std::string& title) {
  page.Append("<!DOCTYPE html>\n");
  page.Begin("html", {{"lang", "en"}});
  page.Begin("head");
  page.Void("meta", {{"charset", "utf-8"}});
  page.Void("meta", {{"http-equiv", "Content-Security-Policy"},
                     {"content", "default-src 'none'; style-src 'sha256-" + std::string(kReportStyleHash) +
                                     "'; script-src 'sha256-" + std::string(kReportScriptHash) +
                                     "'; base-uri 'none'; form-action 'none'"}});
  page.Void("meta", {{"name", "referrer"}, {"content", "no-referrer"}});
  page.Void("meta", {{"name", "viewport"}, {"content", "width=device-width, initial-scale=1"}});
  page.Void("meta", {{"name", "color-scheme"}, {"content", "light dark"}});
  page.Element("title", title);
  page.Begin("style");
  page.Append(kReportStyle);
  page.End();
  page.End();
  page.Begin("body");
  page.Begin("main");
}

void EndPage(CMarkup& page) {
  page.End();
  page.Begin("script");
  page.Append(kReportScript);
  page.End();
  page.End();
  page.End();
  page.Append("\n");
}

}  // namespace vifanalysis
