// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Lines that are processed one by one, from a slow input too.

#include "tools/walk/line_filter.hpp"

#include <gtest/gtest.h>

#include <istream>
#include <sstream>
#include <streambuf>

namespace sdk::test {
namespace {

/// An input that has one more piece each time somebody waits for it.
class Pieces : public std::streambuf {
 public:
  explicit Pieces(std::vector<std::string> pieces) : pieces_(std::move(pieces)) {}

 protected:
  int_type underflow() override {
    if (given_ == pieces_.size()) return traits_type::eof();
    std::string& piece = pieces_[given_++];
    setg(piece.data(), piece.data(), piece.data() + piece.size());
    return traits_type::to_int_type(piece.front());
  }

 private:
  std::vector<std::string> pieces_;
  std::size_t given_ = 0;
};

Processed numbered(const std::string& line, long number) {
  return {std::to_string(number) + line + '\n', "", false};
}

std::string filtered(std::vector<std::string> pieces) {
  Pieces input(std::move(pieces));
  std::istream in(&input);
  std::ostringstream out, errors;
  EXPECT_EQ(filter_lines(in, out, errors, 1, numbered).failure, "");
  EXPECT_EQ(errors.str(), "");
  return out.str();
}

TEST(LineFilter, ALineThatComesInPiecesIsOneLine) {
  EXPECT_EQ(filtered({"a", "b", "c\nd", "e\n", "f\ng", "h"}), "1abc\n2de\n3f\n4gh\n");
}

TEST(LineFilter, BlankLinesCountAndAnEndOfALineMakesNone) {
  EXPECT_EQ(filtered({"\n", "\na\n"}), "1\n2\n3a\n");
  EXPECT_EQ(filtered({}), "");
}

}  // namespace
}  // namespace sdk::test
