// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The ears of a screen reader.
#pragma once

#include <QAccessible>
#include <QList>
#include <QString>
#include <QWidget>

namespace sdk::test {

/// What the program told: an event, and what the object that it is about said of itself then.
struct Told {
  QAccessible::Event event;
  QAccessible::Role role;
  QString name;
  QString value;
};

/// While one exists the program believes that a screen reader runs. At most one at a time.
class ScreenReader {
 public:
  ScreenReader();
  ~ScreenReader();

  /// All that was told since the last call of forget.
  const QList<Told>& told() const { return told_; }
  /// The names of the objects of `role` that were told with `event`, in the order they came.
  QStringList names(QAccessible::Event event, QAccessible::Role role) const;
  void forget() { told_.clear(); }

 private:
  static void hear(QAccessibleEvent* event);

  QList<Told> told_;
};

/// What a screen reader finds in `widget`.
QAccessibleInterface& accessible(QWidget& widget);
/// That and everything below it, parents first.
QList<QAccessibleInterface*> accessible_tree(QWidget& widget);

QString name_of(QAccessibleInterface& object);
/// Those of "focusable", "checkable", "checked", "read-only" and "invisible" that hold, in this
/// order.
QString states_of(QAccessibleInterface& object);

}  // namespace sdk::test
