// The escaping of a text for a page.
#include "export/HtmlEscape.h"

#include "export/Pages.h"

#include <array>
#include <string_view>

namespace {

struct Replacement {
    std::string_view from, to;
};

constexpr std::array<Replacement, 5> Replacements{{
    {">", "&gt;"},
    {"<", "&lt;"},
    {"&", "&amp;"},
    {"\"", "&quot;"},
    {"\r", "<br>"},
}};

} // namespace

void HtmlEscape(std::string& text) {
    for (const Replacement& step : Replacements) {
        ReplaceEach(text, step.from, step.to);
    }
}
