// The escaping of a text for a page.
#include "export/HtmlEscape.h"

#include <gtest/gtest.h>

namespace {

std::string Escaped(std::string text) {
    HtmlEscape(text);
    return text;
}

TEST(HtmlEscape, EscapesTheAngleBracketsBeforeTheAmpersandSoThatTheirsIsEscapedOnceMore) {
    EXPECT_EQ(Escaped(">"), "&amp;gt;");
    EXPECT_EQ(Escaped("<"), "&amp;lt;");
    EXPECT_EQ(Escaped("<b>"), "&amp;lt;b&amp;gt;");
}

TEST(HtmlEscape, EscapesAmpersandsQuotesAndCarriageReturns) {
    EXPECT_EQ(Escaped("a & b && c"), "a &amp; b &amp;&amp; c");
    EXPECT_EQ(Escaped("\"Candide\""), "&quot;Candide&quot;");
    EXPECT_EQ(Escaped("one\r\ntwo\r"), "one<br>\ntwo<br>");
}

TEST(HtmlEscape, LeavesAllElse) {
    EXPECT_EQ(Escaped("it's \xE9 ~ ` 100%"), "it's \xE9 ~ ` 100%");
    EXPECT_EQ(Escaped(""), "");
}

} // namespace
