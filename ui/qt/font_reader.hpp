// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Reads the system's font configuration on a thread of its own. Of all that the start has to wait
/// for it takes longest, and it needs nothing of Qt, so it is done while Qt connects to the
/// display.
#pragma once

#include <thread>

namespace sdk {

/// What is read serves the whole program. Where Qt is built for another kind of fonts nothing is
/// read, and Qt does it all at its first text.
class FontReader {
 public:
  FontReader();
  /// To be called once, before the first text is measured or drawn; returns when all is read.
  void wait() { thread_.join(); }

 private:
  std::jthread thread_;
};

}  // namespace sdk
