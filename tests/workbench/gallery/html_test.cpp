#include "workbench/gallery/html.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace {

using namespace workbench;

TEST(EscapeHtml, LeavesNothingThatThePageWouldRead) {
    struct Case {
        std::string text;
        char const* html;
    };
    Case const cases[] = {
        {"", ""},
        {"plain text, 1 + 1 = 2", "plain text, 1 + 1 = 2"},
        {"<script>", "&lt;script&gt;"},
        {"a & b", "a &amp; b"},
        {"&amp;", "&amp;amp;"},
        {"\"double\" and 'single'", "&quot;double&quot; and &#39;single&#39;"},
        {"two  blanks\tand\na line", "two  blanks\tand\na line"},
        {"h\xc3\xb6he", "h\xc3\xb6he"},
        {std::string("a\0b\x1b[0m\x7f", 8),
         "a\xef\xbf\xbd"
         "b\xef\xbf\xbd[0m\xef\xbf\xbd"},
    };
    for (auto const& [text, html] : cases)
        EXPECT_EQ(escapeHtml(text), html);
}

TEST(Element, HasItsAttributesIfThereAreAny) {
    EXPECT_EQ(element("p", "", "text"), "<p>text</p>");
    EXPECT_EQ(element("td", "class=\"number\"", "1"), "<td class=\"number\">1</td>");
}

TEST(Readable, HasFourDigitsAtMost) {
    struct Case {
        double value;
        char const* text;
    };
    Case const cases[] = {
        {0, "0"},
        {-0.0, "0"},
        {1, "1"},
        {0.25, "0.25"},
        {-1.5, "−1.5"},
        {1.0 / 3, "0.3333"},
        {99.99999, "100"},
        {1000, "1000"},
        {10000, "10⁴"},
        {-1e6, "−10⁶"},
        {6450078.3, "6.45 × 10⁶"},
        {-6493833.4, "−6.494 × 10⁶"},
        {3e38, "3 × 10³⁸"},
        {1.5e-10, "1.5 × 10⁻¹⁰"},
        {std::numeric_limits<double>::infinity(), "inf"},
    };
    for (auto const& [value, text] : cases)
        EXPECT_EQ(readable(value), text) << value;
}

/// The examples of RFC 4648.
TEST(Base64, IsPadded) {
    struct Case {
        char const* bytes;
        char const* text;
    };
    Case const cases[] = {
        {"", ""},
        {"f", "Zg=="},
        {"fo", "Zm8="},
        {"foo", "Zm9v"},
        {"foob", "Zm9vYg=="},
        {"fooba", "Zm9vYmE="},
        {"foobar", "Zm9vYmFy"},
    };
    for (auto const& [bytes, text] : cases)
        EXPECT_EQ(base64(bytes), text);
    EXPECT_EQ(base64("\xfb\xff\xbf"), "+/+/");
}

TEST(DataUri, HoldsAPng) {
    EXPECT_TRUE(dataUri(Image(1, 1)).starts_with("data:image/png;base64,iVBORw0KGgo"));
}

}  // namespace
