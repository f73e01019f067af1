// SPDX-License-Identifier: GPL-3.0-or-later
// The monthly balance on the screen and in a sheet.
#include "building/Kuukausitase.h"
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "building/clsTilat.h"
#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "results/Laskentataulukko.h"
#include "tekstit/lomakkeet_asetukset.h"
#include "ui/Odotus.h"
#include "ui/Tekstivarasto.h"
#include "ui/frmKuukausitase.h"

namespace {

constexpr const char* kKokonaisina = "### ##0";

/// How a term is drawn: losses and gains in columns of their own, the demand as a line. Sums and shares aren't drawn.
struct Sarja {
  Tasetermi termi;
  int pino;
};
constexpr Sarja kSarjat[] = {
    {Tasetermi::Johtuminen, 0}, {Tasetermi::Ilmanvaihtokoneet, 0},
    {Tasetermi::Vuotoilma, 0},  {Tasetermi::Sahko, 1},
    {Tasetermi::Henkilot, 1},   {Tasetermi::Aurinko, 1},
    {Tasetermi::IVKuormat, 1},  {Tasetermi::Tarve, Kaaviosarja::kViiva},
};

constexpr Tasetermi Termi(std::size_t i) { return static_cast<Tasetermi>(i); }

bool OnSuhde(Tasetermi termi) { return termi == Tasetermi::Hyvaksikayttoaste; }

std::string TerminNimi(Tasetermi termi) { return Teksti(tekstit::kTasetermit[static_cast<std::size_t>(termi)]); }

/// A ratio is shown per cent.
double Naytettava(Tasetermi termi, double arvo) { return OnSuhde(termi) ? arvo * 100 : arvo; }

std::vector<std::string> KuukausienNimet() {
  std::vector<std::string> nimet;
  for (const Tekstinumero kuukausi : tekstit::kKuukaudet) nimet.push_back(Teksti(kuukausi));
  return nimet;
}

/// Name, months and the year of a term.
Luettelorivi TerminRivi(const Kuukausitase& tase, Tasetermi termi) {
  Luettelorivi rivi{{TerminNimi(termi)}};
  for (const double arvo : tase[termi]) rivi.LisaaLuku(Naytettava(termi, arvo), kKokonaisina);
  rivi.LisaaLuku(Naytettava(termi, tase.Vuosi(termi)), kKokonaisina);
  return rivi;
}

std::string NormitusTekstina(const Kuukausitase& tase) {
  if (tase.vyohyke <= 0) return Teksti(tekstit::kLammontarveEiNormitettavissa);
  return Teksti(tekstit::kLammontarveNormitettuna) + " " + Muotoile(tase.Vuosi(Tasetermi::Tarve), "### ##0") +
         " kWh × " + Muotoile(tase.paikkakunta, "### ##0") + " °Cd / " + Muotoile(tase.vyohyke, "### ##0") +
         " °Cd = " + Muotoile(tase.NormitettuTarve(), "### ##0.00") + " MWh/a";
}

void TaytaTaulukko(const frmKuukausitase& lomake, const Kuukausitase& tase) {
  Luettelosisalto sisalto;
  for (std::size_t i = 0; i < kTasetermeja; ++i) sisalto.rivit.push_back(TerminRivi(tase, Termi(i)));
  sisalto.summat = std::move(sisalto.rivit.back().solut);  // the demand
  sisalto.rivit.pop_back();
  lomake.lvwTase.Tayta(std::move(sisalto));
}

Laskentataulukko Taulukoksi(const frmKuukausitase& lomake, const Kuukausitase& tase) {
  Laskentataulukko taulukko = TaulukkoLuettelosta(lomake.lvwTase, lomake.Otsikko());
  taulukko.huomautukset.push_back(NormitusTekstina(tase));
  return taulukko;
}

void Nayta(const Kuukausitase& tase, const std::string& nimi) {
  frmKuukausitase lomake;
  lomake.Otsikko(Teksti(tekstit::kKuukausitase) + ": " + nimi);
  TaytaTaulukko(lomake, tase);
  lomake.chtTase.Kaavio(TaseenKaavio(tase, nimi));
  lomake.lblNormitus.Otsikko(NormitusTekstina(tase));
  lomake.TallennaTaulukko = [&](const std::string& tiedosto) {
    TallennaLaskentataulukko(Taulukoksi(lomake, tase), Teksti(tekstit::kKuukausitase), tiedosto);
    return true;
  };
  lomake.NaytaModaalisena();
}

/// Computes under the hourglass, which ends before the person is shown anything.
template <class Lasku>
Kuukausitase Odottaen(Lasku&& lasku) {
  const Odotus odotus;
  return lasku();
}

}  // namespace

Kaaviotiedot TaseenKaavio(const Kuukausitase& tase, const std::string& otsikko) {
  Kaaviotiedot kaavio{.otsikko = otsikko, .nimet = KuukausienNimet(), .yksikko = Teksti(tekstit::kKWh)};
  for (const Sarja& s : kSarjat)
    kaavio.sarjat.push_back({TerminNimi(s.termi), {tase[s.termi].begin(), tase[s.termi].end()}, s.pino});
  return kaavio;
}

void NaytaKuukausitase(clsRakennus& rakennus) try {
  const Kuukausitase tase = Odottaen([&] { return LaskeKuukausitase(rakennus); });
  Nayta(tase, rakennus.Perustiedot.KohteenNimi + ", " + Teksti(tekstit::kKokoRakennus));
} catch (...) {
  NostaVirhe("Kuukausitase:NaytaKuukausitase Function");
}

void NaytaKuukausitase(clsRakennus& rakennus, clsTila& tila) try {
  const Kuukausitase tase = Odottaen([&] { return LaskeKuukausitase(rakennus, tila); });
  Nayta(tase, rakennus.Perustiedot.KohteenNimi + ", " + tila.TilanNimi);
} catch (...) {
  NostaVirhe("Kuukausitase:NaytaKuukausitase Function");
}
