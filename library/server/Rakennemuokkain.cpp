// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/server/Rakennemuokkain.h"

#include <algorithm>

#include "library/Kirjastoluettelo.h"
#include "library/Lampotilajakauma.h"
#include "library/server/Kenttatyot.h"
#include "library/server/Rakennekuvaus.h"
#include "tekstit/lomakkeet_kirjasto.h"
#include "ui/Kenttatarkistus.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr double kSataProsenttia = 100;
constexpr double kSuurinLuku = 1e9;

struct Lukukentta {
  TextBox frmKirjastorakenne::*kentta;
  float Rakenneratkaisu::*arvo;
  std::string_view kuvio;
  double enintaan = kSuurinLuku;
};

constexpr Lukukentta kLuvut[] = {
    {&frmKirjastorakenne::txtUarvo, &Rakenneratkaisu::U_arvo, "0.00#"},
    {&frmKirjastorakenne::txtPintavastusSisa, &Rakenneratkaisu::PintavastusSisa, "0.00#"},
    {&frmKirjastorakenne::txtPintavastusUlko, &Rakenneratkaisu::PintavastusUlko, "0.00#"},
    {&frmKirjastorakenne::txtPistemaiset, &Rakenneratkaisu::Pistemaiset, "0.##"},
    {&frmKirjastorakenne::txtPistemaisetWpK, &Rakenneratkaisu::PistemaisetWpK, "0.00##"},
    {&frmKirjastorakenne::txtViivamaiset, &Rakenneratkaisu::Viivamaiset, "0.##"},
    {&frmKirjastorakenne::txtViivamaisetWpK, &Rakenneratkaisu::ViivamaisetWpK, "0.00##"},
    {&frmKirjastorakenne::txtRw, &Rakenneratkaisu::Rw, "0.#"},
    {&frmKirjastorakenne::txtPaksuus, &Rakenneratkaisu::Paksuus, "0.#"},
    {&frmKirjastorakenne::txtKerrostenMassaYht, &Rakenneratkaisu::KerrostenMassaYht, "0.#"},
    {&frmKirjastorakenne::txtAurinkoenergianlapaisy, &Rakenneratkaisu::Aurinkoenergianlapaisy, "0.#", kSataProsenttia},
    {&frmKirjastorakenne::txtKarmikerroin, &Rakenneratkaisu::Karmikerroin, "0.#", kSataProsenttia},
    {&frmKirjastorakenne::txtVerhokerroin, &Rakenneratkaisu::Verhokerroin, "0.#", kSataProsenttia},
    {&frmKirjastorakenne::txtKokonaisvarjostuskerroin, &Rakenneratkaisu::Kokonaisvarjostuskerroin, "0.#",
     kSataProsenttia},
};

std::vector<std::string> Rakennetyypit() {
  auto rivit = Valintalista("frmRakenteet", "cmbRakennetyyppi");
  if (!rivit.empty()) rivit.erase(rivit.begin());  // all kinds
  return rivit;
}

}  // namespace

Rakennemuokkain::Rakennemuokkain(const Kirjastot& kirjastot, Kirjastorakenne rakenne)
    : kirjastot_(kirjastot),
      rakenne_(std::move(rakenne)),
      tallennus_(kirjastot,
                 {[this](Kayttajankirjasto& kirjasto) { return kirjasto.Tallenna(rakenne_); },
                  [this] { rakenne_.Id.clear(); }, tekstit::kRakennePoistettu},
                 KayttoLiittyma.lblTila) {
  KayttoLiittyma.cmbRakennetyyppi.Rivit(Rakennetyypit());
  TaytaMateriaalit();
  Kuuntele();
  LueDataluokka();
  NaytaKerrokset(Kerrokset().Count() > 0 ? 0 : -1);
}

