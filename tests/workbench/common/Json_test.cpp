#include "workbench/common/Json.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace {

using workbench::Json;
using workbench::jsonText;
using workbench::readJson;

TEST(Json, IsWrittenInItsOrderAndAlwaysReadable) {
    struct {
        char const* rule;
        Json json;
        int indent;
        char const* text;
    } const table[] = {
        {"keys stay in their order", {{"b", 1}, {"a", 2}}, -1, R"({"b":1,"a":2})"},
        {"a level has its blanks", {{"b", Json::array({1})}}, 2, "{\n  \"b\": [\n    1\n  ]\n}"},
        {"a double reads back", 0.1, -1, "0.1"},
        {"infinity is null", std::numeric_limits<double>::infinity(), -1, "null"},
        {"NaN is null", std::numeric_limits<double>::quiet_NaN(), -1, "null"},
        {"what is no UTF-8 is replaced", "a\xff", -1, "\"a\xef\xbf\xbd\""},
    };
    for (auto const& row : table)
        EXPECT_EQ(jsonText(row.json, row.indent), row.text) << row.rule;
}

TEST(Json, OfNoJsonIsDiscarded) {
    for (char const* text : {"", "{", "{\"a\":}", "1 2", "nan", "'a'"})
        EXPECT_TRUE(readJson(text).is_discarded()) << text;
    EXPECT_EQ(readJson(R"({"b":1,"a":[]})"), (Json{{"b", 1}, {"a", Json::array()}}));
}

}  // namespace
