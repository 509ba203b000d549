// The escaping of a text for a page. No page uses it: values go into pages as they stand.
#pragma once

#include <string>

// Changes the text in place: ">" and "<" to their entities, then "&", so that a ">" ends as "&amp;gt;", then
// the double quote, and a carriage return to "<br>". The order is meant.
void HtmlEscape(std::string& text);
