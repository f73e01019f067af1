// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/malliauditoinnit/Kayntiajat.h"

#include "batch/malliauditoinnit/Taulukko.h"
#include "ui/Tekstivarasto.h"
#include "ventilation/clsKayntiAjat.h"

namespace {

void TaytaJakso(const std::string& teksti, clsKayntiAika& jakso) {
  const auto kentat = Kentat(teksti, ' ');
  AsetaJasen(jakso, "KayntiJaksojenLkm", kentat.at(0));
  AsetaJasen(jakso, "Alkaa", kentat.at(1));
  AsetaJasen(jakso, "Paattyy", kentat.at(2));
  AsetaJasen(jakso, "TuloIlmavirtaProsentti", kentat.at(3));
}

}  // namespace

void TaytaKayntiajat(const std::string& teksti, clsKayntiAjat& ajat) {
  const auto vuosijaksot = Kentat(teksti, '|');
  const bool vuosittain = vuosijaksot.size() == 1;
  ajat.KayntiaikojenSyottotapaID = vuosittain ? 0 : 1;
  ajat.KayntiAikojenSyottoTapa = Valintalista("frmIlmanvaihtokoneenKayntiajat", "cmbKayntiAikojenSyottoTapa")
                                     .at(static_cast<std::size_t>(ajat.KayntiaikojenSyottotapaID));
  for (std::size_t i = 0; i < vuosijaksot.size(); ++i) {
    int rivi = 0;
    for (const std::string& jakso : Kentat(vuosijaksot[i], ';'))
      TaytaJakso(jakso, ajat.Item(clsKayntiAjat::JaksonAvain(
                            ++rivi, vuosittain ? clsKayntiAika::KokoVuosi : static_cast<int>(i))));
  }
}
