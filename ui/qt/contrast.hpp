// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// How well a text stands out from what it is drawn on.
#pragma once

#include <QColor>

namespace sdk {

/// What the Web Content Accessibility Guidelines ask of text of 18 points and more, and of smaller
/// text.
inline constexpr double large_text_contrast = 3, small_text_contrast = 4.5;

/// The contrast ratio of two opaque colours as those guidelines define it, 1 to 21.
double contrast(const QColor& one, const QColor& other);

/// `text` itself where its contrast with `back` is at least `minimum`; else the nearest mixture
/// with black, or on a dark `back` with white, that reaches it.
QColor legible(const QColor& text, const QColor& back, double minimum);

}  // namespace sdk
