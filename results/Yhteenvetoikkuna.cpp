// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/Yhteenvetoikkuna.h"

#include "building/clsRakennus.h"
#include "kernel/Luvut.h"
#include "kernel/Tulos.h"
#include "results/Perusteet.h"
#include "results/clsYhteenveto.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "tekstit/lomakkeet_yhteenveto.h"
#include "ui/Hiljaa.h"
#include "ui/Odotus.h"
#include "ui/Tekstivarasto.h"

namespace {

/// What is small in its unit, in a unit a thousandth of it.
struct Tuhannesosa {
  std::string_view yksikko, tuhannesosa;
};
constexpr Tuhannesosa kTuhannesosat[] = {{"MWh/m", "kWh/m"}, {"t/m", "kg/m"}, {"m³/m", "dm³/m"}};

bool OnOminainen(const Tulos& tulos) { return tulos.nimi.starts_with("Tun"); }

/// The area or the volume that a specific figure is taken over.
double Jakaja(const clsYhteenveto& yhteenveto, const Tulos& tulos) {
  return tulos.nimi.ends_with('1') ? yhteenveto.Kuutiot : yhteenveto.Neliot;
}

/// "---" when the result can't be computed.
std::string Naytettava(const Tulos& tulos, const Tuloskohde& kohde, double kerroin, std::string_view kuvio) {
  try {
    return Muotoile(tulos.Arvo(kohde) * kerroin, kuvio);
  } catch (const std::exception&) {
    return Teksti(tekstit::kEiLaskettavissa);
  }
}

void NaytaTarkempi(const TextBox& kentta, const Tulos& tulos, const Tuloskohde& kohde) {
  for (const auto& [yksikko, tuhannesosa] : kTuhannesosat)
    if (tulos.yksikko.starts_with(yksikko))
      kentta.Vihje(Teksti(tulos.teksti) + ": " + Naytettava(tulos, kohde, 1000, tulos.kuvio) + " " +
                   std::string(tuhannesosa) + std::string(tulos.yksikko.substr(yksikko.size())));
}

std::string Riveina(const std::vector<std::string>& rivit) {
  std::string teksti;
  for (const std::string& rivi : rivit) teksti += (teksti.empty() ? "" : "\n") + rivi;
  return teksti;
}

}  // namespace

Yhteenvetoikkuna::Yhteenvetoikkuna(clsRakennus& rakennus) : rakennus_(rakennus) {
  lomake_.OkKlikattu = [this] { lomake_.Sulje(); };
  const auto paivita = [this] {
    const Hiljaisuus hiljaisuus;  // what is amiss stands in the window
    if (lomake_.Auki()) Paivita();
  };
  lomake_.RahatMuuttuivat = paivita;
  tilaus_ = rakennus_.TilaaMuutokset(paivita);
}

void Yhteenvetoikkuna::Nayta() {
  Paivita();
  lomake_.Nayta();
}

void Yhteenvetoikkuna::Paivita() {
  const Odotus odotus;
  clsYhteenveto yhteenveto;
  yhteenveto.LueDataluokka(rakennus_);
  Tayta(yhteenveto);
}

void Yhteenvetoikkuna::Tayta(clsYhteenveto& yhteenveto) {
  const Tuloskohde kohde{yhteenveto};
  for (const Tulos& tulos : clsYhteenveto::kLuokka.Tulokset()) {
    if (tulos.laji != Tuloslaji::Vuosi) continue;  // the area and the volume
    const TextBox kentta = lomake_.Kentta(tulos.nimi);
    const bool jaettavissa = !OnOminainen(tulos) || Jakaja(yhteenveto, tulos) > 0;
    kentta.Teksti(jaettavissa ? Naytettava(tulos, kohde, 1, tulos.kuvio) : std::string());
    if (OnOminainen(tulos) && jaettavissa) NaytaTarkempi(kentta, tulos, kohde);
  }
  lomake_.Rahayksikko = Asetukset().strDefaultCurrencyUnit;
  lomake_.Laske();
  lomake_.lblMitattu.Otsikko(yhteenveto.Vertailuvuosi == 0
                                 ? Teksti(tekstit::kMitattuEiVuotta)
                                 : Teksti(tekstit::kMitattuVuonna) + " " + std::to_string(yhteenveto.Vertailuvuosi));
  lomake_.lblHuomautukset.Otsikko(Riveina(yhteenveto.Huomautukset));
  lomake_.lblHuomautukset.Nakyva(!yhteenveto.Huomautukset.empty());
  lomake_.lblPerusteet.Otsikko(Rahaperuste() + "\n" + Paastoperuste());
}
