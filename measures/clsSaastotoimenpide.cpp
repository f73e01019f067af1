// SPDX-License-Identifier: GPL-3.0-or-later
#include "measures/clsSaastotoimenpide.h"

#include "building/clsPerustiedot.h"
#include "building/clsTila.h"
#include "kernel/Paivamaara.h"
#include "kernel/Tulos.h"
#include "kernel/Virhe.h"
#include "measures/Muunnelmaketju.h"
#include "measures/Toimenpidekohde.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "tekstit/tulokset.h"
#include "tekstit/viestit.h"
#include "ui/Odotus.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr double kSallittuMuutos = 0.1;  // MWh/a or m³/a

/// The object before: stored with the measure when the measure owns it, else as a reference to the live object.
constexpr Jasen EnnenJasen() {
  Jasen j{"Ennen", Laji::Olio, {}};
  j.olio = [](Olio& o) -> Olio* { return static_cast<clsSaastotoimenpide&>(o).KelluvaEnnen.get(); };
  j.luo = [](Olio& o) -> Olio& {
    auto& toimenpide = static_cast<clsSaastotoimenpide&>(o);
    return toimenpide.KelluvaEnnen.Luo(toimenpide.MuuttuneetAttribuutit.TyypinNimi);
  };
  j.viittaus = true;
  return j;
}

using Toimenpide = clsSaastotoimenpide;

/// A figure that is computed from the rest: it is no content of its own, though the file keeps it.
constexpr Jasen Laskettu(Jasen jasen) {
  jasen.kopio = true;
  return jasen;
}

Alvprosentit Alvt() { return Asetukset().NaytettavatAlvt(); }

/// A figure of the three before, of those after, or of what is saved.
template <auto Hae, double Hyodykkeet::*Suure>
constexpr Tulos Kulutustulos(std::string_view nimi, Tekstinumero teksti, std::string_view yksikko = "MWh/a") {
  return Lukutulos<[](Toimenpide& t) { return Hae(t).*Suure; }>(nimi, teksti, yksikko);
}
template <double Kustannussaastot::*Era>
constexpr Tulos Kustannustulos(std::string_view nimi, Tekstinumero teksti) {
  return Lukutulos<[](Toimenpide& t) { return t.Kustannussaasto().*Era; }>(nimi, teksti, "€/a");
}

constexpr auto kEnnen = [](Toimenpide& t) { return t.KulutusEnnen(); };
constexpr auto kJalkeen = [](Toimenpide& t) { return t.KulutusJalkeen(); };
constexpr auto kSaasto = [](Toimenpide& t) { return t.Saasto(); };

