// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Lomakekaannos.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "kernel/Kirjainkoko.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr std::string_view kRahatagi = "mkTagi";

std::string& Rahayksikko() {
  static std::string yksikko = "€";
  return yksikko;
}

std::string Korvattu(std::string teksti, std::string_view vanha, std::string_view uusi) {
  if (vanha.empty()) return teksti;
  for (auto i = teksti.find(vanha); i != std::string::npos; i = teksti.find(vanha, i + uusi.size()))
    teksti.replace(i, vanha.size(), uusi);
  return teksti;
}

/// The text id at the head of a tag, up to the first comma; 0 when there is none.
int TekstinId(std::string_view tag) {
  const std::string_view alku = tag.substr(0, tag.find(','));
  int id = 0;
  const auto tulos = std::from_chars(alku.data(), alku.data() + alku.size(), id);
  return tulos.ec == std::errc() && tulos.ptr == alku.data() + alku.size() ? id : 0;
}

std::string NakyvaTeksti(int id) { return Korvattu(Teksti(id), kRahatagi, Rahayksikko()); }

void KaannaOtsikko(Ohjain& ohjain) {
  if (const int id = TekstinId(ohjain.Tag()); id > 0) ohjain.Teksti(NakyvaTeksti(id));
}

void KaannaVihje(Ohjain& ohjain, const std::string& tag) {
  if (const int id = TekstinId(tag); id > 0) ohjain.Vihje(NakyvaTeksti(id));
}

void KaannaOsat(Ohjain& ohjain) {
  std::vector<Osa> osat = ohjain.Osat();
  for (Osa& osa : osat) {
    if (const int id = TekstinId(osa.tag); id > 0) osa.otsikko = NakyvaTeksti(id);
    if (const int id = TekstinId(osa.vihjetag); id > 0) osa.vihje = NakyvaTeksti(id);
  }
  ohjain.Osat(std::move(osat));
}

void KaannaOhjain(Ohjain& ohjain) {
  switch (ohjain.Tyyppi()) {
    case Ohjaintyyppi::Label:
      return KaannaOtsikko(ohjain);
    case Ohjaintyyppi::TextBox:
    case Ohjaintyyppi::ComboBox:
      return KaannaVihje(ohjain, ohjain.Tag());
    case Ohjaintyyppi::TabStrip:
      return KaannaOsat(ohjain);
    case Ohjaintyyppi::ListView:
      KaannaOsat(ohjain);
      return KaannaVihje(ohjain, ohjain.Vihjetag());
    default:
      KaannaOtsikko(ohjain);
      return KaannaVihje(ohjain, ohjain.Vihjetag());
  }
}

bool AlkaaNimella(std::string_view nimi, std::string_view alku) { return SamaNimi(nimi.substr(0, alku.size()), alku); }

}  // namespace

void AsetaRahayksikko(std::string yksikko) { Rahayksikko() = std::move(yksikko); }

void KaannaLomake(Lomake& lomake) {
  if (const int id = TekstinId(lomake.Ikkuna().Tag()); id > 0) lomake.Otsikko(NakyvaTeksti(id));
  for (const auto& ohjain : lomake.Ohjaimet()) KaannaOhjain(*ohjain);
}

void TaytaValinta(const Lomake& lomake, const ComboBox& valinta, bool valitseViimeinen) {
  valinta.Rivit(Valintalista(lomake.Nimi(), valinta.Nimi()));
  if (valitseViimeinen) valinta.Indeksi(valinta.Maara() - 1);
}

void KorvaaOtsikoissa(const Lomake& lomake, std::string_view vanha, std::string_view uusi) {
  for (const auto& ohjain : lomake.Ohjaimet())
    if (ohjain->Tyyppi() == Ohjaintyyppi::Label) ohjain->Teksti(Korvattu(ohjain->Teksti(), vanha, uusi));
}

void KorvaaSarakkeissa(const ListView& lista, std::string_view vanha, std::string_view uusi) {
  std::vector<Osa> sarakkeet = lista.Kohde().Osat();
  for (Osa& sarake : sarakkeet) sarake.otsikko = Korvattu(std::move(sarake.otsikko), vanha, uusi);
  lista.Kohde().Osat(std::move(sarakkeet));
}

void LukitseMuokkausnapit(const Lomake& lomake, bool onToimenpiteita) {
  if (!onToimenpiteita) return;
  for (const auto& ohjain : lomake.Ohjaimet())
    for (const std::string_view alku : {"cmdLisaa", "cmdKopioi", "cmdPoista"})
      if (ohjain->Tyyppi() == Ohjaintyyppi::CommandButton && AlkaaNimella(ohjain->Nimi(), alku))
        ohjain->Kaytossa(false);
}
