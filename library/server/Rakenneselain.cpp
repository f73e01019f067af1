// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/server/Rakenneselain.h"

#include <algorithm>

#include "kernel/Luvut.h"
#include "library/Kirjastoluettelo.h"
#include "library/Kirjastosuodatin.h"
#include "library/server/Rakennekuvaus.h"
#include "tekstit/lomakkeet_kirjasto.h"
#include "ui/Lomakekaannos.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"

namespace {

std::string Uteksti(const Rakenneratkaisu& ratkaisu) {
  const auto U = ratkaisu.VoimassaolevaU_arvo();
  return U ? Muotoile(*U, "0.00") : std::string("---");
}

std::vector<std::string> Rivi(const Kirjastorakenne& rakenne, const std::vector<std::string>& tyypit) {
  const auto tyyppi = RakennetyyppiSanasta(rakenne.Ratkaisu.Rakennetyyppi);
  const std::size_t i = static_cast<std::size_t>(tyyppi.value_or(-1) + 1);  // row 0 is all kinds
  return {rakenne.Ratkaisu.Nimi, Uteksti(rakenne.Ratkaisu), rakenne.Aikakausi,
          tyyppi && i < tyypit.size() ? tyypit[i] : rakenne.Ratkaisu.Rakennetyyppi, KirjastonLyhenne(rakenne.Kanta)};
}

}  // namespace

Rakenneselain::Rakenneselain(Selaimenavaus avaus, std::function<void(const Rakenneratkaisu&)> valittu)
    : avaus_(std::move(avaus)), valittu_(std::move(valittu)) {
  KayttoLiittyma.cmbRakennetyyppi.Rivit(Valintalista("frmRakenteet", "cmbRakennetyyppi"));
  KayttoLiittyma.cmbRakennetyyppi.Indeksi(RakennetyyppiSanasta(avaus_.alku).value_or(-1) + 1);
  KayttoLiittyma.cmbKirjasto.Rivit(Kirjastorivit());
  KayttoLiittyma.cmbKirjasto.Indeksi(0);
  KayttoLiittyma.cmdOk.Nakyva(avaus_.valinta);
  Kuuntele();
}

void Rakenneselain::Kuuntele() {
  frmRakennekirjasto& k = KayttoLiittyma;
  k.SuodatinMuuttui = [this] { Suodata(); };
  k.RakenneVaihtui = [this] { NaytaRakenne(); };
  k.ValitseKlikattu = [this] { KayttoLiittyma_Valitse(); };
  k.UusiKlikattu = [this] { KayttoLiittyma_Uusi(); };
  k.MuokkaaKlikattu = [this] { KayttoLiittyma_Muokkaa(); };
  k.KopioiKlikattu = [this] { KayttoLiittyma_Kopioi(); };
  k.PoistaKlikattu = [this] { KayttoLiittyma_Poista(); };
  k.TuoKlikattu = [this] { KayttoLiittyma_Tuo(); };
  k.VieKlikattu = [this] { KayttoLiittyma_Vie(); };
  LiitaNappaimet(KayttoLiittyma.lvwRakenteet, KayttoLiittyma.cmdUusi, KayttoLiittyma.cmdPoista);
  k.SuljeKlikattu = [this] { KayttoLiittyma_Sulje(); };
}

void Rakenneselain::Nayta() {
  Paivita();
  if (!avaus_.suodatin.empty()) PalautaEhdot(Ehdot(), avaus_.suodatin);
  Suodata();
  Valitse(AikakaudenRakenne());
  KayttoLiittyma.Nayta();
  KayttoLiittyma.txtHaku.Kohdista();
  KerroViat(avaus_.kirjastot);
}

void Rakenneselain::Paivita() {
  const Kirjastorakenne* ennen = Valittu();
  const std::string id = ennen ? ennen->Id : std::string();
  naytetyt_.clear();
  avaus_.kirjastot.Lataa();
  TaytaAikakaudet();
  Suodata();
  Valitse(id);
}

void Rakenneselain::TaytaAikakaudet() {
  std::vector<std::pair<std::int32_t, std::string>> aikakaudet;
  for (const Kirjastorakenne& rakenne : avaus_.kirjastot.Rakenteet())
    if (!rakenne.Aikakausi.empty()) aikakaudet.emplace_back(rakenne.VuosiAlku, rakenne.Aikakausi);
  std::ranges::sort(aikakaudet);
  std::vector<std::string> rivit;
  for (const auto& [vuosi, nimi] : aikakaudet)
    if (std::ranges::find(rivit, nimi) == rivit.end()) rivit.push_back(nimi);
  TaytaEhdot(KayttoLiittyma.cmbAikakausi, rivit);
}

std::vector<Ohjain*> Rakenneselain::Ehdot() const {
  const frmRakennekirjasto& k = KayttoLiittyma;
  return {&k.cmbRakennetyyppi.Kohde(), &k.cmbAikakausi.Kohde(),  &k.cmbKirjasto.Kohde(),
          &k.txtHaku.Kohde(),          &k.txtUvahintaan.Kohde(), &k.txtUenintaan.Kohde()};
}

