// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Lomakekaannos.h"

#include <algorithm>
#include <charconv>
#include <optional>
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

/// Which texts are put on a form: all, or those that bear the currency unit.
enum class Kaannettavat { Kaikki, Rahat };

/// The text of a tag that is to be put on the form, if there is one.
std::optional<std::string> NakyvaTeksti(std::string_view tag, Kaannettavat mitka) {
  const int id = TekstinId(tag);
  if (id <= 0) return std::nullopt;
  std::string teksti = Teksti(id);
  if (mitka == Kaannettavat::Rahat && teksti.find(kRahatagi) == std::string::npos) return std::nullopt;
  return RahayksikonKanssa(std::move(teksti), Rahayksikko());
}

void KaannaOtsikko(Ohjain& ohjain, Kaannettavat mitka) {
  if (auto teksti = NakyvaTeksti(ohjain.Tag(), mitka)) ohjain.Teksti(std::move(*teksti));
}

void KaannaVihje(Ohjain& ohjain, const std::string& tag, Kaannettavat mitka) {
  if (auto teksti = NakyvaTeksti(tag, mitka)) ohjain.Vihje(std::move(*teksti));
}

void KaannaOsat(Ohjain& ohjain, Kaannettavat mitka) {
  std::vector<Osa> osat = ohjain.Osat();
  for (Osa& osa : osat) {
    if (auto otsikko = NakyvaTeksti(osa.tag, mitka)) osa.otsikko = std::move(*otsikko);
    if (auto vihje = NakyvaTeksti(osa.vihjetag, mitka)) osa.vihje = std::move(*vihje);
  }
  ohjain.Osat(std::move(osat));
}

void KaannaOhjain(Ohjain& ohjain, Kaannettavat mitka) {
  switch (ohjain.Tyyppi()) {
    case Ohjaintyyppi::Label:
      return KaannaOtsikko(ohjain, mitka);
    case Ohjaintyyppi::TextBox:
    case Ohjaintyyppi::ComboBox:
      return KaannaVihje(ohjain, ohjain.Tag(), mitka);
    case Ohjaintyyppi::TabStrip:
      return KaannaOsat(ohjain, mitka);
    case Ohjaintyyppi::ListView:
      KaannaOsat(ohjain, mitka);
      return KaannaVihje(ohjain, ohjain.Vihjetag(), mitka);
    default:
      KaannaOtsikko(ohjain, mitka);
      return KaannaVihje(ohjain, ohjain.Vihjetag(), mitka);
  }
}

bool AlkaaNimella(std::string_view nimi, std::string_view alku) { return SamaNimi(nimi.substr(0, alku.size()), alku); }

}  // namespace

void AsetaRahayksikko(std::string yksikko) { Rahayksikko() = std::move(yksikko); }

std::string RahayksikonKanssa(std::string teksti, std::string_view yksikko) {
  return Korvattu(std::move(teksti), kRahatagi, yksikko);
}

void PaivitaRahat() {
  const std::vector<Lomake*> avoimet = AvoimetLomakkeet();  // a copy: a listener may open or close forms
  for (Lomake* lomake : avoimet) {
    if (!lomake->RahatMuuttuivat) continue;
    for (const auto& ohjain : lomake->Ohjaimet()) KaannaOhjain(*ohjain, Kaannettavat::Rahat);
    lomake->RahatMuuttuivat();
  }
}

void KaannaLomake(Lomake& lomake) {
  if (auto otsikko = NakyvaTeksti(lomake.Ikkuna().Tag(), Kaannettavat::Kaikki)) lomake.Otsikko(std::move(*otsikko));
  for (const auto& ohjain : lomake.Ohjaimet()) KaannaOhjain(*ohjain, Kaannettavat::Kaikki);
}

void TaytaValinta(const Lomake& lomake, const ComboBox& valinta, bool valitseViimeinen) {
  valinta.HaettavatRivit(HaettavaValintalista(lomake.Nimi(), valinta.Nimi()));
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

void LukitseMuokkausnapit(const Lomake& lomake, const std::string& syy) {
  for (const auto& ohjain : lomake.Ohjaimet())
    for (const std::string_view alku : {"cmdLisaa", "cmdKopioi", "cmdPoista"}) {
      if (ohjain->Tyyppi() != Ohjaintyyppi::CommandButton || !AlkaaNimella(ohjain->Nimi(), alku)) continue;
      KaannaVihje(*ohjain, ohjain->Vihjetag(), Kaannettavat::Kaikki);
      if (syy.empty()) continue;
      ohjain->Kaytossa(false);
      ohjain->Vihje(syy);
    }
}