constexpr Tulos kTulokset[] = {
    Avaintulos(),
    Tekstitulos<&Toimenpide::Nimi>("Nimi"),
    Kulutustulos<kEnnen, &Hyodykkeet::lampo>("LampoEnergiaEnnen", tekstit::kLampoEnnen),
    Kulutustulos<kJalkeen, &Hyodykkeet::lampo>("LampoEnergiaJalkeen", tekstit::kLampoJalkeen),
    Kulutustulos<kEnnen, &Hyodykkeet::sahko>("SahkoEnergiaEnnen", tekstit::kSahkoEnnen),
    Kulutustulos<kJalkeen, &Hyodykkeet::sahko>("SahkoEnergiaJalkeen", tekstit::kSahkoJalkeen),
    Kulutustulos<kEnnen, &Hyodykkeet::vesi>("VedenkulutusEnnen", tekstit::kVesiEnnen, "m³/a"),
    Kulutustulos<kJalkeen, &Hyodykkeet::vesi>("VedenkulutusJalkeen", tekstit::kVesiJalkeen, "m³/a"),
    Kulutustulos<kSaasto, &Hyodykkeet::lampo>("SaastoLampoEnergia", tekstit::kLampoEnergianSaasto),
    Kulutustulos<kSaasto, &Hyodykkeet::sahko>("SaastoSahkoEnergia", tekstit::kSahkoEnergianSaasto),
    Kulutustulos<kSaasto, &Hyodykkeet::vesi>("SaastoVedenKulutus", tekstit::kVedenSaasto, "m³/a"),
    Lukutulos<&Toimenpide::SaastoLoisTeho>("SaastoLoisTeho", tekstit::kLoistehonSaasto, "kVAr"),
    Lukutulos<&Toimenpide::SaastoPatoTeho>("SaastoPatoTeho", tekstit::kSahkotehonSaasto, "kW"),
    Lukutulos<&Toimenpide::SaastoLampoteho>("SaastoLampoteho", tekstit::kLampotehonSaasto, "kW"),
    Lukutulos<&Toimenpide::Investointi>("Investointi", tekstit::kToimenpiteenInvestointi, "€"),
    Kustannustulos<&Kustannussaastot::lampoEnergia>("KustannusSaastoLampoEnergia",
                                                    tekstit::kLampoEnergianKustannussaasto),
    Kustannustulos<&Kustannussaastot::lampoTeho>("KustannusSaastoLampoTeho", tekstit::kLampotehonKustannussaasto),
    Kustannustulos<&Kustannussaastot::sahkoEnergia>("KustannusSaastoSahkoEnergia",
                                                    tekstit::kSahkoEnergianKustannussaasto),
    Kustannustulos<&Kustannussaastot::sahkoPatoTeho>("KustannusSaastoSahkoPatoTeho",
                                                     tekstit::kSahkotehonKustannussaasto),
    Kustannustulos<&Kustannussaastot::sahkoLoisTeho>("KustannusSaastoSahkoLoisTeho",
                                                     tekstit::kLoistehonKustannussaasto),
    Kustannustulos<&Kustannussaastot::vesi>("KustannusSaastoVesi", tekstit::kVedenKustannussaasto),
    Lukutulos<[](Toimenpide& t) { return t.KustannusSaastoYhteensa(Alvt()); }>(
        "KustannusSaastoYhteensa", tekstit::kKustannussaastoYhteensa, "€/a"),
    Lukutulos<[](Toimenpide& t) { return t.Takaisinmaksuaika(Alvt()); }>(
        "Takaisinmaksuaika", tekstit::kToimenpiteenTakaisinmaksuaika, "a", "### ##0.0"),
    Lukutulos<[](Toimenpide& t) { return t.Ostosaasto().hinta.Yhteensa(); }>("KustannusSaastoTariffein",
                                                                             tekstit::kKustannussaastoTariffein, "€/a"),
    Lukutulos<[](Toimenpide& t) { return t.Ostosaasto().paastot; }>("PaastoSaasto", tekstit::kPaastojenVahenema, "t/a"),
    Kokoelmatulos<&Toimenpide::MuuttuneetAttribuutit>("Muutokset"),
};

/// What couldn't be written, told when the model is itself again: each change of an unknown kind by itself, the others
/// together.
void KerroOhitetut(const std::vector<Muunnelma::Ohitettu>& ohitetut) {
  std::string muut;
  for (const Muunnelma::Ohitettu& ohitettu : ohitetut)
    if (ohitettu.tuntematonTyyppi)
      Ilmoita(std::to_string(ohitettu.rivi) + Teksti(tekstit::kTuntematonTietotyyppi) + " " +
                  Teksti(tekstit::kMuutMuutoksetTehdaan) + "\n" + Teksti(tekstit::kOminaisuusJaTietotyyppi) + " " +
                  ohitettu.nimi + ", " + std::to_string(ohitettu.tuntematonTyyppi),
              Teksti(tekstit::kHuomautus), Vakavuus::Varoitus);
    else
      muut += "\n" + ohitettu.nimi;
  if (!muut.empty())
    Ilmoita(Teksti(tekstit::kMuutoksiaOhitettiin) + muut, Teksti(tekstit::kHuomautus), Vakavuus::Varoitus);
}

}  // namespace

