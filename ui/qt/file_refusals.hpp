// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Which files a dialog does not take.
#pragma once

#include <QString>

namespace sdk {

/// Why the file cannot be opened, in the language on screen; empty when nothing stands against it.
QString refusal_to_open(const QString& file);

/// Why nothing can be saved under that name, in the language on screen; empty when nothing stands
/// against it. A file that may be written is taken, whatever its folder takes.
QString refusal_to_save(const QString& file);

}  // namespace sdk
