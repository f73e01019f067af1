// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/server/Selain.h"

#include <algorithm>
#include <sstream>

#include "kernel/Virhe.h"
#include "tekstit/lomakkeet_kirjasto.h"
#include "tekstit/viestit.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"

void KerroViat(const Kirjastot& kirjastot) {
  for (const auto& [kirjasto, teksti] :
       {std::pair{Kirjasto::Oma, tekstit::kOmaaEiLueta}, {Kirjasto::Vakio, tekstit::kVakiotaEiLueta}})
    if (const std::string& vika = kirjastot.Vika(kirjasto); !vika.empty())
      Ilmoita(Teksti(teksti) + "\n" + vika, Teksti(tekstit::kVirhe), Vakavuus::Varoitus);
}

bool KirjoitaKirjastoon(int epaonnistui, const std::function<void()>& kirjoita) {
  try {
    kirjoita();
  } catch (const Virhe& virhe) {
    Ilmoita(Teksti(epaonnistui) + " " + virhe.SyynKuvaus(), Teksti(tekstit::kVirhe), Vakavuus::Virhe);
    return false;
  }
  IlmoitaMuutos();
  return true;
}

std::vector<std::string> Kirjastorivit() {
  return {Teksti(tekstit::kKaikkiKirjastot), Teksti(tekstit::kOmaKirjasto), Teksti(tekstit::kVakiokirjasto)};
}

std::optional<Kirjasto> ValittuKirjasto(const ComboBox& valinta) {
  if (valinta.Indeksi() <= 0) return std::nullopt;
  return valinta.Indeksi() == 1 ? Kirjasto::Oma : Kirjasto::Vakio;
}

std::string KirjastonLyhenne(Kirjasto kirjasto) {
  return Teksti(kirjasto == Kirjasto::Oma ? tekstit::kOma : tekstit::kVakio);
}

void TaytaEhdot(const ComboBox& valinta, const std::vector<std::string>& rivit) {
  const std::string ennen = valinta.Indeksi() > 0 ? valinta.Teksti() : std::string();
  std::vector<std::string> kaikki{Teksti(tekstit::kKaikki)};
  kaikki.insert(kaikki.end(), rivit.begin(), rivit.end());
  const auto it = std::ranges::find(kaikki, ennen);
  valinta.Rivit(kaikki);
  valinta.Indeksi(it == kaikki.end() ? 0 : static_cast<int>(it - kaikki.begin()));
}

std::string EhtojenTeksti(const std::vector<Ohjain*>& ehdot) {
  std::string teksti;
  for (const Ohjain* ehto : ehdot) {
    const auto rivi = static_cast<std::size_t>(ehto->Indeksi());
    const bool lista = ehto->Tyyppi() == Ohjaintyyppi::ComboBox;
    teksti += (!lista ? ehto->Teksti() : rivi < ehto->Rivit().size() ? ehto->Rivit()[rivi].front() : "") + '\n';
  }
  return teksti;
}

void PalautaEhdot(const std::vector<Ohjain*>& ehdot, const std::string& teksti) {
  std::istringstream rivit(teksti);
  std::string arvo;
  for (Ohjain* ehto : ehdot) {
    if (!std::getline(rivit, arvo)) return;
    if (ehto->Tyyppi() != Ohjaintyyppi::ComboBox) {
      ehto->Teksti(arvo);
      continue;
    }
    const auto it = std::ranges::find(ehto->Rivit(), arvo, [](const auto& rivi) { return rivi.front(); });
    if (it != ehto->Rivit().end()) ehto->Indeksi(static_cast<int>(it - ehto->Rivit().begin()));
  }
}

std::string ValittuEhto(const ComboBox& valinta) { return valinta.Indeksi() > 0 ? valinta.Teksti() : std::string(); }

void LiitaNappaimet(const ListView& lista, const CommandButton& uusi, const CommandButton& poista) {
  const auto paina = [](const CommandButton& nappi) {
    return [nappi] {
      if (nappi.Kaytossa()) nappi.Kohde().KayttajaPainaa();
    };
  };
  lista.KunLisataan(paina(uusi));
  lista.KunPoistetaan(paina(poista));
}