constexpr Jasen clsSaastotoimenpide::kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Lapsi<&clsSaastotoimenpide::MuuttuneetAttribuutit>("MuuttuneetAttribuutit"),
    Laskettu(Ominaisuus<Toimenpide, [](const Toimenpide& o) { return o.LampoEnergiaEnnen(); },
                        [](Toimenpide& o, double arvo) { o.LampoEnergiaEnnen(arvo); }, &Toimenpide::lampoEnnen_>(
        "LampoEnergiaEnnen", "MWh/a")),
    Kopio<&clsSaastotoimenpide::LampoEnergiaJalkeen>("LampoEnergiaJalkeen", "MWh/a"),
    Laskettu(Ominaisuus<Toimenpide, [](const Toimenpide& o) { return o.SahkoEnergiaEnnen(); },
                        [](Toimenpide& o, double arvo) { o.SahkoEnergiaEnnen(arvo); }, &Toimenpide::sahkoEnnen_>(
        "SahkoEnergiaEnnen", "MWh/a")),
    Kopio<&clsSaastotoimenpide::SahkoEnergiaJalkeen>("SahkoEnergiaJalkeen", "MWh/a"),
    Laskettu(Ominaisuus<Toimenpide, [](const Toimenpide& o) { return o.VedenkulutusEnnen(); },
                        [](Toimenpide& o, double arvo) { o.VedenkulutusEnnen(arvo); }, &Toimenpide::vesiEnnen_>(
        "VedenkulutusEnnen", "m³/a")),
    Kopio<&clsSaastotoimenpide::VedenkulutusJalkeen>("VedenkulutusJalkeen", "m³/a"),
    Arvo<&Alkio::sKey>("sKey"),
    Kopio<&clsSaastotoimenpide::JalkeenTiedotUpToDate>("JalkeenTiedotUpToDate"),
    Kopio<&clsSaastotoimenpide::EnnenTiedotUpToDate>("EnnenTiedotUpToDate"),
    Arvo<&clsSaastotoimenpide::SahkoLoisTehoHinta>("SahkoLoisTehoHinta", "€/kVAr"),
    Arvo<&clsSaastotoimenpide::SahkoPatoTehoHinta>("SahkoPatoTehoHinta", "€/kW"),
    Arvo<&clsSaastotoimenpide::LampoTehoHinta>("LampoTehoHinta", "€/kW"),
    Arvo<&clsSaastotoimenpide::VesiHinta>("VesiHinta", "€/m³"),
    Arvo<&clsSaastotoimenpide::SahkoEnergiaHinta>("SahkoEnergiaHinta", "€/MWh"),
    Arvo<&clsSaastotoimenpide::LampoEnergiaHinta>("LampoEnergiaHinta", "€/MWh"),
    Arvo<&clsSaastotoimenpide::SaastoLoisTeho>("SaastoLoisTeho", "kVAr"),
    Arvo<&clsSaastotoimenpide::SaastoPatoTeho>("SaastoPatoTeho", "kW"),
    Arvo<&clsSaastotoimenpide::SaastoLampoteho>("SaastoLampoteho", "kW"),
    Arvo<&clsSaastotoimenpide::Investointi>("Investointi", "€"),
    Arvo<&clsSaastotoimenpide::TekninenKayttoika>("TekninenKayttoika", Suure("a").Rajat(0, 200)),
    Arvo<&clsSaastotoimenpide::Kuvaus>("Kuvaus"),
    Arvo<&clsSaastotoimenpide::Nimi>("Nimi"),
    Arvo<&clsSaastotoimenpide::ToimenpiteenPaivays>("ToimenpiteenPaivays"),
    Arvo<&clsSaastotoimenpide::ToimenpiteenTekijanNimi>("ToimenpiteenTekijanNimi"),
    EnnenJasen(),
};

const Luokka clsSaastotoimenpide::kLuokka{"clsSaastotoimenpide", kJasenet, Luokka::Osallistuu::EiRekisteriin,
                                          kTulokset};

clsSaastotoimenpide::clsSaastotoimenpide()
    : ToimenpiteenPaivays(TamaPaiva()),
      ToimenpiteenTekijanNimi("In Excel: '" + Asetukset().strCurrentUserRealName + "', In login: '" +
                              Asetukset().strCurrentUserName + "'") {}

void clsSaastotoimenpide::AsetaEnnen(double& tieto, double arvo) noexcept {
  if (arvo < tieto - kSallittuMuutos || arvo > tieto + kSallittuMuutos)
    EnnenTiedotUpToDate = JalkeenTiedotUpToDate = false;
  tieto = arvo;
}

