// Reading, comparing and writing JSON.
#include <gtest/gtest.h>
#include <limits>
#include <sstream>
#include <utility>

#include "base/Value.h"

namespace lumenote {
namespace {

Value Read(std::string_view text) { return ReadJson(text); }

TEST(Json, WritesBackWhatItReads) {
  for (const std::string_view text :
       {"null", "[true,false]", R"({"b":1,"a":[]})", "{}", "[]", "-100", "0.1", "1e+300", "[1.5,2]",
        R"("\"\\/\b\f\n\r\t\u0000\u0001")", R"("\ude00\ud83d")", "\"\x7F\xF0\x9F\x98\x80 été\""}) {
    EXPECT_EQ(WriteJson(Read(text)), text);
  }
}

TEST(Json, WritesTheCompactForm) {
  EXPECT_EQ(WriteJson(Read(" [ -0 , 1.50,1E+2 ,1e-400, 9007199254740993 ] ")),
            "[0,1.5,100,0,9007199254740992]");
  EXPECT_EQ(WriteJson(Read(R"("\/\u00E9\uD83D\uDE00")")), "\"/é\xF0\x9F\x98\x80\"");
  EXPECT_EQ(WriteJson(Value(Value::Object{{"k\"", u"v"}})), R"({"k\"":"v"})");
  EXPECT_EQ(WriteJson(std::numeric_limits<double>::infinity()), "null");
}

TEST(Json, RefusesWhatIsMalformed) {
  constexpr std::string_view kStructures =
      R"(|  |nul|True|NaN|Infinity|[|[1|[1,|[1,]|[,1]|[1 2]|]|{|{"a"|{"a":|{"a":1|{"a":1,}|{a:1})"
      R"(|{"a" 1}|{1:2}|{"a":1,"a":2}|'a'|01|-|+1|.5|1.|1.e1|1e|1e+|1e400|-1e999|"|"abc|"\|"\x")"
      R"(|"\u12"|"\u12G4"|"\u-123")";
  std::stringstream structures{std::string(kStructures)};
  for (std::string text; std::getline(structures, text, '|');) {
    EXPECT_THROW(Read(text), JsonError) << text;
  }
  for (const std::string_view text :
       {"\"\xFF\"", "\"\xC0\xAF\"", "\"\xED\xA0\x80\"", "\"\xE2\x82\"", "\"a\nb\"", "\uFEFF1"}) {
    EXPECT_THROW(Read(text), JsonError) << text;
  }
}

TEST(Json, NestingIsLimited) {
  const auto nested = [](std::size_t depth) {
    return std::string(depth, '[') + std::string(depth, ']');
  };
  EXPECT_EQ(WriteJson(Read(nested(100))), nested(100));
  EXPECT_THROW(Read(nested(101)), JsonError);
  EXPECT_THROW(Read(std::string(1000000, '[')), JsonError);
}

TEST(Json, ReadsOneValueAndLeavesTheRest) {
  std::string_view text = "  [1] \"b\"true rest";
  EXPECT_EQ(ReadJson(text), Value(Value::Array{1}));
  EXPECT_EQ(ReadJson(text), Value(u"b"));
  EXPECT_EQ(ReadJson(text), Value(true));
  EXPECT_EQ(text, " rest");
}

TEST(Json, ComparesByStructure) {
  EXPECT_EQ(Read("{\"a\":1,\"b\":{\"x\":null,\"y\":2.0}}"),
            Read("{\"b\":{\"y\":2,\"x\":null},\"a\":1e0}"));
  const std::pair<std::string_view, std::string_view> kDifferent[] = {
      {"[1,2]", "[2,1]"},
      {R"({"a":1})", R"({"b":1})"},
      {R"({"a":1})", R"({"a":1,"b":1})"},
      {"0", "false"},
      {"null", "0"},
      {"[]", "{}"}};
  for (const auto& c : kDifferent) EXPECT_FALSE(Read(c.first) == Read(c.second)) << c.first;
}

}  // namespace
}  // namespace lumenote
