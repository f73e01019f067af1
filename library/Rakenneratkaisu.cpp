// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/Rakenneratkaisu.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Rakenneratkaisu::Nimi>("Nimi"),
    Arvo<&Rakenneratkaisu::Kuvaus>("Kuvaus"),
    Arvo<&Rakenneratkaisu::Rakennetyyppi>("Rakennetyyppi"),
    Lapsi<&Rakenneratkaisu::Kerrokset>("Kerrokset"),
    Arvo<&Rakenneratkaisu::Paloluokka>("Paloluokka"),
    Arvo<&Rakenneratkaisu::Rw>("Rw", Suure("dB").Rajat(0).Tavallisesti(0, 100)),
    Arvo<&Rakenneratkaisu::Paksuus>("Paksuus", Suure("mm").Rajat(0).Tavallisesti(0, 2000)),
    Arvo<&Rakenneratkaisu::Pistemaiset>("Pistemaiset", Suure("kpl").Rajat(0)),
    Arvo<&Rakenneratkaisu::PistemaisetWpK>("PistemaisetWpK", Suure("W/K").Rajat(0).Tavallisesti(0, 10)),
    Arvo<&Rakenneratkaisu::Viivamaiset>("Viivamaiset", Suure().Rajat(0)),
    Arvo<&Rakenneratkaisu::ViivamaisetWpK>("ViivamaisetWpK", Suure("W/K").Rajat(0).Tavallisesti(0, 5)),
    Arvo<&Rakenneratkaisu::PintavastusSisa>("PintavastusSisa", Suure("m²K/W").Rajat(0).Tavallisesti(0, 0.3)),
    Arvo<&Rakenneratkaisu::PintavastusUlko>("PintavastusUlko", Suure("m²K/W").Rajat(0).Tavallisesti(0, 0.3)),
    Arvo<&Rakenneratkaisu::KerrostenMassaYht>("KerrostenMassaYht", Suure("kg/m²").Rajat(0).Tavallisesti(0, 3000)),
    Arvo<&Rakenneratkaisu::Karmikerroin>("Karmikerroin", Suure("%").Rajat(0, 100)),
    Arvo<&Rakenneratkaisu::Aurinkoenergianlapaisy>("Aurinkoenergianlapaisy", Suure("%").Rajat(0, 100)),
    Arvo<&Rakenneratkaisu::Verhokerroin>("Verhokerroin", Suure("%").Rajat(0, 100)),
    Arvo<&Rakenneratkaisu::Kokonaisvarjostuskerroin>("Kokonaisvarjostuskerroin", Suure("%").Rajat(0, 100)),
    Arvo<&Rakenneratkaisu::OnIkkuna>("OnIkkuna"),
    Arvo<&Rakenneratkaisu::U_arvoAnnettu>("U_arvoAnnettu"),
    Arvo<&Rakenneratkaisu::U_arvo>("U_arvo", Suure("W/m²K").Rajat(0).Tavallisesti(0.05, 6)),
};

/// The layers that resist, in an array that is kept from call to call: the U-value is asked for in each recalculation
/// of each structure.
std::span<const Kerros> Laskentakerrokset(const colMateriaalit& kerrokset) {
  thread_local std::vector<Kerros> laskettavat;
  laskettavat.clear();
  for (const clsRakennekerros& kerros : kerrokset)
    if (kerros.Vastustaa()) laskettavat.push_back(kerros.Laskentakerros());
  return laskettavat;
}

void AsetaIkkunanKertoimet(Rakenneratkaisu& ratkaisu) {
  ratkaisu.OnIkkuna = true;
  ratkaisu.Aurinkoenergianlapaisy = 70;
  ratkaisu.Karmikerroin = 75;
  ratkaisu.Verhokerroin = 75;
}

}  // namespace

const Luokka Rakenneratkaisu::kLuokka("Rakenneratkaisu", kJasenet, Luokka::Osallistuu::EiKumpaankaan);

std::optional<double> Rakenneratkaisu::LaskeU_arvo() const {
  const auto laskettavat = Laskentakerrokset(Kerrokset);
  if (laskettavat.empty()) return std::nullopt;
  const bool pinnatAnnettu = PintavastusSisa > 0 || PintavastusUlko > 0;
  const Pintavastukset pinnat =
      pinnatAnnettu ? Pintavastukset{PintavastusSisa, PintavastusUlko} : Oletuspintavastukset(Rakennetyyppi);
  return LammonlapaisyU(laskettavat, pinnat.sisa, pinnat.ulko);
}

std::optional<double> Rakenneratkaisu::VoimassaolevaU_arvo() const {
  if (!U_arvoAnnettu)
    if (const auto laskettu = LaskeU_arvo()) return laskettu;
  return U_arvo > 0 ? std::optional<double>(U_arvo) : std::nullopt;
}

void Rakenneratkaisu::PaivitaKerrossummat() {
  if (Kerrokset.Count() == 0) return;
  double paksuus = 0, massa = 0;
  for (const clsRakennekerros& kerros : Kerrokset) {
    paksuus += kerros.Paksuus;
    massa += kerros.Massa();
  }
  Paksuus = static_cast<float>(paksuus);
  KerrostenMassaYht = static_cast<float>(massa);
}

Rakenneratkaisu PuuttuvaRakenneratkaisu(const std::string& id, std::int32_t rakennetyyppi) {
  Rakenneratkaisu ratkaisu;
  ratkaisu.Nimi = "Puuttuvan IDn: " + id + " rakenne";
  ratkaisu.Rakennetyyppi = RakennetyypinSana(rakennetyyppi);
  ratkaisu.U_arvoAnnettu = true;
  const std::string puuttuvan = "Puuttuvan rakenteen (IDn: " + id + ") ";
  clsRakennekerros& kerros = ratkaisu.Kerrokset.LisaaKerros();
  kerros.Nimi = puuttuvan + "rakennekerros";
  kerros.Materiaali.Nimi = puuttuvan + "rakennekerroksen materiaali";
  if (rakennetyyppi == Rakennelaji::Ikkuna) AsetaIkkunanKertoimet(ratkaisu);
  return ratkaisu;
}
