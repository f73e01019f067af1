// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/Energiamuotomuutokset.h"

#include "building/clsPerustiedot.h"
#include "kernel/Luvut.h"
#include "kernel/Tulos.h"
#include "kernel/Virhe.h"
#include "tekstit/hankinta_ja_toimenpiteet.h"
#include "ui/Tekstivarasto.h"
#include "ui/frmEnergiamuotomuutokset.h"

namespace {

struct Nimike {
  std::string clsEnergiamuoto::*teksti;
  int nimi;
};
constexpr Nimike kNimikkeet[] = {
    {&clsEnergiamuoto::Nimi, tekstit::kMuodonNimi},
    {&clsEnergiamuoto::Kuvaus, tekstit::kMuodonKuvaus},
    {&clsEnergiamuoto::Yksikko, tekstit::kMuodonYksikko},
};

/// Adds the rows of one form.
class Vertailu {
 public:
  Vertailu(Taulukko& rivit, const std::string& hankinta, clsEnergiamuoto& ennen)
      : rivit_(rivit), hankinta_(hankinta), ennen_(ennen) {}

  void Vertaa(clsEnergiamuoto& jalkeen) const {
    for (const Nimike& n : kNimikkeet)
      if (ennen_.*n.teksti != jalkeen.*n.teksti) Lisaa(Teksti(n.nimi), ennen_.*n.teksti, jalkeen.*n.teksti);
    VertaaLukuja(Teksti(tekstit::kMuodonHyotysuhde), ennen_.Hyotysuhde, jalkeen.Hyotysuhde, "0.0##");
    for (const Tulos& tulos : clsEnergiamuoto::kLuokka.Tulokset())
      if (tulos.OnLuku())
        VertaaLukuja(Teksti(tulos.teksti) + ", " + std::string(tulos.yksikko), tulos.Arvo({ennen_}),
                     tulos.Arvo({jalkeen}), tulos.kuvio);
  }

 private:
  void VertaaLukuja(const std::string& suure, double ennen, double jalkeen, const char* kuvio) const {
    if (ennen != jalkeen) Lisaa(suure, Muotoile(ennen, kuvio), Muotoile(jalkeen, kuvio));
  }
  void Lisaa(std::string suure, std::string ennen, std::string jalkeen) const {
    rivit_.push_back({hankinta_, ennen_.Nimi, std::move(suure), std::move(ennen), std::move(jalkeen)});
  }

  Taulukko& rivit_;
  const std::string& hankinta_;
  clsEnergiamuoto& ennen_;
};

void Vertaa(const clsEnergianHankinta& hankinta, Energiamuotokanta& kanta, Energiamuotomuutokset& muutokset) {
  const std::int32_t versio = kanta.Versio();
  for (clsEnergiamuoto* muoto : hankinta.VakiokannanMuodot()) {
    if (muoto->EnergiaMuotokannanVersio >= versio) continue;
    const auto rivi = kanta.Hae(muoto->IdEmuotoKannassa);
    if (!rivi) {
      muutokset.puuttuvat.push_back(muoto->Nimi);
      continue;
    }
    clsEnergiamuoto tuore = *muoto;
    tuore.Paivita(kanta.Muoto(*rivi));
    Vertailu(muutokset.rivit, hankinta.Nimi, *muoto).Vertaa(tuore);
  }
}

}  // namespace

Energiamuotomuutokset VertaaEnergiamuodot(const clsPerustiedot& tiedot, Energiamuotokanta& kanta) try {
  Energiamuotomuutokset muutokset;
  Vertaa(tiedot.LammonHankinta, kanta, muutokset);
  Vertaa(tiedot.SahkonHankinta, kanta, muutokset);
  return muutokset;
} catch (...) {
  NostaVirhe("Energiamuotomuutokset:VertaaEnergiamuodot Function");
}

bool HyvaksyEnergiamuotomuutokset(Taulukko rivit) {
  return rivit.empty() || frmEnergiamuotomuutokset().Kysy(std::move(rivit));
}