void Rakenneselain::Suodata() {
  Nosta(avaus_.Suodatettu, EhtojenTeksti(Ehdot()));
  const Rakennesuodatin ehto{ValittuKirjasto(KayttoLiittyma.cmbKirjasto),
                             std::string(RakennetyypinSana(KayttoLiittyma.cmbRakennetyyppi.Indeksi() - 1)),
                             ValittuEhto(KayttoLiittyma.cmbAikakausi),
                             LueLuku(KayttoLiittyma.txtUvahintaan.Teksti()),
                             LueLuku(KayttoLiittyma.txtUenintaan.Teksti()),
                             KayttoLiittyma.txtHaku.Teksti()};
  const auto tyypit = Valintalista("frmRakenteet", "cmbRakennetyyppi");
  Taulukko rivit;
  naytetyt_.clear();
  for (const Kirjastorakenne& rakenne : avaus_.kirjastot.Rakenteet()) {
    if (!ehto.Sopii(rakenne)) continue;
    naytetyt_.push_back(&rakenne);
    rivit.push_back(Rivi(rakenne, tyypit));
  }
  KayttoLiittyma.lblMaara.Otsikko(Teksti(tekstit::kRakenteita) + " " + std::to_string(rivit.size()) + "    " +
                                  Teksti(tekstit::kKirjastonVersio) + " " + avaus_.kirjastot.Versio());
  KayttoLiittyma.lvwRakenteet.Rivit(std::move(rivit));
  Valitse({});
}

void Rakenneselain::Valitse(const std::string& id) {
  const auto it = std::ranges::find(naytetyt_, id, &Kirjastorakenne::Id);
  const int ensimmainen = naytetyt_.empty() ? -1 : KayttoLiittyma.lvwRakenteet.Kohde().Lista().Jarjestys().front();
  KayttoLiittyma.lvwRakenteet.Indeksi(it == naytetyt_.end() ? ensimmainen : static_cast<int>(it - naytetyt_.begin()));
  NaytaRakenne();
}

/// Of those that the year fits, the one with the fewest years: not one that is told to be of all times.
std::string Rakenneselain::AikakaudenRakenne() const {
  const Kirjastorakenne* paras = nullptr;
  const auto vuosia = [](const Kirjastorakenne& r) { return r.VuosiLoppu - r.VuosiAlku; };
  for (const int i : KayttoLiittyma.lvwRakenteet.Kohde().Lista().Jarjestys()) {
    const Kirjastorakenne& rakenne = *naytetyt_[static_cast<std::size_t>(i)];
    const bool sopii = rakenne.VuosiAlku <= avaus_.vuosi && avaus_.vuosi <= rakenne.VuosiLoppu;
    if (sopii && (!paras || vuosia(rakenne) < vuosia(*paras))) paras = &rakenne;
  }
  return paras ? paras->Id : std::string();
}

const Kirjastorakenne* Rakenneselain::Valittu() const {
  const int i = KayttoLiittyma.lvwRakenteet.Indeksi();
  return i >= 0 && i < static_cast<int>(naytetyt_.size()) ? naytetyt_[static_cast<std::size_t>(i)] : nullptr;
}

void Rakenneselain::NaytaRakenne() {
  const Kirjastorakenne* valittu = Valittu();
  const Rakenneratkaisu tyhja;
  const Rakenneratkaisu& ratkaisu = valittu ? valittu->Ratkaisu : tyhja;
  KayttoLiittyma.lblNimi.Otsikko(ratkaisu.Nimi);
  KayttoLiittyma.lblKuvaus.Otsikko(ratkaisu.Kuvaus);
  KayttoLiittyma.lblLahde.Otsikko(valittu ? Teksti(tekstit::kLahde) + " " + valittu->Lahde : std::string());
  KayttoLiittyma.chtLampotilat.Kaavio(valittu ? Leikkauskuva(ratkaisu) : Kaaviotiedot());
  Taulukko kerrokset = Kerrosrivit(ratkaisu);
  for (auto& rivi : kerrokset) rivi = {rivi[0] + " " + rivi[1], rivi[2], rivi[3], rivi[4]};
  KayttoLiittyma.lvwKerrokset.Rivit(std::move(kerrokset));
  const bool omaKunnossa = avaus_.kirjastot.Vika(Kirjasto::Oma).empty();
  const bool oma = omaKunnossa && valittu && valittu->Kanta == Kirjasto::Oma;
  for (const CommandButton& nappi : {KayttoLiittyma.cmdUusi, KayttoLiittyma.cmdTuo, KayttoLiittyma.cmdVie})
    nappi.Kaytossa(omaKunnossa);
  KayttoLiittyma.cmdKopioi.Kaytossa(omaKunnossa && valittu);
  KayttoLiittyma.cmdMuokkaa.Kaytossa(oma);
  KayttoLiittyma.cmdPoista.Kaytossa(oma);
  KayttoLiittyma.cmdOk.Kaytossa(valittu != nullptr);
}

