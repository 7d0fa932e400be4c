// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// How many pixels of the screen are one of the program's.
#pragma once

namespace sdk {

/// To be called before Qt reads the environment. Qt paints nothing smaller than at its natural size
/// and cuts off what a factor below 1 leaves no room for; such factors of QT_SCALE_FACTOR and
/// QT_SCREEN_SCALE_FACTORS become 1.
void raise_scale_factors();

}  // namespace sdk
