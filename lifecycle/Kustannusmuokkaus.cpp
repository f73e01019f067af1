// SPDX-License-Identifier: GPL-3.0-or-later
#include "lifecycle/Kustannusmuokkaus.h"

#include <algorithm>

#include "building/Muokkausistunto.h"
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "kernel/Luvut.h"
#include "lifecycle/Elinkaariehdotukset.h"
#include "lifecycle/clsElinkaari.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "tekstit/lomakkeet_elinkaari.h"
#include "ui/Sidonta.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"
#include "ui/frmHoitoPerusPiirakka.h"

namespace {

using Luku = std::optional<double>;

constexpr const char* kRahaa = "### ### ##0.##";
constexpr const char* kMaara = "### ### ##0.##";
constexpr const char* kAlaa = "### ##0.00";
constexpr const char* kTasaraha = "### ### ##0";

double Kerroin() { return Asetukset().dblCurrencyConvCoeff; }
std::string Rahana(double euroa) { return Muotoile(euroa * Kerroin(), kTasaraha); }

void Nayta(const TextBox& kentta, Luku luku, const char* kuvio) {
  if (luku)
    kentta.Luku(*luku, kuvio);
  else
    kentta.Teksti({});
}
/// An amount in euros, in the currency; an unchanged field gives back the very amount.
void NaytaSyote(const TextBox& kentta, Luku arvo, const char* kuvio, double kerroin = 1) {
  if (arvo)
    sidonta::NaytaLuku(Sidonta{{}, kuvio}, kentta.Kohde(), *arvo, kerroin);
  else
    kentta.Teksti({});
}
Luku Kerrottuna(Luku arvo, double kerroin) { return arvo ? Luku(*arvo * kerroin) : std::nullopt; }

Luettelorivi Rivi(const Kustannuspuu& puu, const Kustannuspuu::Solmu& solmu) {
  Luettelorivi rivi{{solmu.nimi}, solmu.avain};
  if (solmu.vanhempi >= 0) rivi.ylempi = puu.Solmut()[static_cast<std::size_t>(solmu.vanhempi)].avain;
  if (solmu.kustannus)
    rivi.LisaaLuku(*solmu.kustannus * Kerroin(), kTasaraha);
  else
    rivi.solut.emplace_back();
  rivi.piirteet.lihava = solmu.syotetty;
  if (solmu.OhittaaMallin()) {
    rivi.piirteet.merkitys = Merkitys::Huomio;
    rivi.piirteet.selite =
        Teksti(tekstit::kOhittaaMallin) + ": " + Teksti(tekstit::kMallinMukaan) + " " + Rahana(*solmu.mallinArvo);
  }
  return rivi;
}

}  // namespace

Kustannusmuokkaus::Kustannusmuokkaus(clsRakennus& rakennus)
    : rakennus_(rakennus),
      elinkaari_(rakennus.Elinkaari),
      puut_{Kustannuspuu(rakennus, Kustannuspuu::Laji::Perustaminen),
            Kustannuspuu(rakennus, Kustannuspuu::Laji::Hoito)} {
  lomake_.cmbJasentelynValinta.Rivit(
      {Teksti(tekstit::kKustannustenJasentelyt[0]), Teksti(tekstit::kKustannustenJasentelyt[1])});
  lomake_.cmbJasentelynValinta.Indeksi(0);
  lomake_.JasentelyValittu = [this] { NaytaSolmu(); };
  lomake_.SolmuValittu = [this] { NaytaSolmu(); };
  lomake_.SolmuMuuttui = [this] { SolmuMuuttui(); };
  lomake_.EhdotuksetKlikattu = [this] { OtaHintaehdotus(); };
  lomake_.JakaumaKlikattu = [this] { NaytaJakauma(); };
  lomake_.RahatMuuttuivat = [this] { LueDataluokka(); };
}

bool Kustannusmuokkaus::Nayta() {
  Muokkausistunto istunto(elinkaari_, lomake_,
                          {.lue = [this] { LueDataluokka(); }, .virheenJalkeen = [this] { LueDataluokka(); }});
  return istunto.Nayta();
}

clsElinkaarisolmut& Kustannusmuokkaus::Syotetyt() {
  return Paikka() == frmKustannukset::Hoito ? elinkaari_.Hoito : elinkaari_.Perustaminen;
}

void Kustannusmuokkaus::LueDataluokka() {
  puut_[frmKustannukset::Perustaminen].Laske(elinkaari_.Perustaminen);
  puut_[frmKustannukset::Hoito].Laske(elinkaari_.Hoito);
  for (const int valinta : {1, 0}) {
    lomake_.cmbJasentelynValinta.Indeksi(valinta);
    NaytaPuu();
  }
  lomake_.NaytaJasentely();
  NaytaSolmu();
  NaytaYhteensa();
}

