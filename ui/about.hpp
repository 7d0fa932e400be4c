// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The box `about`, without any toolkit: who made the game, and which version it is.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "screen/keyed_rows.hpp"

namespace sdk {

enum class AboutControl { Picture, Label2, Label1, lblVersion, lblCopyright };

struct AboutControlRow {
  AboutControl control;
  std::string_view name;  ///< what scripts and the widgets call it
};

/// The controls of the box, in the order in which they are read.
inline constexpr AboutControlRow about_controls[] = {
    {AboutControl::Picture, "Picture"},
    {AboutControl::Label2, "Label2"},
    {AboutControl::Label1, "Label1"},
    {AboutControl::lblVersion, "lblVersion"},
    {AboutControl::lblCopyright, "lblCopyright"},
};
static_assert(has_row_for_each(about_controls, &AboutControlRow::control,
                               AboutControl::lblCopyright));

constexpr std::string_view name_of(AboutControl control) {
  return row_of(about_controls, control).name;
}

/// A box that does not exist, exists unseen, or is shown.
class About {
 public:
  /// Makes the box, unseen, unless it exists. A new one captions `Label2` "Auteur :".
  void load();
  /// Loads the box if need be and shows it; its rights are those of `year`.
  void show(int year);
  /// The box exists no more; captions and year are forgotten.
  void unload() { box_.reset(); }

  /// The box must exist.
  void set_author_caption(std::string caption) { box_.value().author_caption = std::move(caption); }

  bool exists() const { return box_.has_value(); }
  bool shown() const { return box_ && box_->shown; }
  /// The caption of a control, UTF-8, in the current language; for `Picture` the line under the
  /// picture. The box must exist.
  std::string text(AboutControl control) const;

 private:
  struct Box {
    std::string author_caption;  ///< of `Label2`
    int year = 0;
    bool shown = false;
  };

  std::optional<Box> box_;
};

}  // namespace sdk
