// SPDX-License-Identifier: GPL-3.0-or-later
#include "supply/Tariffiluettelo.h"

#include <cmath>

#include "kernel/Hakemistot.h"
#include "kernel/Tietokanta.h"
#include "kernel/Virhe.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "ui/Tekstivarasto.h"

namespace {

const std::string kYhteiset = "SELECT Id, Nimi, Perusmaksu, Hintavuosi, Lahde, Tila, ";
constexpr int kYhteisia = 6;
constexpr int kMaksuja = 4;
constexpr double kProsentti = 100;

Tietokanta Luettelo() { return Tietokanta(Aineistotiedosto("Tariffiluettelo.mdb")); }

void LueYhteiset(const Kysely& kysely, Tariffirivitiedot& rivi) {
  rivi.Id = static_cast<std::int32_t>(kysely.Kokonais(0));
  rivi.Nimi = kysely.Teksti(1);
  rivi.Perusmaksu = kysely.Luku(2);
  rivi.Hintavuosi = static_cast<int>(kysely.Kokonais(3));
  rivi.Lahde = kysely.Teksti(4);
  rivi.Tila = kysely.Teksti(5);
}

/// The class's entry of the tax list, where the settings hold its tax to the cent.
std::int16_t Veroluokka(int luokka, double vero) {
  constexpr double kSentti = 0.01;
  const auto valinta = luokka == 1 ? clsTariffi::Luokka1 : clsTariffi::Luokka2;
  return std::abs(*clsTariffi::LuokanVero(valinta) - vero) < kSentti / 2 ? valinta : clsTariffi::MuuVero;
}

void AsetaSahkovero(int luokka, const std::string& paiva, clsTariffi& tariffi) {
  const auto vero = VeroPaivana("sahkovero" + std::to_string(luokka), paiva);
  tariffi.Energiavero = vero.value_or(0);
  tariffi.EnergiaveroID = Veroluokka(luokka, tariffi.Energiavero);
  tariffi.EnergiaveroStr =
      Valintalista("frmSahkotariffi", "cmbSahkoVeroTyyppi").at(static_cast<std::size_t>(tariffi.EnergiaveroID));
}

}  // namespace

double Tariffirivi::Keskihinta() const {
  double summa = Energiavero;
  for (const Maksu& maksu : Maksut) summa += maksu.Hinta * maksu.Kulutusosuus / kProsentti;
  return summa;
}

std::vector<Tariffirivi> LueTariffit(clsTariffi::Laji laji) try {
  const Tietokanta kanta = Luettelo();
  Kysely kysely(kanta,
                kYhteiset +
                    "Tehomaksu, Tehomaksunperuste, Loistehomaksu, Loistehomaksunperuste, MuuMaksu, Energiavero, "
                    "Veroluokka, Maksu1Nimi, Maksu1Hinta, Maksu1Osuus, Maksu2Nimi, Maksu2Hinta, Maksu2Osuus, "
                    "Maksu3Nimi, Maksu3Hinta, Maksu3Osuus, Maksu4Nimi, Maksu4Hinta, Maksu4Osuus "
                    "FROM Tariffi WHERE Laji = ? ORDER BY rowid",
                int{laji});
  std::vector<Tariffirivi> rivit;
  while (kysely.Seuraava()) {
    Tariffirivi& rivi = rivit.emplace_back();
    LueYhteiset(kysely, rivi);
    rivi.Laji = laji;
    int sarake = kYhteisia;
    for (double* luku : {&rivi.Tehomaksu, &rivi.TehomaksunMaaraytymisperuste, &rivi.Loistehomaksu,
                         &rivi.LoistehomaksunMaaraytymisperuste, &rivi.MuuMaksu, &rivi.Energiavero})
      *luku = kysely.Luku(sarake++);
    rivi.Veroluokka = static_cast<int>(kysely.Kokonais(sarake++));
    for (int i = 0; i < kMaksuja; ++i, sarake += 3)
      if (kysely.Luku(sarake + 2) > 0)
        rivi.Maksut.push_back({std::string(kysely.Teksti(sarake)), kysely.Luku(sarake + 1), kysely.Luku(sarake + 2)});
  }
  return rivit;
} catch (...) {
  NostaVirhe("Tariffiluettelo:LueTariffit Function");
}

