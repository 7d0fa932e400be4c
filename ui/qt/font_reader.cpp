// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/font_reader.hpp"

#ifdef SUDOKU_FONTCONFIG
#include <fontconfig/fontconfig.h>
#endif

namespace sdk {

namespace {

void read_fonts() {
#ifdef SUDOKU_FONTCONFIG
  FcInit();
#endif
}

}  // namespace

FontReader::FontReader() : thread_(read_fonts) {}

}  // namespace sdk