void clsSaastotoimenpide::OtaHinnat() try {
  const clsPerustiedot& tiedot = koti_.Rakennus().Perustiedot;
  const clsEnergiamuodot& lampo = tiedot.LammonHankinta.Energiamuodot;
  const clsEnergiamuodot& sahko = tiedot.SahkonHankinta.Energiamuodot;
  LampoEnergiaHinta = lampo.Keskihinta();
  LampoTehoHinta = lampo.TehoKeskihinta();
  SahkoEnergiaHinta = sahko.Keskihinta();
  SahkoPatoTehoHinta = sahko.TehoKeskihinta();
  SahkoLoisTehoHinta = sahko.LoisTehoKeskihinta();
  VesiHinta = tiedot.VedenHankinta.Energiamuodot.Keskihinta();
} catch (...) {
  NostaVirhe("clsSaastotoimenpide:OtaHinnat Method");
}

Olio* clsSaastotoimenpide::Ennen() try {
  if (Kelluva()) return &KelluvaEnnen.Luo(MuuttuneetAttribuutit.TyypinNimi);
  return koti_.Rakennus().HaeInstanssi(MuuttuneetAttribuutit.TyypinNimi, MuuttuneetAttribuutit.LiittyyInstanssiin).olio;
} catch (...) {
  NostaVirhe("clsSaastotoimenpide:Ennen Method");
}

std::unique_ptr<Olio> clsSaastotoimenpide::TeeJalkeen() try {
  std::unique_ptr<Olio> jalkeen = Kelluva() ? TeeKelluva() : TeeLiitetty();
  jalkeen->InstanssiId = Tunniste::Uusi(jalkeen->LuokanTiedot().NimiSana());
  return jalkeen;
} catch (...) {
  NostaVirhe("clsSaastotoimenpide:TeeJalkeen Method", Virheenkohde{Nimi});
}

std::unique_ptr<Olio> clsSaastotoimenpide::TeeLiitetty() {
  std::unique_ptr<Olio> jalkeen;
  std::vector<Muunnelma::Ohitettu> ohitetut;
  {
    const Muunnelma muunnelma(koti_.Rakennus(), MuuttuneetAttribuutit);
    const Olio* kohde = Ennen();
    if (!kohde) throw std::runtime_error("toimenpiteen kohdetta ei enää ole");
    jalkeen = KopioiToimenpidekohde(*kohde);
    ohitetut = muunnelma.Ohitetut();
  }
  KerroOhitetut(ohitetut);
  return jalkeen;
}

std::unique_ptr<Olio> clsSaastotoimenpide::TeeKelluva() {
  std::unique_ptr<Olio> jalkeen = KopioiToimenpidekohde(*Ennen());
  for (const clsMuuttunutAttribuutti& muutos : MuuttuneetAttribuutit) {
    const Jasen* jasen = jalkeen->LuokanTiedot().Etsi(muutos.AttribuutinNimi);
    if (jasen && jasen->aseta) muutos.Kirjoita(*jalkeen, *jasen);
  }
  return jalkeen;
}

void clsSaastotoimenpide::PaivitaMuuttuneetAttribuutit(Olio& jalkeen) try {
  const Odotus odotus(Teksti(tekstit::kVerrataanEnnenJaJalkeen));
  Olio* ennen = Ennen();
  if (!ennen) throw std::runtime_error("toimenpiteen kohdetta ei enää ole");
  clsMuuttuneetAttribuutit muutokset;
  VertaileOliot(jalkeen, *ennen, muutokset, koti_.Rakennus().TyyppiTiedot);
  for (clsMuuttunutAttribuutti& muutos : muutokset)
    if (muutos.InstanssiId == jalkeen.InstanssiId) muutos.InstanssiId = ennen->InstanssiId;
  KiinnitaUArvot(jalkeen, muutokset);
  MuuttuneetAttribuutit.Tyhjenna();
  for (const clsMuuttunutAttribuutti& muutos : muutokset) muutos.Kopioi(MuuttuneetAttribuutit.Add(muutos.sKey));
  JalkeenTiedotUpToDate = false;
} catch (...) {
  NostaVirhe("clsSaastotoimenpide:PaivitaMuuttuneetAttribuutit Method", Virheenkohde{Nimi});
}

