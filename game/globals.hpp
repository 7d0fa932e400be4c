// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The program-wide flags and values. Together with the window's fields, the step-by-step
/// solver's tables and the generator of the puzzles they are all the state there is.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "board/bool16.hpp"
#include "screen/colours.hpp"

namespace sdk {

struct Globals {
  std::int16_t NiveauCourant = 1;            ///< difficulty level, 0..4
  Colour CouleurDonnees = colour::level[1];  ///< background of givens at creation
  Bool16 GrilleOk;                           ///< no fixed cell was found to break a rule
  Bool16 ResolutionSilencieuse;              ///< a solve fills `ChaineSolution` and shows nothing
  Bool16 ProtegeGrille = true;               ///< the initial grid is kept intact
  std::string Langue = "Fr";                 ///< "Fr" or "En"
  std::array<std::string, 35> Messages;      ///< every text of the current language, UTF-8
  Bool16 AfficheCandidats;                   ///< the candidates are shown beside the grid
  Bool16 ArretDemande;                       ///< Escape was pressed: the search is to stop
  Bool16 ModePasAPas;                        ///< a hint was asked for; never set back
  std::string TitreFenetre;                  ///< "SuDoKu " and the version
};

inline Globals globals;

}  // namespace sdk
