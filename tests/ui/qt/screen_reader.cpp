// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/ui/qt/screen_reader.hpp"

#include <QtGui/private/qguiapplication_p.h>
#include <QtGui/qpa/qplatformaccessibility.h>
#include <QtGui/qpa/qplatformintegration.h>

namespace sdk::test {

namespace {

ScreenReader* reader = nullptr;

/// Qt has no public call for it: normally the desktop tells.
void tell_that_one_runs(bool runs) {
  QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(runs);
}

}  // namespace

ScreenReader::ScreenReader() {
  reader = this;
  QAccessible::installUpdateHandler(hear);
  tell_that_one_runs(true);
}

ScreenReader::~ScreenReader() {
  tell_that_one_runs(false);
  QAccessible::installUpdateHandler(nullptr);
  reader = nullptr;
}

void ScreenReader::hear(QAccessibleEvent* event) {
  QAccessibleInterface* object = event->accessibleInterface();
  if (object)
    reader->told_.push_back(
        {event->type(), object->role(), name_of(*object), object->text(QAccessible::Value)});
}

QStringList ScreenReader::names(QAccessible::Event event, QAccessible::Role role) const {
  QStringList names;
  for (const Told& told : told_)
    if (told.event == event && told.role == role) names << told.name;
  return names;
}

QAccessibleInterface& accessible(QWidget& widget) {
  return *QAccessible::queryAccessibleInterface(&widget);
}

namespace {

void add_tree(QList<QAccessibleInterface*>& objects, QAccessibleInterface* top) {
  objects << top;
  for (int i = 0; i < top->childCount(); ++i) add_tree(objects, top->child(i));
}

}  // namespace

QList<QAccessibleInterface*> accessible_tree(QWidget& widget) {
  QList<QAccessibleInterface*> objects;
  add_tree(objects, &accessible(widget));
  return objects;
}

QString name_of(QAccessibleInterface& object) { return object.text(QAccessible::Name); }

QString states_of(QAccessibleInterface& object) {
  const QAccessible::State state = object.state();
  QStringList states;
  if (state.focusable) states << "focusable";
  if (state.checkable) states << "checkable";
  if (state.checked) states << "checked";
  if (state.readOnly) states << "read-only";
  if (state.invisible) states << "invisible";
  return states.join(' ');
}

}  // namespace sdk::test
