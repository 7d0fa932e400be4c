// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/accessibility.hpp"

#include <QAbstractButton>
#include <QAccessible>
#include <QAccessibleWidget>
#include <algorithm>
#include <span>

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
    {"sdk::MainFrame", QAccessible::Window},
    {"sdk::CommandBar", QAccessible::ToolBar},
    {"sdk::OptionBar", QAccessible::Grouping},
    {"sdk::ExplanationPanel", QAccessible::Grouping},
    {"sdk::PictureLabel", QAccessible::Graphic},
    {"sdk::CellMenu", QAccessible::PopupMenu},
    {"QFrame", QAccessible::Client},
};

constexpr WidgetRole button_roles[] = {
    {"sdk::IconButton", QAccessible::Button},
    {"sdk::CellMenuItem", QAccessible::MenuItem},
    {"QCheckBox", QAccessible::CheckBox},
};

/// The row of a class; null for none.
const WidgetRole* role_of(std::span<const WidgetRole> roles, const QString& class_name) {
  const auto row = std::ranges::find(roles, class_name, &WidgetRole::class_name);
  return row == roles.end() ? nullptr : &*row;
}

/// A button or a check box. Screen readers take the tool tip of one without a description for it,
/// and would say its name twice.
class AccessibleButton : public QAccessibleWidget {
 public:
  using QAccessibleWidget::QAccessibleWidget;

  QString text(QAccessible::Text which) const override {
    const QString text = QAccessibleWidget::text(which);
    const bool repeats = which == QAccessible::Description && text == this->text(QAccessible::Name);
    return repeats ? QString() : text;
  }

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = button().isCheckable();
    state.checked = button().isChecked();
    state.pressed = button().isDown();
    return state;
  }

  QStringList actionNames() const override {
    if (!button().isEnabled()) return {};
    return {button().isCheckable() ? toggleAction() : pressAction(), setFocusAction()};
  }

  void doAction(const QString& action) override {
    if (action == setFocusAction()) return QAccessibleWidget::doAction(action);
    if (actionNames().contains(action)) button().click();
  }

 private:
  QAbstractButton& button() const { return *static_cast<QAbstractButton*>(object()); }
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
  auto* widget = static_cast<QWidget*>(object);
  if (const WidgetRole* row = role_of(button_roles, class_name))
    return new AccessibleButton(widget, row->role);
  const WidgetRole* row = role_of(widget_roles, class_name);
  return row ? new QAccessibleWidget(widget, row->role) : nullptr;
}

}  // namespace

void install_accessible_roles() { QAccessible::installFactory(make_interface); }

void set_accessible_name(QWidget& widget, const QString& name) {
  if (widget.accessibleName() != name) widget.setAccessibleName(name);
}

QString notice_text(Notice which) { return QString::fromStdString(notice(which, globals.Langue)); }

}  // namespace sdk