/// Layers are no part of a variation. A U-value that has changed with them therefore acts only where it isn't computed
/// from the layers that the live structure has: the flag that says so is False in the variation.
void clsSaastotoimenpide::KiinnitaUArvot(Olio& jalkeen, clsMuuttuneetAttribuutit& muutokset) const {
  constexpr std::string_view kLippu = "LaskeU_arvoMateriaaleista";
  if (&jalkeen.LuokanTiedot() != &clsTila::kLuokka) return;
  const auto etsi = [&](const clsRakenne& rakenne, std::string_view nimi) -> const clsMuuttunutAttribuutti* {
    for (const clsMuuttunutAttribuutti& muutos : muutokset)
      if (muutos.InstanssiId == rakenne.InstanssiId && muutos.AttribuutinNimi == nimi) return &muutos;
    return nullptr;
  };
  for (const clsRakenne& rakenne : static_cast<const clsTila&>(jalkeen).Rakenteet) {
    if (!rakenne.LaskeU_arvoMateriaaleista || !etsi(rakenne, "U_arvo")) continue;
    if (const clsMuuttunutAttribuutti* lippu = etsi(rakenne, kLippu))
      muutokset.Remove(lippu->sKey);  // it was False before and stays so
    else
      muutokset.Lisaa({kLippu, rakenne.LuokanNimi(), Laji::Totuus, rakenne.InstanssiId, -1, 0});
  }
}

void clsSaastotoimenpide::PeruMuutos(const Tunniste& muutos) try {
  MuuttuneetAttribuutit.PoistaPareineen(muutos);
  JalkeenTiedotUpToDate = false;
} catch (...) {
  NostaVirhe("clsSaastotoimenpide:PeruMuutos Method", Virheenkohde{Nimi});
}

void clsSaastotoimenpide::PaivitaKulutukset() try {
  const Odotus odotus(Teksti(tekstit::kLasketaanVaikutuksia) + " ");
  Muunnelmalaskin laskin(koti_.Rakennus());
  PaivitaKulutukset(laskin);
} catch (...) {
  NostaVirhe("clsSaastotoimenpide:PaivitaKulutukset Method", Virheenkohde{Nimi});
}

void clsSaastotoimenpide::PaivitaKulutukset(Muunnelmalaskin& laskin) try {
  if (!EnnenTiedotUpToDate) {
    const Hyodykkeet perusta = laskin.Perusta();
    LampoEnergiaEnnen(perusta.lampo);
    SahkoEnergiaEnnen(perusta.sahko);
    VedenkulutusEnnen(perusta.vesi);
    EnnenTiedotUpToDate = true;
  }
  KulutusJalkeen(Kelluva() ? LaskeKelluva(laskin) : laskin.Laske(MuuttuneetAttribuutit));
} catch (...) {
  NostaVirhe("clsSaastotoimenpide:PaivitaKulutukset Method", Virheenkohde{Nimi});
}

