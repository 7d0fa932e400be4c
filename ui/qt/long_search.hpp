// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Notices the searches that a player has to wait for.
#pragma once

#include <QTimer>
#include <functional>

namespace sdk {

class LongSearch {
 public:
  /// `changed` is called whenever one is noticed, and when it is over.
  explicit LongSearch(std::function<void()> changed);

  /// To be told how many searches run, as soon as that changes.
  void set_searches(int running);
  /// Whether one has been running for more than 0.3 s.
  bool is_noticed() const { return noticed_; }

 private:
  void set_noticed(bool noticed);

  std::function<void()> changed_;
  QTimer timer_;
  bool noticed_ = false;
};

}  // namespace sdk