void Rakennemuokkain::Kuuntele() {
  frmKirjastorakenne& k = KayttoLiittyma;
  k.RakenneMuuttui = [this] { KayttoLiittyma_RakenneMuuttui(); };
  k.KerrosMuuttui = [this] { KayttoLiittyma_KerrosMuuttui(); };
  k.KerrosVaihtui = [this] { LueKerros(); };
  k.KentastaPoistuttu = [this] { TarkistaLukukentat(KayttoLiittyma); };
  k.RakKerLisaa = [this] { KayttoLiittyma_RakKerLisaa(); };
  k.RakKerKopioi = [this] { KayttoLiittyma_RakKerKopioi(); };
  k.RakKerPoista = [this] { KayttoLiittyma_RakKerPoista(); };
  k.RakKerSiirraSisaanPain = [this] { KayttoLiittyma_RakKerSiirraSisaanPain(Paikka(), Paikka() - 1); };
  k.RakKerSiirraUlosPain = [this] { KayttoLiittyma_RakKerSiirraSisaanPain(Paikka() + 1, Paikka() + 1); };
  k.SuljeKlikattu = [this] {
    if (tallennus_.VoiSulkea()) KayttoLiittyma.Sulje();
  };
}

/// Both choice lists: an empty row, the materials of the libraries, and those that only this structure has.
void Rakennemuokkain::TaytaMateriaalit() {
  materiaalit_.clear();
  const auto lisaa = [this](const Materiaali& aine) {
    if (!aine.Nimi.empty() && std::ranges::find(materiaalit_, aine) == materiaalit_.end()) materiaalit_.push_back(aine);
  };
  for (const Kirjastomateriaali& materiaali : kirjastot_.Materiaalit()) lisaa(materiaali.Aine);
  for (const clsRakennekerros& kerros : Kerrokset()) {
    lisaa(kerros.Materiaali);
    lisaa(kerros.Lisamateriaali);
  }
  std::vector<std::string> rivit{{}};
  for (const Materiaali& aine : materiaalit_) rivit.push_back(aine.Nimi);
  KayttoLiittyma.cmbMateriaali.Rivit(rivit);
  KayttoLiittyma.cmbLisamateriaali.Rivit(rivit);
}

void Rakennemuokkain::LueDataluokka() {
  const Rakenneratkaisu& ratkaisu = rakenne_.Ratkaisu;
  KayttoLiittyma.txtNimi.Teksti(ratkaisu.Nimi);
  KayttoLiittyma.txtKuvaus.Teksti(ratkaisu.Kuvaus);
  KayttoLiittyma.txtLahde.Teksti(rakenne_.Lahde);
  KayttoLiittyma.txtAikakausi.Teksti(rakenne_.Aikakausi);
  KayttoLiittyma.txtPaloluokka.Teksti(ratkaisu.Paloluokka);
  KayttoLiittyma.txtVuosiAlku.Teksti(std::to_string(rakenne_.VuosiAlku));
  KayttoLiittyma.txtVuosiLoppu.Teksti(std::to_string(rakenne_.VuosiLoppu));
  KayttoLiittyma.cmbRakennetyyppi.Indeksi(RakennetyyppiSanasta(ratkaisu.Rakennetyyppi).value_or(-1));
  KayttoLiittyma.chkU_arvoAnnettu.Valittu(ratkaisu.U_arvoAnnettu);
  KayttoLiittyma.chkOnIkkuna.Valittu(ratkaisu.OnIkkuna);
  for (const Lukukentta& luku : kLuvut) (KayttoLiittyma.*luku.kentta).Luku(ratkaisu.*luku.arvo, luku.kuvio);
}

/// The figures that follow from the layers, while there are any.
void Rakennemuokkain::LueLaskettavat() {
  const bool kerroksia = Kerrokset().Count() > 0;
  KayttoLiittyma.txtPaksuus.Kaytossa(!kerroksia);
  KayttoLiittyma.txtKerrostenMassaYht.Kaytossa(!kerroksia);
  KayttoLiittyma.txtUarvo.Kaytossa(rakenne_.Ratkaisu.U_arvoAnnettu);
  if (!kerroksia) return;
  KayttoLiittyma.txtPaksuus.Luku(rakenne_.Ratkaisu.Paksuus, "0.#");
  KayttoLiittyma.txtKerrostenMassaYht.Luku(rakenne_.Ratkaisu.KerrostenMassaYht, "0.#");
}