/// The building isn't touched: the difference of the group's own consumption is taken from the figures before. Saved
/// electricity raises the need of heat by that part of it which has warmed the rooms.
Hyodykkeet clsSaastotoimenpide::LaskeKelluva(Muunnelmalaskin& laskin) {
  Hyodykkeet tulos{lampoEnnen_, sahkoEnnen_, vesiEnnen_};
  if (MuuttuneetAttribuutit.TyypinNimi == clsSahkonKulutusryhma::kLuokka.Nimi()) {
    const auto& ennen = static_cast<const clsSahkonKulutusryhma&>(*Ennen());
    const auto jalkeen = TeeKelluva();
    const double osuus = ennen.EnergiaHyodynnetaanLammityksessa ? laskin.Hyotyosuus(ennen.LiittyyTilaansKey) : 0;
    tulos.sahko =
        sahkoEnnen_ - (ennen.Vuosikulutus() - static_cast<const clsSahkonKulutusryhma&>(*jalkeen).Vuosikulutus());
    tulos.lampo = lampoEnnen_ + (sahkoEnnen_ - tulos.sahko) * osuus;
  } else if (MuuttuneetAttribuutit.TyypinNimi == clsVedenKulutusryhma::kLuokka.Nimi()) {
    const auto& ennen = static_cast<const clsVedenKulutusryhma&>(*Ennen());
    const auto muutettu = TeeKelluva();
    const auto& jalkeen = static_cast<const clsVedenKulutusryhma&>(*muutettu);
    tulos.lampo = lampoEnnen_ - (ennen.VedenLammityksenEnergia() - jalkeen.VedenLammityksenEnergia());
    tulos.vesi = vesiEnnen_ - (ennen.VedenKulutus() - jalkeen.VedenKulutus());
  } else {
    Ilmoita("Toimintovirhe. Tänne ei pitäisi tulla. clsSaastotoimenpide:PaivitaKulutukset -metodi");
    return {LampoEnergiaJalkeen, SahkoEnergiaJalkeen, VedenkulutusJalkeen};
  }
  return tulos;
}

Hyodykkeet clsSaastotoimenpide::KulutusEnnen() try {
  if (!EnnenTiedotUpToDate) PaivitaKulutukset();
  return {lampoEnnen_, sahkoEnnen_, vesiEnnen_};
} catch (...) {
  NostaVirhe("clsSaastotoimenpide:KulutusEnnen Method");
}

Hyodykkeet clsSaastotoimenpide::KulutusJalkeen() try {
  if (!EnnenTiedotUpToDate || !JalkeenTiedotUpToDate) PaivitaKulutukset();
  return {LampoEnergiaJalkeen, SahkoEnergiaJalkeen, VedenkulutusJalkeen};
} catch (...) {
  NostaVirhe("clsSaastotoimenpide:KulutusJalkeen Method");
}

Hyodykkeet clsSaastotoimenpide::Saasto() try {
  const Hyodykkeet ennen = KulutusEnnen();
  return ennen - KulutusJalkeen();
} catch (...) {
  NostaVirhe("clsSaastotoimenpide:Saasto Method");
}

void clsSaastotoimenpide::KulutusJalkeen(const Hyodykkeet& kulutus) noexcept {
  LampoEnergiaJalkeen = kulutus.lampo;
  SahkoEnergiaJalkeen = kulutus.sahko;
  VedenkulutusJalkeen = kulutus.vesi;
  JalkeenTiedotUpToDate = true;
}

Kustannussaastot clsSaastotoimenpide::Kustannussaasto(const Hyodykkeet& saasto) const noexcept {
  return {.lampoEnergia = LampoEnergiaHinta * saasto.lampo,
          .lampoTeho = LampoTehoHinta * SaastoLampoteho,
          .sahkoEnergia = SahkoEnergiaHinta * saasto.sahko,
          .sahkoPatoTeho = SahkoPatoTehoHinta * SaastoPatoTeho,
          .sahkoLoisTeho = SahkoLoisTehoHinta * SaastoLoisTeho,
          .vesi = VesiHinta * saasto.vesi};
}

Ostot clsSaastotoimenpide::Ostosaasto() try {
  Muunnelmalaskin laskin(koti_.Rakennus());
  return Ostosaasto(laskin);
} catch (...) {
  NostaVirhe("clsSaastotoimenpide:Ostosaasto Method", Virheenkohde{Nimi});
}

Ostot clsSaastotoimenpide::Ostosaasto(Muunnelmalaskin& laskin) try {
  const Hyodykkeet perusta = laskin.Perusta();
  const Ostot ennen = laskin.PerustanOstot(perusta);
  if (Kelluva()) return ennen - laskin.PerustanOstot(perusta - Saasto());
  Muunnelmaketju ketju(laskin);
  return ennen - ketju.LaskeOstot(ketju.Liita(MuuttuneetAttribuutit));
} catch (...) {
  NostaVirhe("clsSaastotoimenpide:Ostosaasto Method", Virheenkohde{Nimi});
}
