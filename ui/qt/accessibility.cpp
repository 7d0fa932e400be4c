// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/accessibility.hpp"

#include <QAccessible>
#include <QAccessibleWidget>
#include <algorithm>
#include <iterator>

#include "game/globals.hpp"
#include "ui/qt/about_label.hpp"

namespace sdk {

namespace {

struct WidgetRole {
  const char* class_name;
  QAccessible::Role role;
};

/// A plain frame is decoration, which screen readers pass over; Qt would have it a window.
constexpr WidgetRole widget_roles[] = {
    {"sdk::MainFrame", QAccessible::Window},     {"sdk::CommandBar", QAccessible::ToolBar},
    {"sdk::OptionBar", QAccessible::Grouping},   {"sdk::ExplanationPanel", QAccessible::Grouping},
    {"sdk::PictureLabel", QAccessible::Graphic}, {"QFrame", QAccessible::Client},
};

/// A link that a screen reader can follow although no key reaches it.
class AccessibleLink : public QAccessibleWidget {
 public:
  explicit AccessibleLink(LinkLabel& link) : QAccessibleWidget(&link, QAccessible::Link) {}

  QStringList actionNames() const override { return {pressAction()}; }

  void doAction(const QString& action) override {
    if (action == pressAction()) emit static_cast<LinkLabel*>(object())->clicked();
  }
};

QAccessibleInterface* make_interface(const QString& class_name, QObject* object) {
  if (auto* link = qobject_cast<LinkLabel*>(object)) return new AccessibleLink(*link);
  if (class_name != object->metaObject()->className()) return nullptr;
  const auto* known = std::ranges::find(widget_roles, class_name, &WidgetRole::class_name);
  if (known == std::end(widget_roles)) return nullptr;
  return new QAccessibleWidget(static_cast<QWidget*>(object), known->role);
}

}  // namespace

void install_accessible_roles() { QAccessible::installFactory(make_interface); }

void set_accessible_name(QWidget& widget, const QString& name) {
  if (widget.accessibleName() != name) widget.setAccessibleName(name);
}

QString notice_text(Notice which) { return QString::fromStdString(notice(which, globals.Langue)); }

}  // namespace sdk
