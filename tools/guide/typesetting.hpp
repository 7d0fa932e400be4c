// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The look of the guides.
#pragma once

#include <QTextDocument>
#include <memory>

#include "tools/guide/manuscript.hpp"
#include "tools/guide/pictures.hpp"

namespace sdk {

/// The manuscript with its pictures in place and all its formats, not yet divided into pages.
/// Sections that follow each other stand side by side, two a row. Throws what Pictures::take does.
std::unique_ptr<QTextDocument> typeset(const Manuscript& manuscript, Pictures& pictures);

/// Millimetres in the unit of a document's formats.
constexpr double millimetres(double length) { return length * 96 / 25.4; }

}  // namespace sdk
