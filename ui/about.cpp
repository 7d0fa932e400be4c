// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/about.hpp"

#include "game/message.hpp"
#include "ui/messages.hpp"

namespace sdk {

namespace {

std::string four_digits(int year) {
  const std::string digits = std::to_string(year);
  return std::string(digits.size() < 4 ? 4 - digits.size() : 0, '0') + digits;
}

}  // namespace

void About::load() {
  if (!box_) box_ = Box{.author_caption = "Auteur :"};
}

void About::show(int year) {
  load();
  box_->year = year;
  box_->shown = true;
}

std::string About::text(AboutControl control) const {
  const Box& box = box_.value();
  switch (control) {
    case AboutControl::Picture:
      return text_of(Message::picture_credit);
    case AboutControl::Label2:
      return box.author_caption;
    case AboutControl::Label1:
      return notice(Notice::author, globals.Langue);
    case AboutControl::lblVersion:
      return globals.TitreFenetre;
    case AboutControl::lblCopyright:
      break;
  }
  return notice(Notice::rights, globals.Langue, four_digits(box.year));
}

}  // namespace sdk