void Rakennemuokkain::KirjoitaDataluokka() {
  Rakenneratkaisu& ratkaisu = rakenne_.Ratkaisu;
  LueTeksti(KayttoLiittyma.txtNimi, ratkaisu.Nimi, true);
  LueTeksti(KayttoLiittyma.txtKuvaus, ratkaisu.Kuvaus);
  LueTeksti(KayttoLiittyma.txtLahde, rakenne_.Lahde);
  LueTeksti(KayttoLiittyma.txtAikakausi, rakenne_.Aikakausi);
  LueTeksti(KayttoLiittyma.txtPaloluokka, ratkaisu.Paloluokka);
  KirjoitaVuodet();
  if (const int tyyppi = KayttoLiittyma.cmbRakennetyyppi.Indeksi(); tyyppi >= 0)
    ratkaisu.Rakennetyyppi = RakennetyypinSana(tyyppi);
  ratkaisu.U_arvoAnnettu = KayttoLiittyma.chkU_arvoAnnettu.Valittu();
  ratkaisu.OnIkkuna = KayttoLiittyma.chkOnIkkuna.Valittu();
  for (const Lukukentta& luku : kLuvut) LueRajoissa(KayttoLiittyma.*luku.kentta, ratkaisu.*luku.arvo, luku.enintaan);
}

void Rakennemuokkain::KirjoitaVuodet() {
  LueArvo(KayttoLiittyma.txtVuosiAlku, rakenne_.VuosiAlku);
  LueArvo(KayttoLiittyma.txtVuosiLoppu, rakenne_.VuosiLoppu);
}

void Rakennemuokkain::LueKerros() {
  const bool on = Paikka() > 0;
  const clsRakennekerros tyhja;
  const clsRakennekerros& kerros = on ? Kerrokset().Item(Paikka()) : tyhja;
  ValitseMateriaali(KayttoLiittyma.cmbMateriaali, kerros.Materiaali);
  ValitseMateriaali(KayttoLiittyma.cmbLisamateriaali, kerros.Lisamateriaali);
  KayttoLiittyma.txtKerroksenPaksuus.Luku(kerros.Paksuus, "0.##");
  KayttoLiittyma.txtLammonvastus.Luku(kerros.Lammonvastus, "0.00#");
  KayttoLiittyma.txtLisamateriaalinOsuus.Luku(kerros.LisamateriaalinOsuus, "0.#");
  KayttoLiittyma.chkUArvoon.Valittu(kerros.UArvoon);
  KayttoLiittyma.chkYhtenainen.Valittu(kerros.Yhtenainen);
  for (const Ohjainkahva& ohjain : std::initializer_list<Ohjainkahva>{
           KayttoLiittyma.cmbMateriaali, KayttoLiittyma.txtKerroksenPaksuus, KayttoLiittyma.txtLammonvastus,
           KayttoLiittyma.chkUArvoon, KayttoLiittyma.chkYhtenainen, KayttoLiittyma.cmdKopioiKerros,
           KayttoLiittyma.cmdPoistaKerros})
    ohjain.Kaytossa(on);
  KayttoLiittyma.cmdSisaanpain.Kaytossa(Paikka() > 1);
  KayttoLiittyma.cmdUlospain.Kaytossa(on && Paikka() < Kerrokset().Count());
  KayttoLiittyma.cmbLisamateriaali.Kaytossa(on && !kerros.Yhtenainen);
  KayttoLiittyma.txtLisamateriaalinOsuus.Kaytossa(on && !kerros.Yhtenainen);
}

void Rakennemuokkain::ValitseMateriaali(const ComboBox& valinta, const Materiaali& aine) {
  const auto it = std::ranges::find(materiaalit_, aine);
  valinta.Indeksi(it == materiaalit_.end() ? 0 : static_cast<int>(it - materiaalit_.begin()) + 1);
}

void Rakennemuokkain::KirjoitaKerros(clsRakennekerros& kerros) {
  const auto valittu = [this](const ComboBox& valinta) {
    const int i = valinta.Indeksi();
    return i > 0 ? materiaalit_[static_cast<std::size_t>(i) - 1] : Materiaali();
  };
  kerros.Materiaali = valittu(KayttoLiittyma.cmbMateriaali);
  kerros.Lisamateriaali = valittu(KayttoLiittyma.cmbLisamateriaali);
  LueRajoissa(KayttoLiittyma.txtKerroksenPaksuus, kerros.Paksuus);
  LueRajoissa(KayttoLiittyma.txtLammonvastus, kerros.Lammonvastus);
  LueRajoissa(KayttoLiittyma.txtLisamateriaalinOsuus, kerros.LisamateriaalinOsuus, kSataProsenttia);
  kerros.UArvoon = KayttoLiittyma.chkUArvoon.Valittu();
  kerros.Yhtenainen = KayttoLiittyma.chkYhtenainen.Valittu();
}

