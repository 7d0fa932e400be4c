// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/option_bar.hpp"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/qt/accessibility.hpp"
#include "ui/qt/level_list.hpp"
#include "ui/qt/object_names.hpp"

namespace sdk {

namespace {

QStringList names_of(const std::vector<LevelItem>& levels) {
  QStringList names;
  for (const LevelItem& level : levels) names << QString::fromStdString(level.name);
  return names;
}

QStringList items_of(const QComboBox& list) {
  QStringList items;
  for (int i = 0; i < list.count(); ++i) items << list.itemText(i);
  return items;
}

void set_colour(QWidget& widget, QPalette::ColorRole role, const QColor& colour) {
  QPalette palette = widget.palette();
  palette.setColor(role, colour);
  widget.setPalette(palette);
}

/// The inside of an empty check box: on a dark window lighter than the window, or it could not be
/// told from it.
QColor check_box_inside(const QPalette& palette) {
  const QColor window = palette.color(QPalette::Window);
  const bool dark = window.lightness() < palette.color(QPalette::WindowText).lightness();
  return dark ? window.lighter(200) : palette.color(QPalette::Base);
}

QLabel* make_label(QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setTextFormat(Qt::PlainText);
  return label;
}

}  // namespace

// The order in which the controls are made is the order of Tab.
OptionBar::OptionBar(QWidget* parent) : QWidget(parent) {
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->addLayout(make_boxes());
  rows->addLayout(make_level_row());
  hint_ = make_label(this);
  hint_->setObjectName("Astuce");
  rows->addWidget(hint_, 0, Qt::AlignLeft);
  take_colours();
}

/// The placeholder is the level that holds, so it reads like a chosen one.
void OptionBar::take_colours() {
  set_colour(*levels_, QPalette::PlaceholderText, palette().color(QPalette::ButtonText));
  set_colour(*levels_, QPalette::Base, palette().color(QPalette::Window));
  for (const Box& box : boxes_)
    set_colour(*box.widget, QPalette::Base, check_box_inside(palette()));
}

void OptionBar::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) take_colours();
}

QLayout* OptionBar::make_boxes() {
  auto* row = new QHBoxLayout;
  row->setSpacing(20);
  row->addWidget(make_box(Control::Check3));
  row->addWidget(make_box(Control::Check1));
  row->addWidget(make_box(Control::Check2));
  row->addStretch();
  return row;
}

QCheckBox* OptionBar::make_box(Control control) {
  auto* box = new QCheckBox(this);
  name_after(*box, control);
  box->setFocusPolicy(Qt::TabFocus);
  connect(box, &QCheckBox::toggled, this, [this, control](bool on) { emit ticked(control, on); });
  boxes_.push_back({control, box});
  return box;
}

QLayout* OptionBar::make_level_row() {
  levels_ = new LevelList(this);
  count_ = make_label(this);
  name_after(*levels_, Control::Niveau);
  name_after(*count_, Control::Label);
  levels_->setFocusPolicy(Qt::TabFocus);
  levels_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  connect(levels_, &QComboBox::activated, this, &OptionBar::level_chosen);
  auto* row = new QHBoxLayout;
  row->addWidget(levels_);
  row->addWidget(count_);
  row->addStretch();
  return row;
}

void OptionBar::show_state(const MainWindow& window) {
  set_accessible_name(*this, notice_text(Notice::options));
  for (const Box& box : boxes_) show_box(window, box);
  show_levels(window);
  count_->setText(QString::fromStdString(window.control(Control::Label).caption));
  count_->setVisible(window.visible(Control::Label));
  hint_->setText(QString::fromStdString(text_of(Message::language_hint)));
}

int OptionBar::right_of_boxes() const {
  int right = 0;
  for (const Box& box : boxes_) right = std::max(right, box.widget->geometry().right());
  return right;
}

QRect OptionBar::free_room(QRect room, bool below_boxes) {
  constexpr int gap = 10;
  layout()->activate();
  int right = std::max(count_->geometry().right(), hint_->geometry().right());
  if (below_boxes)
    room.setTop(y() + boxes_.front().widget->geometry().bottom() + 1);
  else
    right = std::max(right, right_of_boxes());
  room.setLeft(x() + right + gap);
  return room;
}

void OptionBar::show_box(const MainWindow& window, const Box& box) {
  const ControlState& state = window.control(box.control);
  const QSignalBlocker silent(box.widget);
  box.widget->setText(QString::fromStdString(state.caption));
  box.widget->setToolTip(QString::fromStdString(state.tooltip));
  set_accessible_name(*box.widget, QString::fromStdString(state.caption));
  box.widget->setChecked(state.checked);
  box.widget->setVisible(state.visible);
}

/// A screen reader does not see a list's placeholder.
void OptionBar::tell_placeholder() {
  const bool shown = levels_->currentIndex() < 0;
  const QString level = shown ? levels_->placeholderText() : QString();
  if (levels_->accessibleDescription() != level) levels_->setAccessibleDescription(level);
}

void OptionBar::show_levels(const MainWindow& window) {
  const QSignalBlocker silent(levels_);
  if (const QStringList names = names_of(window.levels()); names != items_of(*levels_)) {
    levels_->clear();
    levels_->addItems(names);
  }
  levels_->setCurrentIndex(window.chosen_level().value_or(-1));
  levels_->setPlaceholderText(QString::fromStdString(window.level_text()));
  set_accessible_name(*levels_, notice_text(Notice::level));
  tell_placeholder();
  levels_->setVisible(window.visible(Control::Niveau));
}

}  // namespace sdk