std::vector<Vesitariffirivi> LueVesitariffit() try {
  const Tietokanta kanta = Luettelo();
  Kysely kysely(kanta, kYhteiset + "PuhdasVesi, Jatevesi FROM Vesitariffi ORDER BY rowid");
  std::vector<Vesitariffirivi> rivit;
  while (kysely.Seuraava()) {
    Vesitariffirivi& rivi = rivit.emplace_back();
    LueYhteiset(kysely, rivi);
    rivi.PuhdasVesi = kysely.Luku(kYhteisia);
    rivi.Jatevesi = kysely.Luku(kYhteisia + 1);
  }
  return rivit;
} catch (...) {
  NostaVirhe("Tariffiluettelo:LueVesitariffit Function");
}

std::optional<double> VeroPaivana(const std::string& nimike, const std::string& paiva) try {
  const Tietokanta kanta = Luettelo();
  Kysely kysely(kanta, "SELECT Arvo FROM Vero WHERE Nimike = ? AND ? BETWEEN Alkaa AND Paattyy", nimike, paiva);
  if (!kysely.Seuraava()) return std::nullopt;
  return kysely.Luku(0);
} catch (...) {
  NostaVirhe("Tariffiluettelo:VeroPaivana Function");
}

void TaytaTariffi(const Tariffirivi& rivi, clsTariffi& tariffi, const std::string& paiva) try {
  const bool lampo = tariffi.Tariffityyppi == clsTariffi::LampoTariffi;
  tariffi.Nimi = rivi.Nimi;
  tariffi.ALV = lampo ? Asetukset().dblLampoALV : Asetukset().dblSahkoALV;
  tariffi.Perusmaksu = rivi.Perusmaksu;
  tariffi.Tehomaksu = rivi.Tehomaksu;
  tariffi.TehomaksunMaaraytymisperuste = rivi.TehomaksunMaaraytymisperuste;
  tariffi.Loistehomaksu = rivi.Loistehomaksu;
  tariffi.LoistehomaksunMaaraytymisperuste = rivi.LoistehomaksunMaaraytymisperuste;
  tariffi.MuuMaksu = rivi.MuuMaksu;
  tariffi.Energiavero = rivi.Energiavero;
  if (rivi.Veroluokka > 0) AsetaSahkovero(rivi.Veroluokka, paiva, tariffi);
  const clsTariffi uusi;
  for (int i = 1; i <= clsTariffi::kMaksuja; ++i) {
    const auto paikka = static_cast<std::size_t>(i) - 1;
    const Tariffirivi::Maksu maksu =
        paikka < rivi.Maksut.size() ? rivi.Maksut[paikka] : Tariffirivi::Maksu{uusi.Maksu(i).Nimi};
    tariffi.Maksu(i).Nimi = maksu.Nimi;
    tariffi.Maksu(i).Hinta = maksu.Hinta;
    tariffi.Maksu(i).Kulutusosuus = maksu.Kulutusosuus;
  }
} catch (...) {
  NostaVirhe("Tariffiluettelo:TaytaTariffi Function");
}

void TaytaTariffi(const Vesitariffirivi& rivi, clsVesitariffi& tariffi) {
  tariffi.Nimi = rivi.Nimi;
  tariffi.ALV = Asetukset().dblVesiALV;
  tariffi.Perusmaksu = rivi.Perusmaksu;
  tariffi.MuuMaksu = tariffi.Vesivirtamaksu = 0;
  tariffi.PuhdasVesi().Hinta = rivi.PuhdasVesi;
  tariffi.PuhdasVesi().Kulutusosuus = kProsentti;
  tariffi.Jatevesi().Hinta = rivi.Jatevesi;
  tariffi.Jatevesi().Kulutusosuus = kProsentti;
}