void Rakenneselain::KayttoLiittyma_Valitse() {
  if (!SuljeMuokkain()) return;  // may store, which reads the entries anew
  const Kirjastorakenne* rakenne = Valittu();
  if (!rakenne) return;
  Nosta(valittu_, rakenne->Ratkaisu);
  KayttoLiittyma_Sulje();
}

void Rakenneselain::KayttoLiittyma_Uusi() {
  Kirjastorakenne uusi;
  uusi.Ratkaisu.Nimi = Teksti(tekstit::kUusiRakenne);
  uusi.Ratkaisu.Rakennetyyppi = RakennetyypinSana(std::max(KayttoLiittyma.cmbRakennetyyppi.Indeksi() - 1, 0));
  if (LisaaOmaan(uusi)) Muokkaa(std::move(uusi));
}

void Rakenneselain::KayttoLiittyma_Kopioi() {
  const Kirjastorakenne* malli = Valittu();
  if (!malli) return;
  Kirjastorakenne kopio = *malli;
  if (malli->Kanta == Kirjasto::Oma) kopio.Ratkaisu.Nimi = Teksti(tekstit::kKirjastonKopio) + " " + kopio.Ratkaisu.Nimi;
  kopio.Kanta = Kirjasto::Oma;
  kopio.Id.clear();
  LisaaOmaan(kopio);
}

bool Rakenneselain::LisaaOmaan(Kirjastorakenne& rakenne) {
  if (!KirjoitaKirjastoon(tekstit::kEiTallennettu, [&] { avaus_.kirjastot.Avaa().Tallenna(rakenne); })) return false;
  Valitse(rakenne.Id);
  return true;
}

/// The structure as it stands now: another program may have edited or removed it.
void Rakenneselain::KayttoLiittyma_Muokkaa() {
  const Kirjastorakenne* valittu = Valittu();
  if (!valittu || valittu->Kanta != Kirjasto::Oma) return;
  auto tuore = LueRakenne(avaus_.kirjastot.Polku(Kirjasto::Oma), Kirjasto::Oma, valittu->Id);
  if (tuore) return Muokkaa(std::move(*tuore));
  Paivita();
  Ilmoita(Teksti(tekstit::kRakenneJoPoistettu));
}

void Rakenneselain::Muokkaa(Kirjastorakenne rakenne) {
  if (!SuljeMuokkain()) return;
  muokkain_ = std::make_unique<Rakennemuokkain>(avaus_.kirjastot, std::move(rakenne));
  muokkain_->Nayta();
}

void Rakenneselain::KayttoLiittyma_Poista() {
  const Kirjastorakenne* valittu = Valittu();
  if (!valittu || valittu->Kanta != Kirjasto::Oma || !KysyPoisto(valittu->Ratkaisu.Nimi)) return;
  const std::string id = valittu->Id;
  KirjoitaKirjastoon(tekstit::kPoistoEpaonnistui, [&] { avaus_.kirjastot.Avaa().PoistaRakenne(id); });
}

void Rakenneselain::KayttoLiittyma_Tuo() {
  const auto tiedosto =
      ViestitNyt().KysyAvattavaTiedosto(Teksti(tekstit::kTuoOtsikko), Teksti(tekstit::kTiedostosuodatin));
  if (!tiedosto) return;
  Tuontitulos tulos;
  if (!KirjoitaKirjastoon(tekstit::kTuontiEpaonnistui, [&] { tulos = avaus_.kirjastot.Avaa().Tuo(*tiedosto); })) return;
  Ilmoita(Teksti(tekstit::kTuotujaRakenteita) + " " + std::to_string(tulos.rakenteita) + "\n" +
          Teksti(tekstit::kTuotujaMateriaaleja) + " " + std::to_string(tulos.materiaaleja) + "\n" +
          Teksti(tekstit::kEnnestaan) + " " + std::to_string(tulos.entisia));
}

void Rakenneselain::KayttoLiittyma_Vie() {
  const auto tiedosto =
      ViestitNyt().KysyTallennettavaTiedosto(Teksti(tekstit::kVieOtsikko), Teksti(tekstit::kTiedostosuodatin));
  if (tiedosto && KirjoitaKirjastoon(tekstit::kVientiEpaonnistui, [&] { avaus_.kirjastot.Avaa().Vie(*tiedosto); }))
    Ilmoita(Teksti(tekstit::kViety) + " " + *tiedosto);
}

/// False when the person keeps the editing window open, since it holds what can't be stored.
bool Rakenneselain::SuljeMuokkain() {
  if (muokkain_ && !muokkain_->VoiSulkea()) return false;
  muokkain_.reset();
  return true;
}

void Rakenneselain::KayttoLiittyma_Sulje() {
  if (!SuljeMuokkain()) return;
  KayttoLiittyma.Sulje();
  Nosta(avaus_.Suljettu);
}