void Kustannusmuokkaus::NaytaPuu() {
  Luettelosisalto sisalto;
  for (const Solmu& solmu : Puu().Solmut()) sisalto.rivit.push_back(Rivi(Puu(), solmu));
  Lista().Tayta(std::move(sisalto));
}

void Kustannusmuokkaus::NaytaSolmu() {
  const Solmu* solmu = Valittu();
  if (!solmu) return;
  const auto& k = Kentat();
  for (const TextBox& kentta : {k.txtLaskentayksikko, k.txtYksikoidenMaara, k.txtYksikkokustannus})
    kentta.Kohde().PaataMuokkaus();
  k.lblValittu.Otsikko(solmu->nimi);
  NaytaTyypit(*solmu);
  k.txtLaskentayksikko.Teksti(solmu->laskentayksikko);
  k.chkMaaraMallista.Valittu(solmu->maaraMallista);
  NaytaSyote(k.txtYksikoidenMaara, solmu->maara, kMaara);
  NaytaSyote(k.txtYksikkokustannus, solmu->yksikkokustannus, kRahaa, Kerroin());
  NaytaKustannus(*solmu);
}

/// A node may be the sum of those below, have a cost of its own, or take the model's.
void Kustannusmuokkaus::NaytaTyypit(const Solmu& solmu) {
  tyypit_.clear();
  if (!solmu.lapset.empty()) tyypit_.push_back(clsElinkaarisolmu::SummaAlemmista);
  if (solmu.mallinArvo) tyypit_.push_back(clsElinkaarisolmu::Mallista);
  tyypit_.push_back(clsElinkaarisolmu::OmaArvo);
  std::vector<std::string> nimet;
  for (const std::int32_t tyyppi : tyypit_) nimet.push_back(Teksti(tekstit::kKustannustyypit[tyyppi]));
  Kentat().cmbTyyppi.Rivit(nimet);
  const auto valittu = std::ranges::find(tyypit_, solmu.tyyppi);
  Kentat().cmbTyyppi.Indeksi(static_cast<int>(valittu - tyypit_.begin()));
}

/// What follows from the fields, and which of them can be written in.
void Kustannusmuokkaus::NaytaKustannus(const Solmu& solmu) {
  const auto& k = Kentat();
  const bool oma = solmu.tyyppi == clsElinkaarisolmu::OmaArvo;
  k.txtLaskentayksikko.Kaytossa(oma);
  k.chkMaaraMallista.Kaytossa(oma && solmu.mallinMaara);
  k.txtYksikoidenMaara.Kaytossa(oma && !solmu.maaraMallista);
  k.txtYksikkokustannus.Kaytossa(oma);
  if (Paikka() == frmKustannukset::Perustaminen) lomake_.cmdEhdotukset.Kaytossa(oma);
  if (!solmu.laskentayksikko.empty())
    k.lblYksYksikkokustannus.Otsikko(Asetukset().strDefaultCurrencyUnit + "/" + solmu.laskentayksikko +
                                     (Paikka() == frmKustannukset::Hoito ? ",a" : ""));
  ::Nayta(k.txtKokonaiskustannus, Kerrottuna(solmu.kustannus, Kerroin()), kRahaa);
  const double ala = rakennus_.Perustiedot.BruttoAla;
  ::Nayta(k.txtBruttoalaa, ala > 0 ? Kerrottuna(solmu.kustannus, Kerroin() / ala) : std::nullopt, kAlaa);
  std::string malli;
  if (solmu.mallinArvo)
    malli = Teksti(tekstit::kMallinMukaan) + " " + Rahana(*solmu.mallinArvo) + " " +
            Asetukset().strDefaultCurrencyUnit + "/a. ";
  if (solmu.mallinMaara)
    malli = Teksti(tekstit::kMallinMukaan) + " " + Muotoile(*solmu.mallinMaara, kMaara) + " " + solmu.yksikko + ". ";
  if (solmu.OhittaaMallin()) malli += Teksti(tekstit::kOhittaaMallin) + ".";
  k.lblMalli.Otsikko(malli);
}

