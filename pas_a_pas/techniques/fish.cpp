// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Swordfish and jellyfish: a digit whose places on n base lines all lie on n cover lines takes one
// place of the pattern on each of these, so it stands nowhere else on them.

#include <array>

#include "game/globals.hpp"
#include "pas_a_pas/helpers.hpp"
#include "pas_a_pas/techniques/combinations.hpp"
#include "pas_a_pas/techniques/techniques.hpp"
#include "pas_a_pas/view.hpp"

namespace sdk {

namespace {

struct Fish {
  UnitKind base;
  NineSet base_lines, cover_lines;
  int digit;

  Cell crossing_at(int base_line, int cover_line) const {
    return Unit{base, base_line}.cell(cover_line);
  }
};

void mark_crossings(const Fish& fish) {
  for (const int line : fish.base_lines)
    for (const int cover : fish.cover_lines) {
      const Cell cell = fish.crossing_at(line, cover);
      if (solver.Candidats.has(cell, fish.digit)) support(cell, Role::pattern, {fish.digit});
    }
}

void remove_from_covers(const Fish& fish) {
  for (const int line : NineSet::all() - fish.base_lines)
    for (const int cover : fish.cover_lines) {
      const Cell cell = fish.crossing_at(line, cover);
      if (solver.Candidats.has(cell, fish.digit)) eliminate_shown(cell, {fish.digit});
    }
}

void apply(const Fish& fish) {
  solver.step.unit = {fish.base, fish.base_lines.first()};
  solver.step.digits = {fish.digit};
  mark_crossings(fish);
  remove_from_covers(fish);
  if (globals.ModePasAPas) marque_candidats();
  maj_candidats();
}

/// The places of the digit on the lines together; none when a line has no place or more than
/// `most`.
NineSet places_on(UnitKind kind, NineSet lines, int digit, int most) {
  NineSet places;
  for (const int line : lines) {
    const NineSet own = solver.Candidats.places({kind, line}, digit);
    if (own.empty() || own.count() > most) return {};
    places = places | own;
  }
  return places;
}

bool removes_something(const Fish& fish) {
  for (const int cover : fish.cover_lines) {
    const NineSet places = solver.Candidats.places({crossing(fish.base), cover}, fish.digit);
    if (!fish.base_lines.contains_all(places)) return true;
  }
  return false;
}

using Finish = void (*)(const Fish&);

bool fires_on(UnitKind base, NineSet base_lines, int digit, Finish finish) {
  const int size = base_lines.count();
  const NineSet places = places_on(base, base_lines, digit, size);
  if (places.empty() || places.count() > size) return false;
  for (const NineSet cover_lines : combinations(size)) {
    const Fish fish{base, base_lines, cover_lines, digit};
    if (!cover_lines.contains_all(places) || !removes_something(fish)) continue;
    finish(fish);
    return true;
  }
  return false;
}

bool fires_for(UnitKind base, int digit, int size, Finish finish) {
  for (const NineSet base_lines : combinations(size))
    if (fires_on(base, base_lines, digit, finish)) return true;
  return false;
}

bool fires(int size, Finish finish) {
  for (int digit = 1; digit <= 9; ++digit)
    if (fires_for(UnitKind::row, digit, size, finish) ||
        fires_for(UnitKind::column, digit, size, finish))
      return true;
  return false;
}

std::array<int, 4> listed(NineSet lines) {
  std::array<int, 4> list{};
  std::size_t n = 0;
  for (const int line : lines) list[n++] = line;
  return list;
}

/// The rows and columns of a pattern, whichever of them are the base lines.
struct Lines {
  std::array<int, 4> rows, columns;
};

Lines lines_of(const Fish& fish) {
  const std::array<int, 4> base = listed(fish.base_lines), cover = listed(fish.cover_lines);
  return fish.base == UnitKind::row ? Lines{base, cover} : Lines{cover, base};
}

void finish_swordfish(const Fish& fish) {
  const auto [r, c] = lines_of(fish);
  const auto finish = fish.base == UnitKind::row ? espadon_lignes : espadon_colonnes;
  finish(fish.digit, r[0], c[0], r[1], c[1], r[2], c[2]);
}

void finish_jellyfish(const Fish& fish) {
  const auto [r, c] = lines_of(fish);
  const auto finish = fish.base == UnitKind::row ? meduse_lignes : meduse_colonnes;
  finish(fish.digit, r[0], c[0], r[1], c[1], r[2], c[2], r[3], c[3]);
}

}  // namespace

Bool16 espadon() { return fires(3, finish_swordfish); }

Bool16 meduse() { return fires(4, finish_jellyfish); }

void espadon_lignes(int digit, int row1, int column1, int row2, int column2, int row3,
                    int column3) {
  apply({UnitKind::row, {row1, row2, row3}, {column1, column2, column3}, digit});
}

void espadon_colonnes(int digit, int row1, int column1, int row2, int column2, int row3,
                      int column3) {
  apply({UnitKind::column, {column1, column2, column3}, {row1, row2, row3}, digit});
}

void meduse_lignes(int digit, int row1, int column1, int row2, int column2, int row3, int column3,
                   int row4, int column4) {
  apply({UnitKind::row, {row1, row2, row3, row4}, {column1, column2, column3, column4}, digit});
}

void meduse_colonnes(int digit, int row1, int column1, int row2, int column2, int row3, int column3,
                     int row4, int column4) {
  apply({UnitKind::column, {column1, column2, column3, column4}, {row1, row2, row3, row4}, digit});
}

}  // namespace sdk
