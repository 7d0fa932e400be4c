// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tools/script/show.hpp"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <ostream>

#include "tools/script/grid_format.hpp"
#include "tools/script/script.hpp"
#include "tools/script/steps.hpp"
#include "tools/script/text_format.hpp"

namespace sdk {

namespace {

// One value as text.

std::string value_text(std::int16_t number) { return std::to_string(number); }
std::string value_text(std::uint8_t number) { return std::to_string(number); }
std::string value_text(Bool16 flag) { return std::to_string(flag.bits()); }
std::string value_text(Colour colour) { return colour_text(colour); }
std::string value_text(const std::string& text) { return in_quotes(text); }

template <class T>
std::string value_text(const Square<T>& square) {
  std::string text =
      square_text(" ", [&](int r, int c) { return value_text(square(r + 1, c + 1)); });
  text.pop_back();
  return text;
}

// Topics that are one field of the window, one global, or one text made from the script.

template <auto member>
TopicText field(Arguments&) {
  return [](Script& script) { return value_text(script.window().*member) + '\n'; };
}

template <auto member>
TopicText global(Arguments&) {
  return [](Script&) { return value_text(globals.*member) + '\n'; };
}

template <auto member>
TopicText chain(Arguments&) {
  return [](Script& s) { return in_quotes(from_code_page(s.window().*member)) + '\n'; };
}

template <std::string (*text)(Script&)>
TopicText plain(Arguments&) {
  return [](Script& script) { return text(script) + '\n'; };
}

// The grids.

template <DisplayGrid Window::*grid>
TopicText colours_of(Arguments& arguments) {
  const auto which =
      arguments.take_choice("text", "back") ? &DisplayCell::text_colour : &DisplayCell::back_colour;
  return [which](Script& script) { return colours(script.window().*grid, which); };
}

template <DisplayGrid Window::*grid>
TopicText grid_topic(Arguments& arguments) {
  if (arguments.empty())
    return [](Script& script) { return first_characters(script.window().*grid); };
  if (arguments.next() == "text" || arguments.next() == "back") return colours_of<grid>(arguments);
  const int row = arguments.take_grid_line("R");
  const int column = arguments.take_grid_line("C");
  return [=](Script& s) { return cell_text((s.window().*grid).cell(row, column)); };
}

std::string marks(Script& script) {
  const DisplayGrid& grid = script.window().MSR;
  std::string text;
  for (const int mark : {3, 4, 5, 6}) text += (mark > 3 ? " " : "") + marked_cells(grid, mark);
  return text;
}

std::string frames(Script& script) { return framed_cells(script.window().MSF); }

std::string current(Script& script) {
  const DisplayGrid& grid = script.window().MSF;
  return cell_name(grid.current_row(), grid.current_column());
}

std::string selection(Script& script) {
  const CellRange range = script.window().MSF.selection();
  return cell_name(range.first_row, range.first_column) + ' ' +
         cell_name(range.last_row, range.last_column);
}

// The window and its controls.

std::string visible(Script& script) {
  std::string names;
  for (const ControlRow& row : all_controls)
    if (script.window().visible(row.control))
      names += (names.empty() ? "" : " ") + std::string(row.name);
  return names;
}

template <Control control>
std::string caption_of(Script& script) {
  return in_quotes(script.window().control(control).caption);
}

template <std::string ControlState::*text>
TopicText control_topic(Arguments& arguments) {
  const Control control = arguments.take_control();
  return [control](Script& s) { return in_quotes(s.window().control(control).*text) + '\n'; };
}

TopicText message(Arguments& arguments) {
  const auto i = static_cast<std::size_t>(arguments.take_number("I", 0, 34));
  return [i](Script&) { return in_quotes(globals.Messages[i]) + '\n'; };
}

std::string levels(Script& script) {
  std::string text = in_quotes(script.window().level_text());
  for (const LevelItem& item : script.window().levels())
    text += '\n' + std::to_string(item.level) + ' ' + in_quotes(item.name);
  return text;
}

std::string rectangle_line(const char* name, const Rectangle& r) {
  std::string text = name;
  for (const float value : {r.left, r.top, r.width, r.height}) text += ' ' + decimal(value);
  return text;
}

std::string layout_lines(Script& script) {
  const Layout& layout = script.window().layout();
  return rectangle_line("window", layout.window) + '\n' + rectangle_line("MSF", layout.MSF) + '\n' +
         rectangle_line("MSR", layout.MSR) + '\n' + rectangle_line("rect", layout.rect) + '\n' +
         rectangle_line("rect2", layout.rect2);
}

TopicText box_lines_topic(Arguments&) {
  return [](Script& script) {
    std::string text;
    for (const LineDrawing& line : script.window().lines()) text += line_text(line) + '\n';
    return text;
  };
}

// The desktop.

std::string title(Script& script) { return in_quotes(script.window().title()); }
std::string clipboard(Script& script) { return in_quotes(script.desktop().clipboard()); }
std::string pointer(Script& script) { return pointer_name(script.desktop().pointer()); }
std::string focus(Script& script) { return std::string(name_of(script.window().focus())); }

TopicText file(Arguments& arguments) {
  const std::string path = arguments.take_rest("PATH");
  return [path](Script&) {
    std::ifstream stream(path, std::ios::binary);
    if (!stream || !std::filesystem::is_regular_file(path))
      throw ScriptError("cannot read " + path);
    const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
    return in_quotes(from_code_page(bytes)) + '\n';
  };
}

constexpr Topic table[] = {
    {"MSF", "[text|back|R C]",
     "nine lines of nine characters: . for a single space, ? for an empty text, else the text's "
     "first character; nine lines of nine colours; one cell: its text, text colour, back colour, "
     "font size, mark",
     grid_topic<&Window::MSF>},
    {"MSR", "[text|back|R C]", "the candidates in the same forms", grid_topic<&Window::MSR>},
    {"marks", "", "the cells of MSR by mark: 3=r1c3,r4c5 4=r1c1 5= 6=", plain<marks>},
    {"frames", "",
     "the cells of MSF that are framed, for a clash or for a digit equal to that of the current "
     "cell, and those underlined: clash=r1c3,r1c9 equal= underlined=r1c9",
     plain<frames>},
    {"explanation", "",
     "the steps of the last hint, one a line, numbered; > in front of the chosen one; none when "
     "there is no explanation",
     show_explanation},
    {"step", "",
     "the chosen step: nine lines of nine cells, =5 a value, 38 the candidates before it, 0 when "
     "there is none, - after one that it removes; in front ! for a cell that loses something, * "
     "for "
     "a support, + for the second role; none when no step is chosen",
     show_step},
    {"current", "", "the current cell of MSF: r1c1", plain<current>},
    {"selection", "", "the selection of MSF: r1c1 r9c9", plain<selection>},
    {"visible", "", "the names of the visible controls", plain<visible>},
    {"Label", "", "the count, quoted", plain<caption_of<Control::Label>>},
    {"Label3", "", "the credit line, quoted", plain<caption_of<Control::Label3>>},
    {"title", "", "the window's caption, quoted", plain<title>},
    {"clipboard", "", "quoted", plain<clipboard>},
    {"tooltip", "NAME", "a control's tooltip, quoted", control_topic<&ControlState::tooltip>},
    {"caption", "NAME", "a control's caption, quoted", control_topic<&ControlState::caption>},
    {"message", "I", "entry I (0..34) of the message table, quoted", message},
    {"Niveau", "", "its text, quoted, then one line an item: N \"name\"", plain<levels>},
    {"pointer", "", "arrow or hourglass", plain<pointer>},
    {"focus", "", "the name of the control that has the focus", plain<focus>},
    {"layout", "",
     "one line each for window, MSF, MSR, rect, rect2: NAME left top width height, in twips",
     plain<layout_lines>},
    {"lines", "", "what trace_ligne last drew, one a line: line WIDTH X1 Y1 X2 Y2",
     box_lines_topic},
    {"file", "PATH", "a file's bytes as one quoted text", file},
    {"Grille", "", "nine lines of nine numbers", field<&Window::Grille>},
    {"GrilleInitiale", "", "nine lines of nine numbers", field<&Window::GrilleInitiale>},
    {"resGrille", "", "nine lines of nine numbers", field<&Window::resGrille>},
    {"Masque", "", "nine lines of nine numbers, -1 or 0", field<&Window::Masque>},
    {"ChaineGrille", "", "quoted", chain<&Window::ChaineGrille>},
    {"ChaineSolution", "", "quoted", chain<&Window::ChaineSolution>},
    {"TitreFenetre", "", "quoted", global<&Globals::TitreFenetre>},
    {"Langue", "", "quoted", global<&Globals::Langue>},
    {"NumCase", "", "a number", field<&Window::NumCase>},
    {"Ligne", "", "a number", field<&Window::Ligne>},
    {"Colonne", "", "a number", field<&Window::Colonne>},
    {"VerifAuVol", "", "-1 or 0", field<&Window::VerifAuVol>},
    {"GrilleValide", "", "-1 or 0", field<&Window::GrilleValide>},
    {"NiveauCourant", "", "a number", global<&Globals::NiveauCourant>},
    {"CouleurDonnees", "", "a colour", global<&Globals::CouleurDonnees>},
    {"GrilleOk", "", "-1 or 0", global<&Globals::GrilleOk>},
    {"ResolutionSilencieuse", "", "-1 or 0", global<&Globals::ResolutionSilencieuse>},
    {"ProtegeGrille", "", "-1 or 0", global<&Globals::ProtegeGrille>},
    {"AfficheCandidats", "", "-1 or 0", global<&Globals::AfficheCandidats>},
    {"ArretDemande", "", "-1 or 0", global<&Globals::ArretDemande>},
    {"ModePasAPas", "", "-1 or 0", global<&Globals::ModePasAPas>},
};

}  // namespace

std::span<const Topic> topics() { return table; }

Action show(Script& script, Arguments& arguments) {
  const std::string name = arguments.take_word("WHAT");
  const auto* topic = std::ranges::find(table, name, &Topic::name);
  if (topic == std::end(table)) throw ScriptError("nothing of that name to show: " + name);
  const TopicText text = topic->understand(arguments);
  return [&script, text] { script.out() << text(script); };
}

}  // namespace sdk
