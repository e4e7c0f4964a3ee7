#include "report/Markup.h"

#include <gtest/gtest.h>

namespace vifanalysis {

namespace {

TEST(Markup, ElementsEndInTheOrderInWhichTheyAreNested) {
  CMarkup page;
  page.Begin("p");
  page.Begin("b");
  page.Text("x");
  page.End();
  page.Text("y");
  page.End();
  EXPECT_EQ(page.Take(), "<p><b>x</b>y</p>");
}

TEST(Markup, EscapesWhatWouldBeMarkup) {
  CMarkup page;
  page.Element("p", "<b>&\"'");
  EXPECT_EQ(page.Take(), "<p>&lt;b&gt;&amp;&quot;'</p>");
}

TEST(Markup, EscapesTheValuesOfAttributes) {
  CMarkup page;
  page.Void("input", {{"value", "\"><b>"}, {"id", "x"}});
  EXPECT_EQ(page.Take(), "<input value=\"&quot;&gt;&lt;b&gt;\" id=\"x\">");
}

TEST(Markup, ShowsControlCharactersAsEscapes) { EXPECT_EQ(Escaped("a\n\x1b\xff"), "a\\n\\x1b\ufffd"); }

}  // namespace

}  // namespace vifanalysis
