// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Luettelomuokkain.h"

#include <memory>
#include <type_traits>

#include "tekstit/viestit.h"
#include "ui/Lomakekaannos.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"

namespace {

template <class... A>
std::string Syy(const std::function<std::string(A...)>& este, std::type_identity_t<A>... arvot) {
  return este ? este(arvot...) : std::string();
}

}  // namespace

Luettelomuokkain::Luettelomuokkain(const Lomake& lomake, Ohjaimet ohjaimet)
    : lomake_(lomake), ohjaimet_(ohjaimet), lisaysvihje_(ohjaimet.lisaa.Kohde().Vihje()) {
  Kuuntele();
}

void Luettelomuokkain::Kuuntele() {
  ohjaimet_.lista.KunMuuttuu([this] { RiviVaihtui(); });
  ohjaimet_.lista.KunKlikataan([this] { toimet_.paina ? toimet_.paina(Valittu()) : Muokkaa(); });
  ohjaimet_.lista.KunLisataan([this] { Lisaa(); });
  ohjaimet_.lista.KunPoistetaan([this] { Poista(); });
  ohjaimet_.lisaa.KunKlikataan([this] { Lisaa(); });
  if (ohjaimet_.muokkaa) ohjaimet_.muokkaa->KunKlikataan([this] { Muokkaa(); });
  if (ohjaimet_.kopioi) ohjaimet_.kopioi->KunKlikataan([this] { Kopioi(); });
  ohjaimet_.poista.KunKlikataan([this] { Poista(); });
}

void Luettelomuokkain::Aseta(Luettelotoimet toimet) {
  toimet_ = std::move(toimet);
  if (toimet_.liita) ohjaimet_.lista.KunLiitetaan([this](const Taulukko& rivit) { Liita(rivit); });
  if (!toimet_.siirra) return;
  const auto avain = [this](int rivi) { return ohjaimet_.lista.Kohde().Lista().Avain(rivi); };
  ohjaimet_.lista.KunSiirretaan(
      [this, avain](int rivi, int ylempi) { return toimet_.saaSiirtaa(avain(rivi), avain(ylempi)); },
      [this, avain](int rivi, int ylempi) { toimet_.siirra(avain(rivi), avain(ylempi)); });
}

void Luettelomuokkain::Nayta() {
  ohjaimet_.lista.Tayta(toimet_.sisalto());
  naytetty_ = Valittu();
  PaivitaNapit();
  Nosta(toimet_.valittu);
}

void Luettelomuokkain::Valitse(const Tunniste& avain) {
  ohjaimet_.lista.Valitse(avain);
  naytetty_ = Valittu();
  PaivitaNapit();
  Nosta(toimet_.valittu);
}

void Luettelomuokkain::RiviVaihtui() {
  if (!OtaKentat()) return ohjaimet_.lista.Valitse(naytetty_);
  naytetty_ = Valittu();
  PaivitaNapit();
  Nosta(toimet_.valittu);
}

bool Luettelomuokkain::Sallittu(const std::function<bool(const Tunniste&)>& ehto) const {
  return !Valittu().Tyhja() && (!ehto || ehto(Valittu()));
}

void Luettelomuokkain::PaivitaNapit() const {
  ohjaimet_.lisaa.Kaytossa(true);
  ohjaimet_.lisaa.Vihje(lisaysvihje_);
  if (ohjaimet_.muokkaa) ohjaimet_.muokkaa->Kaytossa(Muokattavissa());
  if (ohjaimet_.kopioi) ohjaimet_.kopioi->Kaytossa(Kopioitavissa());
  ohjaimet_.poista.Kaytossa(Muokattavissa());
  LukitseMuokkausnapit(lomake_, Syy(toimet_.lukko));
  if (const std::string este = Syy(toimet_.lisayseste); !este.empty() && ohjaimet_.lisaa.Kaytossa()) {
    ohjaimet_.lisaa.Kaytossa(false);
    ohjaimet_.lisaa.Vihje(este);
  }
}

bool Luettelomuokkain::Estetty(const std::string& syy) const {
  if (!syy.empty()) Ilmoita(syy, Teksti(tekstit::kVirhe), Vakavuus::Virhe);
  return !syy.empty();
}

/// What the action gives.
template <class F>
auto Luettelomuokkain::Tee(F toimi) {
  const auto lopuksi = [this](Luettelomuokkain*) {
    if (toimet_.naytaUudelleen) Nayta();
  };
  const std::unique_ptr<Luettelomuokkain, decltype(lopuksi)> naytto(this, lopuksi);
  return toimi();
}

void Luettelomuokkain::Lisaa() {
  if (Estetty(Syy(toimet_.lukko)) || Estetty(Syy(toimet_.lisayseste)) || !OtaKentat()) return;
  if (const Tunniste avain = Tee(toimet_.lisaa); !avain.Tyhja()) Valitse(avain);
}

void Luettelomuokkain::Muokkaa() {
  if (toimet_.muokkaa && Muokattavissa() && OtaKentat()) Tee([&] { toimet_.muokkaa(Valittu()); });
}

void Luettelomuokkain::Kopioi() {
  if (!Kopioitavissa() || Estetty(Syy(toimet_.lukko)) || !OtaKentat()) return;
  if (const Tunniste avain = Tee([&] { return toimet_.kopioi(Valittu()); }); !avain.Tyhja()) Valitse(avain);
}

/// What refers to the object is told before the lock, since it is the nearer reason.
void Luettelomuokkain::Poista() {
  const Tunniste avain = Valittu();
  if (!Muokattavissa() || Estetty(Syy(toimet_.poistoeste, avain)) || Estetty(Syy(toimet_.lukko))) return;
  if (KysyPoisto(toimet_.nimi(avain), Syy(toimet_.poistonSeuraus, avain))) Tee([&] { toimet_.poista(avain); });
}

void Luettelomuokkain::Liita(const Taulukko& rivit) {
  if (Estetty(Syy(toimet_.lukko)) || !OtaKentat()) return;
  if (const Tunniste avain = Tee([&] { return toimet_.liita(rivit); }); !avain.Tyhja()) Valitse(avain);
}
