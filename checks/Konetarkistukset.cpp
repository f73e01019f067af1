// SPDX-License-Identifier: GPL-3.0-or-later
// Ventilation machines.
#include <algorithm>

#include "building/clsRakennus.h"
#include "building/clsTilat.h"
#include "checks/Tarkistusajo.h"
#include "checks/Tarkistusrajat.h"
#include "kernel/Luvut.h"
#include "tekstit/tarkistukset.h"
#include "ventilation/LammitysTaulukko.h"
#include "ventilation/clsIVKoneet.h"

namespace {

namespace raja = tarkistusraja;
constexpr const char* kVirta = "0.00#";
constexpr const char* kLampotila = "0.#";

Havainnonkohde Konekohde(const clsIVKone& kone) { return Kohde(kone, {kone.KoneenTunnus}); }

/// A period of the schedule that counts is such that `ehto`.
template <class F>
bool JokinJakso(const clsIVKone& kone, F&& ehto) {
  const clsKayntiAjat& ajat = kone.KayntiAikaYleistiedot;
  return std::ranges::any_of(ajat, [&](const clsKayntiAika& jakso) {
    return jakso.Kaytossa() && ajat.Vuosittainen() == (jakso.Jakso == clsKayntiAika::KokoVuosi) && ehto(jakso);
  });
}

void KoneIlmanTilaa(Tarkistusajo& ajo) {
  for (const clsIVKone* kone : ajo.rakennus.IVKoneet.ListaaTilaanLiittymattomatIVKoneet()) ajo.Loytyi(Konekohde(*kone));
}

void IlmavirratYlipaineella(Tarkistusajo& ajo) {
  const clsIVKoneet& koneet = ajo.rakennus.IVKoneet;
  const double tulo = koneet.Tuloilmavirtojen11Summa(), poisto = koneet.Poistoilmavirtojen11Summa();
  if (tulo > poisto) ajo.LoytyiRakennuksesta({Muotoile(tulo, kVirta), Muotoile(poisto, kVirta)});
}

void KoneenVirratPoikkeavat(Tarkistusajo& ajo) {
  for (const clsIVKone& kone : ajo.rakennus.IVKoneet) {
    const double tulo = kone.TuloIlmavirta11Teho, poisto = kone.PoistoIlmavirta11Teho;
    if (!kone.OnTalteenotto() || tulo <= 0 || poisto <= 0) continue;
    if (tulo < raja::kPieninVirtasuhde * poisto || tulo > raja::kSuurinVirtasuhde * poisto)
      ajo.Loytyi(Konekohde(kone),
                 {Muotoile(tulo, kVirta), Muotoile(poisto, kVirta), Muotoile(100 * tulo / poisto, "0")});
  }
}

void KoneenVirtaPuuttuu(Tarkistusajo& ajo) {
  for (const clsIVKone& kone : ajo.rakennus.IVKoneet) {
    const bool tuloPuuttuu = kone.OnTulopuhallin() && kone.TuloIlmavirta11Teho <= 0;
    if (tuloPuuttuu || (kone.OnPoistopuhallin() && kone.PoistoIlmavirta11Teho <= 0))
      ajo.Loytyi(Konekohde(kone), {}, tuloPuuttuu ? "txtTuloIlmavirta11Teho" : "txtPoistoIlmavirta11Teho");
  }
}

void KayntiaikaPuuttuu(Tarkistusajo& ajo) {
  for (const clsIVKone& kone : ajo.rakennus.IVKoneet)
    if (!JokinJakso(kone, [](const clsKayntiAika&) { return true; })) ajo.Loytyi(Konekohde(kone));
}

/// The heat that a machine takes from its space is read of a table by the temperature of the space less the warming in
/// the fan.
void TilaEiSoviKoneelle(Tarkistusajo& ajo) {
  for (const clsIVKone& kone : ajo.rakennus.IVKoneet) {
    const clsTila* tila = ajo.rakennus.Tilat.Etsi(kone.LiittyyTilaansKey);
    if (!tila || tila->PainovoimainenIlmanvaihto) continue;
    if (JokinJakso(kone, [&](const clsKayntiAika& jakso) {
          return !OnLammitystaulukonLampotila(tila->Sisalampotila - jakso.dTPuhallin);
        }))
      ajo.Loytyi(Kohde(kone, {tila->TilanNimi, kone.KoneenTunnus}), {Muotoile(tila->Sisalampotila, kLampotila)});
  }
}

void TuloilmaEiTaulukossa(Tarkistusajo& ajo) {
  for (const clsIVKone& kone : ajo.rakennus.IVKoneet)
    if (kone.OnTulopuhallin() &&
        JokinJakso(kone, [](const clsKayntiAika& jakso) { return !jakso.LampotilatTaulukossa(); }))
      ajo.Loytyi(Konekohde(kone), {Muotoile(kone.SisaanpuhallusLampotila(), kLampotila)});
}

void PainovoimainenJaKone(Tarkistusajo& ajo) {
  for (const clsIVKone& kone : ajo.rakennus.IVKoneet)
    if (const clsTila* tila = ajo.rakennus.Tilat.Etsi(kone.LiittyyTilaansKey); tila && tila->PainovoimainenIlmanvaihto)
      ajo.Loytyi(Kohde(kone, {tila->TilanNimi, kone.KoneenTunnus}), {Muotoile(tila->PainovoimainenIVMaara, "0.0#")});
}

void LtoPuuttuu(Tarkistusajo& ajo) {
  for (const clsIVKone& kone : ajo.rakennus.IVKoneet)
    if (kone.IVPeriaateID == clsIVKone::TuloilmakonePlusLTO && kone.LtoHyotysuhde <= 0) ajo.Loytyi(Konekohde(kone));
}

void LtoSuuri(Tarkistusajo& ajo) {
  for (const clsIVKone& kone : ajo.rakennus.IVKoneet)
    if (kone.OnTalteenotto() && kone.LtoHyotysuhde > raja::kSuurinLto)
      ajo.Loytyi(Konekohde(kone), {Muotoile(kone.LtoHyotysuhde, "0.#"), Muotoile(raja::kSuurinLto, "0")});
}

/// Specific power of each fan that the machine has and air goes through, kW/(m³/s).
template <class F>
void Puhaltimittain(const clsIVKone& kone, F&& tarkista) {
  const clsPuhaltimenSahkonKulutus& puhaltimet = kone.PuhaltimienSahkonKulutus;
  if (kone.OnTulopuhallin() && kone.TuloIlmavirta11Teho > 0)
    tarkista(puhaltimet.TuloSahkoTeho11 / kone.TuloIlmavirta11Teho);
  if (kone.OnPoistopuhallin() && kone.PoistoIlmavirta11Teho > 0)
    tarkista(puhaltimet.PoistoSahkoTeho11 / kone.PoistoIlmavirta11Teho);
}

void PuhallintehoPuuttuu(Tarkistusajo& ajo) {
  for (const clsIVKone& kone : ajo.rakennus.IVKoneet) {
    bool puuttuu = false;
    Puhaltimittain(kone, [&](double ominaisteho) { puuttuu |= ominaisteho <= 0; });
    if (puuttuu) ajo.Loytyi(Konekohde(kone));
  }
}

void PuhallintehoPoikkeaa(Tarkistusajo& ajo) {
  for (const clsIVKone& kone : ajo.rakennus.IVKoneet)
    Puhaltimittain(kone, [&](double ominaisteho) {
      if (ominaisteho > 0 && (ominaisteho < raja::kPieninOminaisteho || ominaisteho > raja::kSuurinOminaisteho))
        ajo.Loytyi(Konekohde(kone), {Muotoile(ominaisteho, "0.0#"), Muotoile(raja::kPieninOminaisteho, "0.0#"),
                                     Muotoile(raja::kSuurinOminaisteho, "0.#")});
    });
}

}  // namespace

