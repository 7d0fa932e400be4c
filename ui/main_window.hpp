// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The main window `sudoku` without any toolkit: start-up, every command, cell input. A front end
/// shows its state and calls its handlers with the player's events.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "game/window.hpp"
#include "screen/drawing.hpp"
#include "screen/errors.hpp"
#include "ui/about.hpp"
#include "ui/explanation.hpp"
#include "ui/history.hpp"
#include "ui/layout.hpp"

namespace sdk {

/// The codes of the keys that have a meaning; any other code means nothing.
namespace key {
inline constexpr int backspace = 8;
inline constexpr int escape = 27;
inline constexpr int del = 46;
inline constexpr int digit_1 = 49, digit_9 = 57;  ///< the digits' character codes
inline constexpr int a = 65, c = 67;              ///< the letters' upper-case character codes
inline constexpr int keypad_1 = 97, keypad_9 = 105;
inline constexpr int f1 = 112, f2 = 113;
}  // namespace key

/// Who asks the window to close.
enum class CloseMode { window_command, session_end, task_manager };

struct ControlState {
  std::string caption;  ///< UTF-8, as are all texts of the window
  std::string tooltip;
  bool visible = true;
  bool checked = false;  ///< check boxes only
};

struct LevelItem {
  std::string name;
  std::int16_t level;  ///< 0..4; the level is read from here, never from the position or the name
};

/// Who draws the window hears of its changes here; whoever is not concerned by one passes it over.
class WindowListener {
 public:
  virtual ~WindowListener() = default;
  /// A caption, tooltip, tick or visibility, the level list or the window's title changed.
  virtual void controls_changed() {}
  virtual void layout_changed() {}
  /// The box lines were drawn; they are in MainWindow::lines.
  virtual void lines_drawn() {}
  virtual void focus_changed() {}
  /// The about box was opened or closed.
  virtual void about_changed() {}
  /// The steps of the hint, or which of them is chosen, changed; their language changes with the
  /// controls.
  virtual void explanation_changed() {}
  /// A search begins or is over; it may be one inside another.
  virtual void searches_changed() {}
  /// What changed is to be on screen when the call returns.
  virtual void refresh() {}
};

/// Every public handler ends the program by ProgramEnd when the player quits, and with status 1
/// after a RuntimeError: the grid is then saved first and the player told where.
class MainWindow final : public Window {
 public:
  explicit MainWindow(Desktop& desktop);

  /// Start-up; every global and table of the solver takes its start value. A command line that is
  /// not empty names the puzzle file to open, relative to the current folder; else a new puzzle is
  /// made. At most one call, before the window is shown.
  void start(const std::string& command_line);
  /// The rest of start-up, once the window is on screen: the opened puzzle is solved silently.
  void finish_start();

  /// A press of a button; other controls do nothing.
  void click(Control button);
  /// A check box takes a value and acts on it.
  void check(Control box, bool on);
  /// An item of the level list (0..4) is chosen; none, or one that is not there, reads as level 0.
  void choose_level(std::optional<int> item);
  /// Takes back the last change of some cell's text, whatever made it, or does again what was taken
  /// back last: the game is then as it was, without any message box, and no hint is told any more.
  /// Each digit of a hint is a change of its own. Nothing happens when there is none, nor during a
  /// search. How the game started is not taken back.
  void undo();
  void redo();
  /// Appends the puzzle in hand to "Grilles.txt" in the current folder; no control does it.
  void export_entry();
  /// A key pressed in the window, before the control that has the focus gets it.
  void preview_key(int code);
  /// A key pressed in `MSF`.
  void key_down(int code, bool ctrl);
  /// A mouse button went down or up on a grid, or the window changed its size.
  void redraw_lines();
  /// A control lost the keyboard focus to another.
  void focus_lost(Control control);
  /// A click on a control of the about box; nothing happens while it is not shown.
  void click_about(AboutControl control);
  /// A key or a mouse button pressed in the about box, or its own close command; nothing happens
  /// while it is not shown.
  void close_about();
  /// Shows one step of the last hint alone, 0 the first; none shows all again.
  void choose_step(std::optional<std::size_t> step);
  /// Asks the player whether the window may close; at the end of the session it may, unasked.
  bool confirm_close(CloseMode mode);

  /// Saves the grid as a failure does and reports where, without a box: the program is about to
  /// end, and `reason` names what ends it. Nothing is thrown.
  void rescue_grid(const std::string& reason);

  const ControlState& control(Control id) const { return controls_[index(id)]; }
  bool visible(Control id) const;
  const std::vector<LevelItem>& levels() const { return levels_; }
  /// The chosen item of the level list, if any; a rebuilt list has none.
  std::optional<int> chosen_level() const { return chosen_level_; }
  /// What the level list shows: the current level's name.
  const std::string& level_text() const;
  bool can_undo() const { return history_.can_undo(); }
  bool can_redo() const { return history_.can_redo(); }
  /// The game as undo and redo would bring it back.
  GameState game_state() const;
  const std::string& title() const { return title_; }
  Control focus() const { return focus_; }
  const Layout& layout() const { return layout_; }
  const About& about() const { return about_; }
  /// The steps of the last hint, and the one that is shown alone.
  const Explanation& explanation() const { return explanation_; }
  /// What trace_ligne drew last.
  const std::vector<LineDrawing>& lines() const { return lines_; }

  /// Fills `Messages` for `language` and puts every text in its control. Chooses no level.
  void langage(const std::string& language);

  /// At most one listener; null for none.
  void set_listener(WindowListener* listener) { listener_ = listener; }

  void active() override;
  void trace_ligne() override;
  void MajCandidats() override;
  void tell_hint() override;
  void leave_step() override;
  void forget_hint() override;
  void forget_outdated_hint() override;
  void searches_changed() override;
  void refresh() override;
  void set_focus(Control control) override;
  void set_visible(Control control, bool visible) override;
  void set_caption(Control control, std::string caption) override;
  void set_title(std::string title) override;

 private:
  static std::size_t index(Control id) { return static_cast<std::size_t>(id); }

  void run_guarded(const std::function<void()>& handler);
  void run_handler(const std::function<void()>& handler);
  void note_game();
  void restore(const GameState& state);
  [[noreturn]] void end_fatally(const RuntimeError& error);

  void set_tooltip(Control control, std::string tooltip);
  void inactive();
  void prepare_grid(DisplayGrid& grid);
  void open_at_start(const std::string& command_line);
  void show_candidates(bool shown);
  bool confirm_quit();

  void take_level_colour();
  void new_puzzle();
  void write_puzzle();
  void clear();
  void quit();
  void print();
  void save();
  void load();
  void solve_opened();
  void give_hint();
  void solve();
  void show_about();
  void open_help();

  void erase_selection();
  void type_digit(char digit);
  void write_digit(char digit);
  void copy_rows();
  void select_all();

  std::array<ControlState, std::size(all_controls)> controls_;
  std::vector<LevelItem> levels_;
  std::optional<int> chosen_level_;
  std::string title_;
  Control focus_ = Control::MSF;
  Layout layout_ = sdk::layout(false);
  std::vector<LineDrawing> lines_;
  About about_;
  Explanation explanation_;
  History history_;
  bool opened_at_start_ = false;
  int commands_running_ = 0;  ///< one inside another while a message box or a search waits
  WindowListener* listener_ = nullptr;
};

}  // namespace sdk
