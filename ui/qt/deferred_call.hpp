// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Many changes, one reaction.
#pragma once

#include <QObject>
#include <functional>
#include <utility>

namespace sdk {

/// A call that is asked for any number of times and made once, when events run next.
class DeferredCall {
 public:
  /// Nothing is called once `context` is gone; this object must live as long as `context`.
  DeferredCall(QObject& context, std::function<void()> call)
      : context_(context), call_(std::move(call)) {}

  void ask();
  /// Makes the call at once if it was asked for.
  void make_now();

 private:
  QObject& context_;
  std::function<void()> call_;
  bool asked_ = false;
};

}  // namespace sdk
