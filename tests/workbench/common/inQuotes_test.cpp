#include "workbench/common/inQuotes.hpp"

#include <gtest/gtest.h>

namespace {

struct QuoteCase {
    char const* rule;
    std::string text;
    std::string expected;
};

QuoteCase const quoteCases[] = {
    {"words stay as they are", "a b", "'a b'"},
    {"the empty text", "", "''"},
    {"line ends do not break the line", "a\r\nb", "'a\\x0d\\x0ab'"},
    {"zero and delete are written out", std::string("\0\x7f", 2), "'\\x00\\x7f'"},
    {"letters of other languages stay", "Gr\xc3\xbc\xc3\x9f", "'Gr\xc3\xbc\xc3\x9f'"},
    {"eighty bytes are not too many", std::string(80, 'x'), "'" + std::string(80, 'x') + "'"},
    {"more are cut", std::string(81, 'x'), "'" + std::string(80, 'x') + "...'"},
    {"a cut splits no letter", std::string(79, 'x') + "\xc3\xbc" + "yy",
     "'" + std::string(79, 'x') + "...'"},
};

TEST(InQuotes, AnyTextFitsIntoALine) {
    for (QuoteCase const& c : quoteCases)
        EXPECT_EQ(workbench::inQuotes(c.text), c.expected) << c.rule;
}

TEST(Printable, LeavesLettersAndShowsControlCharacters) {
    EXPECT_EQ(workbench::printable("h\xc3\xb6he 'x'"), "h\xc3\xb6he 'x'");
    EXPECT_EQ(workbench::printable("a\x1b[31m\nb\x7f"), "a\\x1b[31m\\x0ab\\x7f");
}

}  // namespace
