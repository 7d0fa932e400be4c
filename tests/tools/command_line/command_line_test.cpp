// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tools/command_line/command_line.hpp"

#include <gtest/gtest.h>

namespace sdk::test {
namespace {

using Words = std::vector<std::string>;

bool read(CommandLine& line, const Words& words) {
  std::vector<const char*> argv{"tool"};
  for (const std::string& word : words) argv.push_back(word.c_str());
  return line.read(static_cast<int>(argv.size()), argv.data());
}

TEST(CommandLine, WithoutOptionsTakesNothing) {
  for (const Words& words :
       {Words{"a"}, {""}, {"-"}, {"--"}, {"-h"}, {"--help"}, {"--version"}, {"{}"}, {"[]"}}) {
    CommandLine line;
    EXPECT_FALSE(read(line, words)) << words.front();
  }
  CommandLine line;
  EXPECT_TRUE(read(line, {}));
}

TEST(CommandLine, TakesASwitchOnce) {
  bool given = false;
  CommandLine once, twice;
  once.add_switch("--echo", given);
  EXPECT_TRUE(read(once, {}));
  EXPECT_FALSE(given);
  EXPECT_TRUE(read(once, {"--echo"}));
  EXPECT_TRUE(given);
  twice.add_switch("--echo", given);
  EXPECT_FALSE(read(twice, {"--echo", "--echo"}));
}

TEST(CommandLine, TakesALoneSwitchWithNoOtherWordBesideIt) {
  for (const Words& words : {Words{"--help"}, {"--help", "name"}, {"--echo", "--help"}}) {
    bool help = false, echo = false;
    Words names;
    CommandLine line;
    line.add_lone_switch("--help", help);
    line.add_switch("--echo", echo);
    line.add_names(names);
    EXPECT_EQ(read(line, words), words.size() == 1) << words.back();
    EXPECT_TRUE(help);
  }
}

TEST(CommandLine, LeavesNamesAsTheyStandInTheirOrder) {
  const Words words{"b", "{}", "[a,b]", "", "%%", "b", "x=y"};
  Words names;
  CommandLine line;
  line.add_names(names);
  EXPECT_TRUE(read(line, words));
  EXPECT_EQ(names, words);
  for (const char* word : {"-", "--", "-a", "-1", "--names"}) {
    CommandLine other;
    other.add_names(names);
    EXPECT_FALSE(read(other, {"a", word})) << word;
  }
}

TEST(CommandLine, TakesWordsByTheirPlacesAndNamesAfterThem) {
  std::string what;
  Words names;
  CommandLine line;
  line.add_option("WHAT", what)->required();
  line.add_names(names);
  EXPECT_TRUE(read(line, {"times", "a", "b"}));
  EXPECT_EQ(what, "times");
  EXPECT_EQ(names, (Words{"a", "b"}));
  CommandLine without;
  without.add_option("WHAT", what)->required();
  EXPECT_FALSE(read(without, {}));
}

TEST(WholeNumber, IsDecimalAndWithinItsBounds) {
  for (const auto& [word, expected] : {std::pair{"3", 3}, {"12", 12}, {"0010", 10}}) {
    int number = 0;
    CommandLine line;
    line.add_option("N", number)->transform(whole_number(3, 12));
    EXPECT_TRUE(read(line, {word})) << word;
    EXPECT_EQ(number, expected);
  }
  for (const char* word :
       {"2", "13", "", " 4", "4 ", "+4", "-4", "0x4", "4.0", "99999999999999999999"}) {
    int number = 0;
    CommandLine line;
    line.add_option("N", number)->transform(whole_number(3, 12));
    EXPECT_FALSE(read(line, {word})) << word;
  }
}

TEST(WholeNumber, HasToFitWhereItGoes) {
  std::uint32_t seed = 0;
  CommandLine fits, exceeds;
  fits.add_option("SEED", seed)->transform(whole_number(0));
  EXPECT_TRUE(read(fits, {"4294967295"}));
  EXPECT_EQ(seed, 4294967295u);
  exceeds.add_option("SEED", seed)->transform(whole_number(0));
  EXPECT_FALSE(read(exceeds, {"4294967296"}));
}

}  // namespace
}  // namespace sdk::test