void Kustannusmuokkaus::NaytaYhteensa() {
  const auto oletukset = elinkaari_.Oletukset();
  const Luku perustaminen = puut_[frmKustannukset::Perustaminen].Yhteensa();
  const Luku hoito = oletukset ? puut_[frmKustannukset::Hoito].Nykyarvo(*oletukset) : std::nullopt;
  ::Nayta(lomake_.txtPerustamisetYht, Kerrottuna(perustaminen, Kerroin()), kTasaraha);
  ::Nayta(lomake_.txtHoidonNykyarvo, Kerrottuna(hoito, Kerroin()), kTasaraha);
  ::Nayta(lomake_.txtElinkaariYht, perustaminen && hoito ? Luku((*perustaminen + *hoito) * Kerroin()) : std::nullopt,
          kTasaraha);
  lomake_.lblOletukset.Otsikko(oletukset
                                   ? Teksti(tekstit::kPitoaikaJaKorko) + ": " + std::to_string(elinkaari_.Pitoaika) +
                                         " a, " + Muotoile(elinkaari_.Korkokanta, "0.0#") + " %"
                                   : Teksti(tekstit::kOletuksetPuuttuvat));
}

void Kustannusmuokkaus::SolmuMuuttui() {
  const Solmu* solmu = Valittu();
  if (!solmu) return;
  KirjoitaSolmu(*solmu);
  Puu().Laske(Syotetyt());
  NaytaPuu();
  solmu = Valittu();
  if (solmu->maaraMallista) NaytaSyote(Kentat().txtYksikoidenMaara, solmu->maara, kMaara);
  NaytaKustannus(*solmu);
  NaytaYhteensa();
}

/// From the fields to the entry, which a node that the person has emptied and left in its own type doesn't have.
void Kustannusmuokkaus::KirjoitaSolmu(const Solmu& solmu) {
  const auto& k = Kentat();
  const std::int32_t tyyppi = tyypit_.at(static_cast<std::size_t>(std::max(0, k.cmbTyyppi.Indeksi())));
  const std::string yksikko = k.txtLaskentayksikko.Teksti() == solmu.yksikko ? "" : k.txtLaskentayksikko.Teksti();
  const bool maaraAnnettu = !k.chkMaaraMallista.Valittu() && !k.txtYksikoidenMaara.Teksti().empty();
  const bool omaMaara = solmu.mallinMaara ? !k.chkMaaraMallista.Valittu() : maaraAnnettu;
  if (tyyppi == solmu.omaTyyppi && yksikko.empty() && !omaMaara && k.txtYksikkokustannus.Teksti().empty()) {
    if (Syotetyt().Etsi(solmu.avain)) Syotetyt().Remove(solmu.avain);
    return;
  }
  clsElinkaarisolmu* syote = Syotetyt().Etsi(solmu.avain);
  if (!syote) syote = &Syotetyt().Add(solmu.avain);
  syote->TyyppiID = tyyppi;
  syote->Laskentayksikko = yksikko;
  syote->MaaraMallista = solmu.mallinMaara && k.chkMaaraMallista.Valittu();
  if (maaraAnnettu) sidonta::LueLukuna(k.txtYksikoidenMaara.Kohde(), 1, syote->YksikoidenMaara);
  if (k.txtYksikkokustannus.Teksti().empty())
    syote->Yksikkokustannus = 0;
  else
    sidonta::LueLukuna(k.txtYksikkokustannus.Kohde(), Kerroin(), syote->Yksikkokustannus);
}

void Kustannusmuokkaus::OtaHintaehdotus() {
  const auto ehdotus = PoimiEhdotus(Ehdotuslaji::Yksikkohinta);
  if (!ehdotus || !Valittu()) return;
  constexpr std::string_view kEuroa = "€/";
  Kentat().txtLaskentayksikko.Teksti(ehdotus->Yksikko.substr(kEuroa.size()));
  NaytaSyote(Kentat().txtYksikkokustannus, ehdotus->Arvo, kRahaa, Kerroin());
  SolmuMuuttui();
}

void Kustannusmuokkaus::NaytaJakauma() {
  const auto oletukset = elinkaari_.Oletukset();
  const Luku perustaminen = puut_[frmKustannukset::Perustaminen].Yhteensa();
  const Luku hoito = oletukset ? puut_[frmKustannukset::Hoito].Nykyarvo(*oletukset) : std::nullopt;
  if (!perustaminen || !hoito || *perustaminen + *hoito <= 0) return Ilmoita(Teksti(tekstit::kJakaumaPuuttuu));
  frmHoitoPerusPiirakka piirakka;
  Kaaviotiedot kaavio{.otsikko = rakennus_.Perustiedot.KohteenNimi, .yksikko = Asetukset().strDefaultCurrencyUnit};
  for (const auto& [nimi, arvo] :
       {std::pair(tekstit::kPerustamiskustannus, *perustaminen), std::pair(tekstit::kHoitokustannus, *hoito)}) {
    kaavio.nimet.push_back(Teksti(nimi));
    kaavio.arvot.push_back(arvo * Kerroin());
  }
  piirakka.lblSelite.Otsikko(lomake_.lblOletukset.Otsikko());
  piirakka.Picture1.Kaavio(std::move(kaavio));
  piirakka.NaytaModaalisena();
}
