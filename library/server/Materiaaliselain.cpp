// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/server/Materiaaliselain.h"

#include <algorithm>

#include "kernel/Luvut.h"
#include "library/Kirjastosuodatin.h"
#include "tekstit/lomakkeet_kirjasto.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"

namespace {

std::vector<std::string> Rivi(const Kirjastomateriaali& materiaali) {
  return {materiaali.Aine.Nimi,
          materiaali.Ryhma,
          Muotoile(materiaali.Aine.Lambda, "0.00#"),
          Muotoile(materiaali.Aine.Tiheys, "0.##"),
          Muotoile(materiaali.Aine.Ominaislampo, "0.0##"),
          KirjastonLyhenne(materiaali.Kanta)};
}

std::string Lahdeteksti(const Kirjastomateriaali& materiaali) {
  return Teksti(tekstit::kLahde) + " " + materiaali.Lahde +
         (materiaali.Tila.empty() ? "" : " (" + materiaali.Tila + ")");
}

}  // namespace

Materiaaliselain::Materiaaliselain(Selaimenavaus avaus, std::function<void(const Materiaali&)> valittu)
    : avaus_(std::move(avaus)), valittu_(std::move(valittu)) {
  KayttoLiittyma.cmbKirjasto.Rivit(Kirjastorivit());
  KayttoLiittyma.cmbKirjasto.Indeksi(0);
  KayttoLiittyma.cmdOk.Nakyva(avaus_.valinta);
  Kuuntele();
}

void Materiaaliselain::Kuuntele() {
  frmMateriaalikirjasto& k = KayttoLiittyma;
  k.SuodatinMuuttui = [this] { Suodata(); };
  k.MateriaaliVaihtui = [this] { NaytaMateriaali(); };
  k.ValitseKlikattu = [this] { KayttoLiittyma_Valitse(); };
  k.UusiKlikattu = [this] { KayttoLiittyma_Uusi(); };
  k.MuokkaaKlikattu = [this] { KayttoLiittyma_Muokkaa(); };
  k.KopioiKlikattu = [this] { KayttoLiittyma_Kopioi(); };
  k.PoistaKlikattu = [this] { KayttoLiittyma_Poista(); };
  LiitaNappaimet(KayttoLiittyma.lvwMateriaalit, KayttoLiittyma.cmdUusi, KayttoLiittyma.cmdPoista);
  k.SuljeKlikattu = [this] { KayttoLiittyma_Sulje(); };
}

void Materiaaliselain::Nayta() {
  Paivita();
  if (!avaus_.suodatin.empty()) PalautaEhdot(Ehdot(), avaus_.suodatin);
  Suodata();
  const auto alku = std::ranges::find(naytetyt_, avaus_.alku, [](const auto* m) { return m->Aine.Nimi; });
  if (alku != naytetyt_.end()) Valitse((*alku)->Id);
  KayttoLiittyma.Nayta();
  KayttoLiittyma.txtHaku.Kohdista();
  KerroViat(avaus_.kirjastot);
}

void Materiaaliselain::Paivita() {
  const Kirjastomateriaali* ennen = Valittu();
  const std::string id = ennen ? ennen->Id : std::string();
  naytetyt_.clear();
  avaus_.kirjastot.Lataa();
  TaytaRyhmat();
  Suodata();
  Valitse(id);
}

void Materiaaliselain::TaytaRyhmat() {
  std::vector<std::string> ryhmat;
  for (const Kirjastomateriaali& materiaali : avaus_.kirjastot.Materiaalit())
    if (!materiaali.Ryhma.empty()) ryhmat.push_back(materiaali.Ryhma);
  std::ranges::sort(ryhmat);
  ryhmat.erase(std::ranges::unique(ryhmat).begin(), ryhmat.end());
  TaytaEhdot(KayttoLiittyma.cmbRyhma, ryhmat);
}

std::vector<Ohjain*> Materiaaliselain::Ehdot() const {
  const frmMateriaalikirjasto& k = KayttoLiittyma;
  return {&k.cmbRyhma.Kohde(), &k.cmbKirjasto.Kohde(), &k.txtHaku.Kohde()};
}

void Materiaaliselain::Suodata() {
  Nosta(avaus_.Suodatettu, EhtojenTeksti(Ehdot()));
  const Materiaalisuodatin ehto{ValittuKirjasto(KayttoLiittyma.cmbKirjasto), ValittuEhto(KayttoLiittyma.cmbRyhma),
                                KayttoLiittyma.txtHaku.Teksti()};
  Taulukko rivit;
  naytetyt_.clear();
  for (const Kirjastomateriaali& materiaali : avaus_.kirjastot.Materiaalit()) {
    if (!ehto.Sopii(materiaali)) continue;
    naytetyt_.push_back(&materiaali);
    rivit.push_back(Rivi(materiaali));
  }
  KayttoLiittyma.lblMaara.Otsikko(Teksti(tekstit::kMateriaaleja) + " " + std::to_string(rivit.size()) + "    " +
                                  Teksti(tekstit::kKirjastonVersio) + " " + avaus_.kirjastot.Versio());
  KayttoLiittyma.lvwMateriaalit.Rivit(std::move(rivit));
  Valitse({});
}

