// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/about_dialog.hpp"

#include <QAccessible>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "game/message.hpp"
#include "ui/qt/about_label.hpp"
#include "ui/qt/accessibility.hpp"
#include "ui/qt/object_names.hpp"

namespace sdk {

namespace {

constexpr int large = 20, normal = 12, small = 9;  // points

QVBoxLayout* make_rows() {
  auto* rows = new QVBoxLayout;
  rows->setSpacing(6);
  return rows;
}

}  // namespace

AboutDialog::AboutDialog(const About& about, QWidget* parent) : QDialog(parent), about_(about) {
  setObjectName("about");
  setWindowTitle(QString::fromStdString(text_of(Message::about)));
  auto* columns = new QHBoxLayout(this);
  columns->setContentsMargins(20, 20, 28, 16);
  columns->setSpacing(28);
  columns->addLayout(make_picture());
  columns->addLayout(make_credits());
  columns->setSizeConstraint(QLayout::SetFixedSize);
}

QLayout* AboutDialog::make_picture() {
  QVBoxLayout* rows = make_rows();
  auto* picture = put(new PictureLabel, AboutControl::Picture);
  auto* caption = make_text(AboutControl::Picture, small);
  caption->setObjectName("PictureCaption");
  picture->setAccessibleName(caption->text());
  caption->setAlignment(Qt::AlignHCenter);
  rows->addWidget(picture);
  rows->addWidget(caption);
  return rows;
}

QLayout* AboutDialog::make_credits() {
  QVBoxLayout* rows = make_rows();
  rows->addStretch(2);
  rows->addWidget(make_text(AboutControl::lblVersion, large));
  rows->addSpacing(24);
  rows->addWidget(make_text(AboutControl::Label2, small));
  rows->addWidget(make_link(), 0, Qt::AlignLeft);
  rows->addStretch(3);
  rows->addWidget(make_text(AboutControl::lblCopyright, small));
  return rows;
}

AboutLabel* AboutDialog::put(AboutLabel* label, AboutControl control) {
  name_after(*label, control);
  connect(label, &AboutLabel::clicked, this, [this, control] { emit clicked(control); });
  return label;
}

AboutLabel* AboutDialog::make_text(AboutControl control, int points) {
  auto* label = put(new AboutLabel, control);
  write(*label, control, QFont("Arial", points));
  return label;
}

void AboutDialog::write(AboutLabel& label, AboutControl control, const QFont& font) {
  label.setFont(font);
  label.setText(QString::fromStdString(about_.text(control)));
}

AboutLabel* AboutDialog::make_link() {
  auto* link = put(new LinkLabel, AboutControl::Label1);
  QFont underlined("Arial", normal);
  underlined.setUnderline(true);
  write(*link, AboutControl::Label1, underlined);
  set_accessible_name(*link, link->text());
  return link;
}

/// A screen reader reads the whole box, as it does a message box.
void AboutDialog::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

void AboutDialog::keyPressEvent(QKeyEvent*) { emit dismissed(); }

void AboutDialog::mousePressEvent(QMouseEvent*) { emit dismissed(); }

void AboutDialog::closeEvent(QCloseEvent* event) {
  event->ignore();
  emit dismissed();
}

}  // namespace sdk
