// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/deferred_call.hpp"

namespace sdk {

void DeferredCall::ask() {
  if (std::exchange(asked_, true)) return;
  QMetaObject::invokeMethod(
      &context_, [this] { make_now(); }, Qt::QueuedConnection);
}

void DeferredCall::make_now() {
  if (std::exchange(asked_, false)) call_();
}

}  // namespace sdk