void Materiaaliselain::Valitse(const std::string& id) {
  const auto it = std::ranges::find(naytetyt_, id, &Kirjastomateriaali::Id);
  const int ensimmainen = naytetyt_.empty() ? -1 : KayttoLiittyma.lvwMateriaalit.Kohde().Lista().Jarjestys().front();
  KayttoLiittyma.lvwMateriaalit.Indeksi(it == naytetyt_.end() ? ensimmainen : static_cast<int>(it - naytetyt_.begin()));
  NaytaMateriaali();
}

const Kirjastomateriaali* Materiaaliselain::Valittu() const {
  const int i = KayttoLiittyma.lvwMateriaalit.Indeksi();
  return i >= 0 && i < static_cast<int>(naytetyt_.size()) ? naytetyt_[static_cast<std::size_t>(i)] : nullptr;
}

void Materiaaliselain::NaytaMateriaali() {
  const Kirjastomateriaali* valittu = Valittu();
  const bool omaKunnossa = avaus_.kirjastot.Vika(Kirjasto::Oma).empty();
  const bool oma = omaKunnossa && valittu && valittu->Kanta == Kirjasto::Oma;
  KayttoLiittyma.lblLahde.Otsikko(valittu ? Lahdeteksti(*valittu) : std::string());
  KayttoLiittyma.cmdUusi.Kaytossa(omaKunnossa);
  KayttoLiittyma.cmdKopioi.Kaytossa(omaKunnossa && valittu);
  KayttoLiittyma.cmdMuokkaa.Kaytossa(oma);
  KayttoLiittyma.cmdPoista.Kaytossa(oma);
  KayttoLiittyma.cmdOk.Kaytossa(valittu != nullptr);
}

void Materiaaliselain::KayttoLiittyma_Valitse() {
  if (!SuljeMuokkain()) return;  // may store, which reads the entries anew
  const Kirjastomateriaali* materiaali = Valittu();
  if (!materiaali) return;
  Nosta(valittu_, materiaali->Aine);
  KayttoLiittyma_Sulje();
}

void Materiaaliselain::KayttoLiittyma_Uusi() {
  Kirjastomateriaali uusi;
  uusi.Aine.Nimi = Teksti(tekstit::kUusiMateriaali);
  uusi.Ryhma = ValittuEhto(KayttoLiittyma.cmbRyhma);
  if (LisaaOmaan(uusi)) Muokkaa(std::move(uusi));
}

void Materiaaliselain::KayttoLiittyma_Kopioi() {
  const Kirjastomateriaali* malli = Valittu();
  if (!malli) return;
  Kirjastomateriaali kopio = *malli;
  kopio.Aine.Nimi =
      Teksti(tekstit::kKirjastonKopio) + " " + kopio.Aine.Nimi;  // two of one name couldn't be told apart in a layer
  kopio.Kanta = Kirjasto::Oma;
  kopio.Id.clear();
  LisaaOmaan(kopio);
}

bool Materiaaliselain::LisaaOmaan(Kirjastomateriaali& materiaali) {
  if (!KirjoitaKirjastoon(tekstit::kEiTallennettu, [&] { avaus_.kirjastot.Avaa().Tallenna(materiaali); })) return false;
  Valitse(materiaali.Id);
  return true;
}

/// The material as it stands now: another program may have edited or removed it.
void Materiaaliselain::KayttoLiittyma_Muokkaa() {
  const Kirjastomateriaali* valittu = Valittu();
  if (!valittu || valittu->Kanta != Kirjasto::Oma) return;
  const std::string id = valittu->Id;
  Paivita();
  const auto tuore = std::ranges::find(avaus_.kirjastot.Materiaalit(), id, &Kirjastomateriaali::Id);
  if (tuore != avaus_.kirjastot.Materiaalit().end()) return Muokkaa(*tuore);
  Ilmoita(Teksti(tekstit::kMateriaaliJoPoistettu));
}

void Materiaaliselain::Muokkaa(Kirjastomateriaali materiaali) {
  if (!SuljeMuokkain()) return;
  muokkain_ = std::make_unique<Materiaalimuokkain>(avaus_.kirjastot, std::move(materiaali));
  muokkain_->Nayta();
}

void Materiaaliselain::KayttoLiittyma_Poista() {
  const Kirjastomateriaali* valittu = Valittu();
  if (!valittu || valittu->Kanta != Kirjasto::Oma) return;
  const std::string id = valittu->Id;
  std::string kayttajat;
  for (const std::string& nimi : avaus_.kirjastot.Avaa().MateriaalinKayttajat(id)) kayttajat += "\n" + nimi;
  if (!kayttajat.empty()) return Ilmoita(Teksti(tekstit::kMateriaaliKaytossa) + kayttajat);
  if (KysyPoisto(valittu->Aine.Nimi))
    KirjoitaKirjastoon(tekstit::kPoistoEpaonnistui, [&] { avaus_.kirjastot.Avaa().PoistaMateriaali(id); });
}

/// False when the person keeps the editing window open, since it holds what can't be stored.
bool Materiaaliselain::SuljeMuokkain() {
  if (muokkain_ && !muokkain_->VoiSulkea()) return false;
  muokkain_.reset();
  return true;
}

void Materiaaliselain::KayttoLiittyma_Sulje() {
  if (!SuljeMuokkain()) return;
  KayttoLiittyma.Sulje();
  Nosta(avaus_.Suljettu);
}
