// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/support/game.hpp"
#include "board/grid_text.hpp"

#include <algorithm>
#include <sstream>
#include <stdexcept>

namespace sdk::test {

const char* const complete_grid =
    "123456789\n"
    "456789123\n"
    "789123456\n"
    "231564897\n"
    "564897231\n"
    "897231564\n"
    "312645978\n"
    "645978312\n"
    "978312645\n";

const char* const grid_of_several_steps =
    "...38.5..\n"
    ".43152...\n"
    "..5..7.2.\n"
    "6.9....58\n"
    "457....1.\n"
    "3.85..94.\n"
    "...9136..\n"
    "..1.4..3.\n"
    ".3.2.5...\n";

std::string joined(std::string_view grid) {
  std::string text(grid);
  std::erase(text, '\n');
  if (text.size() != 81) throw std::invalid_argument("a drawn grid has 81 cells");
  return text;
}

namespace {

template <class Visit>
void for_each_cell(Visit visit) {
  for (int r = 1; r <= 9; ++r)
    for (int c = 1; c <= 9; ++c) visit(r, c);
}

struct Look {
  std::string text;
  Colour text_colour, back_colour;
};

Look look_of(char drawn) {
  if (drawn == '.') return {" ", colour::black, colour::white};
  if (drawn == '?') return {"", colour::black, globals.CouleurDonnees};
  if (drawn >= 'a' && drawn <= 'i')
    return {std::string(1, static_cast<char>(drawn - 'a' + '1')), colour::green, colour::white};
  return {std::string(1, drawn), colour::black, globals.CouleurDonnees};
}

template <class Holds>
std::string cells_where(Holds holds) {
  std::string names;
  for_each_cell([&](int r, int c) {
    if (holds(r, c)) names += (names.empty() ? "" : " ") + name_of(Cell{r, c});
  });
  return names;
}

template <class Print>
std::string nine_lines(Print print) {
  std::ostringstream out;
  for_each_cell([&](int r, int c) {
    print(out, r, c);
    if (c == 9) out << '\n';
  });
  return out.str();
}

std::string on_one_line(std::string text) {
  std::ranges::replace(text, '\r', '/');
  return text;
}

void dump_grid(std::ostream& out, const char* name, const DisplayGrid& grid) {
  const CellRange s = grid.selection();
  out << name << " current " << name_of(Cell{grid.current_row() + 1, grid.current_column() + 1})
      << " selection " << name_of(Cell{s.first_row + 1, s.first_column + 1}) << ' '
      << name_of(Cell{s.last_row + 1, s.last_column + 1}) << " visible " << grid.visible()
      << " tab " << grid.tab_stop() << " marks " << grid.marks_current() << '\n';
  out << std::hex << nine_lines([&](std::ostream& line, int r, int c) {
    const DisplayCell& cell = grid.cell(r - 1, c - 1);
    line << '"' << on_one_line(cell.text) << "\" " << std::hex << cell.text_colour << ' '
         << cell.back_colour << ' ' << cell.font_size << ' ' << cell.mark << "  ";
  }) << std::dec;
}

template <class T>
void dump_square(std::ostream& out, const char* name, const Square<T>& square) {
  out << name << '\n'
      << nine_lines([&](std::ostream& line, int r, int c) { line << int(square(r, c)) << ' '; });
}

void dump_fields(std::ostream& out, const MainWindow& w) {
  out << "NumCase " << w.NumCase << " Ligne " << w.Ligne << " Colonne " << w.Colonne
      << "\nChaineGrille \"" << w.ChaineGrille << "\"\nChaineSolution \"" << w.ChaineSolution
      << "\"\nVerifAuVol " << w.VerifAuVol.bits() << " GrilleValide " << w.GrilleValide.bits()
      << " searches " << w.searches_running << '\n';
}

void dump_globals(std::ostream& out) {
  out << "NiveauCourant " << globals.NiveauCourant << " CouleurDonnees " << std::hex
      << globals.CouleurDonnees << std::dec << " GrilleOk " << globals.GrilleOk.bits()
      << " ResolutionSilencieuse " << globals.ResolutionSilencieuse.bits() << " ProtegeGrille "
      << globals.ProtegeGrille.bits() << " Langue " << globals.Langue << " AfficheCandidats "
      << globals.AfficheCandidats.bits() << " ArretDemande " << globals.ArretDemande.bits()
      << " ModePasAPas " << globals.ModePasAPas.bits() << " TitreFenetre " << globals.TitreFenetre
      << '\n';
  for (const std::string& text : globals.Messages) out << '"' << text << "\" ";
  out << '\n';
}

void dump_controls(std::ostream& out, const MainWindow& w) {
  for (const ControlRow& row : all_controls) {
    const Control id = row.control;
    const ControlState& state = w.control(id);
    out << "control " << row.name << " \"" << state.caption << "\" \"" << state.tooltip
        << "\" visible " << w.visible(id) << " checked " << state.checked << '\n';
  }
  for (const LevelItem& item : w.levels()) out << item.level << " \"" << item.name << "\"\n";
  out << "level " << w.chosen_level().value_or(-1) << " \"" << w.level_text() << "\" title \""
      << w.title() << "\" focus " << int(w.focus()) << " lines " << w.lines().size()
      << " window width " << w.layout().window.width << '\n';
}

void dump_about(std::ostream& out, const About& about) {
  out << "about exists " << about.exists() << " shown " << about.shown() << '\n';
  if (!about.exists()) return;
  for (const AboutControlRow& row : about_controls) out << '"' << about.text(row.control) << "\"\n";
}

}  // namespace

void draw(MainWindow& window, std::string_view grid) {
  const std::string cells = joined(grid);
  for_each_cell([&](int r, int c) {
    const Look look = look_of(cells[static_cast<std::size_t>((r - 1) * 9 + c - 1)]);
    window.MSF.make_current(r - 1, c - 1);
    window.MSF.set_text(look.text);
    window.MSF.set_text_colour(look.text_colour);
    window.MSF.set_back_colour(look.back_colour);
  });
  window.MSF.make_current(0, 0);
}

std::string shown(const MainWindow& window) {
  return nine_lines([&](std::ostream& out, int r, int c) {
    const std::string& text = window.MSF.text(r - 1, c - 1);
    out << (text == " " ? "." : text.empty() ? "?" : text);
  });
}

std::string digits(const Square<std::int16_t>& square) {
  return nine_lines([&](std::ostream& out, int r, int c) {
    if (square(r, c) == 0)
      out << '.';
    else
      out << square(r, c);
  });
}

std::string cells_with_text_colour(const DisplayGrid& grid, Colour colour) {
  return cells_where([&](int r, int c) { return grid.cell(r - 1, c - 1).text_colour == colour; });
}

std::string cells_with_back_colour(const DisplayGrid& grid, Colour colour) {
  return cells_where([&](int r, int c) { return grid.cell(r - 1, c - 1).back_colour == colour; });
}

std::string all_cells() {
  return cells_where([](int, int) { return true; });
}

std::string dump(const MainWindow& window) {
  std::ostringstream out;
  dump_grid(out, "MSF", window.MSF);
  dump_grid(out, "MSR", window.MSR);
  dump_square(out, "Grille", window.Grille);
  dump_square(out, "GrilleInitiale", window.GrilleInitiale);
  dump_square(out, "resGrille", window.resGrille);
  dump_square(out, "Masque", window.Masque);
  dump_fields(out, window);
  dump_globals(out);
  dump_controls(out, window);
  dump_about(out, window.about());
  return out.str();
}

std::string difference(const std::string& before, const std::string& after) {
  std::istringstream was(before), is(after);
  std::string old_line, new_line;
  while (std::getline(was, old_line) && std::getline(is, new_line))
    if (old_line != new_line) return "was " + old_line + "\nis  " + new_line;
  return before == after ? "" : "one has more lines";
}

GridRecorder::GridRecorder(DisplayGrid& grid, std::string name, Lines& repaints)
    : grid_(grid), name_(std::move(name)), repaints_(repaints), was_visible_(grid.visible()) {
  grid_.set_listener(this);
}

GridRecorder::~GridRecorder() { grid_.set_listener(nullptr); }

void GridRecorder::cell_changed(int, int) { changes_while_visible += grid_.visible(); }

void GridRecorder::selection_changed() {}

void GridRecorder::appearance_changed() {
  times_hidden += was_visible_ && !grid_.visible();
  was_visible_ = grid_.visible();
}

void GridRecorder::refresh() { repaints_.push_back("refresh " + name_); }

Game::Game() {
  window.start("");
  window.set_listener(this);
  forget();
}

Game::~Game() { window.set_listener(nullptr); }

void Game::draw(std::string_view grid) {
  test::draw(window, grid);
  forget();
}

void Game::forget() {
  desktop.forget();
  repaints.clear();
  msf.changes_while_visible = msf.times_hidden = 0;
  msr.changes_while_visible = msr.times_hidden = 0;
}

Box message(Message message, Icon icon) {
  return {text_of(message), icon, Buttons::ok, globals.TitreFenetre};
}

}  // namespace sdk::test