std::span<const Tarkistus> Konetarkistukset() {
  using enum Tarkistustaso;
  static constexpr std::string_view kLomake = "frmIlmanvaihtokone";
  static constexpr Tarkistus kRivit[] = {
      {"KoneIlmanTilaa",
       Puute,
       tekstit::kKoneIlmanTilaa,
       tekstit::kKoneIlmanTilaaTeksti,
       {kLomake, "cmbLiittyyTilaan"},
       KoneIlmanTilaa},
      {"IlmavirratYlipaineella",
       Ristiriita,
       tekstit::kIlmavirratYlipaineella,
       tekstit::kIlmavirratYlipaineellaTeksti,
       {"frmIVKoneYhteenveto", "lvwKoneet"},
       IlmavirratYlipaineella},
      {"KoneenVirratPoikkeavat",
       Epatodennakoinen,
       tekstit::kKoneenVirratPoikkeavat,
       tekstit::kKoneenVirratPoikkeavatTeksti,
       {kLomake, "txtTuloIlmavirta11Teho"},
       KoneenVirratPoikkeavat},
      {"KoneenVirtaPuuttuu",
       Puute,
       tekstit::kKoneenVirtaPuuttuu,
       tekstit::kKoneenVirtaPuuttuuTeksti,
       {kLomake, "txtTuloIlmavirta11Teho"},
       KoneenVirtaPuuttuu},
      {"KayntiaikaPuuttuu",
       Puute,
       tekstit::kKayntiaikaPuuttuu,
       tekstit::kKayntiaikaPuuttuuTeksti,
       {kLomake, "cmdKayntiajat"},
       KayntiaikaPuuttuu},
      {"TilaEiSoviKoneelle",
       Ristiriita,
       tekstit::kTilaEiSoviKoneelle,
       tekstit::kTilaEiSoviKoneelleTeksti,
       {kLomake, "cmbLiittyyTilaan"},
       TilaEiSoviKoneelle},
      {"TuloilmaEiTaulukossa",
       Ristiriita,
       tekstit::kTuloilmaEiTaulukossa,
       tekstit::kTuloilmaEiTaulukossaTeksti,
       {kLomake, "txtSisaanpuhallusLampotila"},
       TuloilmaEiTaulukossa},
      {"PainovoimainenJaKone",
       Muistutus,
       tekstit::kPainovoimainenJaKone,
       tekstit::kPainovoimainenJaKoneTeksti,
       {kLomake, "cmbLiittyyTilaan"},
       PainovoimainenJaKone},
      {"LtoPuuttuu",
       Puute,
       tekstit::kLtoPuuttuu,
       tekstit::kLtoPuuttuuTeksti,
       {kLomake, "txtLtoHyotysuhde"},
       LtoPuuttuu},
      {"LtoSuuri",
       Epatodennakoinen,
       tekstit::kLtoSuuri,
       tekstit::kLtoSuuriTeksti,
       {kLomake, "txtLtoHyotysuhde"},
       LtoSuuri},
      {"PuhallintehoPuuttuu",
       Puute,
       tekstit::kPuhallintehoPuuttuu,
       tekstit::kPuhallintehoPuuttuuTeksti,
       {kLomake, "cmdPuhaltimet"},
       PuhallintehoPuuttuu},
      {"PuhallintehoPoikkeaa",
       Epatodennakoinen,
       tekstit::kPuhallintehoPoikkeaa,
       tekstit::kPuhallintehoPoikkeaaTeksti,
       {kLomake, "cmdPuhaltimet"},
       PuhallintehoPoikkeaa},
  };
  return kRivit;
}
