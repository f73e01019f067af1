// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <optional>
#include <string>
#include <string_view>

#include "lifecycle/Toimenpideinvestointi.h"
#include "measures/Hyodykkeet.h"
#include "measures/Kustannussaastot.h"
#include "ui/Ohjaimet.h"

class clsSaastotoimenpide;
class clsValittuToimenpide;

/// What a row of a list of measures shows: of a measure alone, or of its place in the arranger. Amounts are in euros
/// without VAT, energies MWh/a, water m³/a.
struct Toimenpiderivi {
  std::string nimi;
  Hyodykkeet saasto;
  Kustannussaastot kustannukset;
  double investointi = 0;
  std::optional<double> takaisinmaksuaika{};  ///< years; nothing: "--"
  const char* takaisinmaksukuvio = "### ##0";
  /// The measure's row in the arranger, if it stands there: its net saving is shown beside the one that it has alone.
  const clsValittuToimenpide* netto = nullptr;
  Elinkaariluvut elinkaari{};  ///< for the view of the life cycle; € with VAT where amounts are shown so
};

/// A measure alone. Its figures are computed when they aren't valid; errors as in doing so.
Toimenpiderivi ToimenpiteenRivi(clsSaastotoimenpide& toimenpide);
/// A row of the arranger as it was last computed.
Toimenpiderivi JarjestelijanRivi(const clsValittuToimenpide& valittu);

/// The cells of a row of a list of measures, in the order of its columns, with the present VAT and currency. A net
/// saving that isn't of the present model is marked. Key and other traits are the caller's.
Luettelorivi ToimenpiderivinSolut(const Toimenpiderivi& rivi);

/// The cells of a measure that can't be computed.
Luettelorivi LuvutonToimenpiderivi(const std::string& nimi);

/// Lays the columns of a list of measures, with the headings in the present currency. They are the same in each list
/// and each view; the view (0 money, 1 energy and water, 2 all, 3 emissions, 4 life cycle) tells which of them have
/// width. The net saving has it only on request.
void AsetaToimenpidesarakkeet(const ListView& lista, int nakyma, bool netto = false);

/// Place of a column of lists of measures by its key, e.g. "KeyInvestointi". Raises std::out_of_range.
int Toimenpidesarake(std::string_view avain);
