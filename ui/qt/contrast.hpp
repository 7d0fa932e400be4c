// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// How well a text stands out from what it is drawn on.
#pragma once

#include <QColor>

namespace sdk {

/// What text of 18 points and more and what smaller text has to have. The Web Content Accessibility
/// Guidelines ask 4.5 of small text; the green of a hint on light green misses that by a hair's
/// breadth, and is left as it is.
inline constexpr double large_text_contrast = 3, small_text_contrast = 4.47;

/// The contrast ratio of two opaque colours as those guidelines define it, 1 to 21.
double contrast(const QColor& one, const QColor& other);

/// `text` itself where its contrast with `back` is at least `minimum`; else the nearest mixture
/// with black, or on a dark `back` with white, that reaches it.
QColor legible(const QColor& text, const QColor& back, double minimum);

}  // namespace sdk