void Rakennemuokkain::KayttoLiittyma_RakenneMuuttui() {
  KirjoitaDataluokka();
  Tallenna();
}

void Rakennemuokkain::KayttoLiittyma_KerrosMuuttui() {
  if (Paikka() == 0) return;
  clsRakennekerros& kerros = Kerrokset().Item(Paikka());
  KirjoitaKerros(kerros);
  KayttoLiittyma.cmbLisamateriaali.Kaytossa(!kerros.Yhtenainen);
  KayttoLiittyma.txtLisamateriaalinOsuus.Kaytossa(!kerros.Yhtenainen);
  Tallenna();
}

void Rakennemuokkain::KayttoLiittyma_RakKerLisaa() {
  Kerrokset().LisaaKerros();
  NaytaKerrokset(Kerrokset().Count() - 1);
  Tallenna();
  KayttoLiittyma.cmbMateriaali.Kohdista();
}

void Rakennemuokkain::KayttoLiittyma_RakKerKopioi() {
  clsRakennekerros& uusi = Kerrokset().LisaaKerros();
  const Tunniste avain = uusi.sKey;
  uusi = Kerrokset().Item(Paikka());
  uusi.sKey = avain;
  NaytaKerrokset(Kerrokset().Count() - 1);
  Tallenna();
}

void Rakennemuokkain::KayttoLiittyma_RakKerPoista() {
  if (!KysyPoisto(KerroksenNimi(Kerrokset().Item(Paikka())))) return;
  const int paikka = Paikka();
  Kerrokset().Remove(paikka);
  NaytaKerrokset(std::min(paikka, Kerrokset().Count()) - 1);
  Tallenna();
}

/// Moves the layer of a position one step inwards and leaves the one at `uusiPaikka` chosen.
void Rakennemuokkain::KayttoLiittyma_RakKerSiirraSisaanPain(int paikka, int uusiPaikka) {
  Kerrokset().SiirraSisaanpain(paikka);
  NaytaKerrokset(uusiPaikka - 1);
  Tallenna();
}

void Rakennemuokkain::Tallenna() {
  rakenne_.Ratkaisu.PaivitaKerrossummat();
  NaytaTulokset();
  tallentaa_ = true;
  const bool tallessa = tallennus_.Tallenna();
  tallentaa_ = false;
  if (!tallessa) KayttoLiittyma.Sulje();
}

/// Another window has written: one of our materials or this very structure may have changed. All of ours is stored, so
/// it is read anew; what has been removed stays here until the next edit asks about it.
void Rakennemuokkain::KirjastoMuuttui() {
  if (tallentaa_ || !Auki() || !tallennus_.Yrita()) return;
  auto tuore = LueRakenne(kirjastot_.Polku(Kirjasto::Oma), Kirjasto::Oma, rakenne_.Id);
  if (!tuore) return;
  rakenne_ = std::move(*tuore);
  TaytaMateriaalit();
  LueDataluokka();
  NaytaKerrokset(std::min(Paikka(), Kerrokset().Count()) - 1);
}

void Rakennemuokkain::NaytaKerrokset(int valittu) {
  KayttoLiittyma.lvwKerrokset.Rivit(Kerrosrivit(rakenne_.Ratkaisu));
  KayttoLiittyma.lvwKerrokset.Indeksi(valittu);
  LueKerros();
  NaytaTulokset();
}

void Rakennemuokkain::NaytaTulokset() {
  const int valittu = KayttoLiittyma.lvwKerrokset.Indeksi();
  KayttoLiittyma.lvwKerrokset.Rivit(Kerrosrivit(rakenne_.Ratkaisu));
  KayttoLiittyma.lvwKerrokset.Indeksi(valittu);
  KayttoLiittyma.chtLampotilat.Kaavio(Leikkauskuva(rakenne_.Ratkaisu));
  LueLaskettavat();
}
