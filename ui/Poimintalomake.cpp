// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Poimintalomake.h"

#include <algorithm>

#include "tekstit/lomakkeet_kulutus.h"
#include "ui/Hakuvalinta.h"
#include "ui/Tekstivarasto.h"

namespace {

/// Key of a heading. Identifiers of rows have no blank.
Tunniste OtsikonAvain(int ryhma) { return "otsikko " + std::to_string(ryhma); }

Luettelorivi Otsikkorivi(const std::string& teksti, int ryhma) {
  Luettelorivi otsikko{{teksti}, OtsikonAvain(ryhma)};
  otsikko.piirteet.lihava = true;
  return otsikko;
}

}  // namespace

Poimintalomake::Poimintalomake(std::string nimi) : Lomake(std::move(nimi)) {
  txtHaku.KunMuuttuu([this] { Nayta(); });
  lvwRivit.KunMuuttuu([this] { RiviValittu(); });
  lvwRivit.KunKlikataan([this] { Hyvaksy(); });
  cmdOk.KunKlikataan([this] { Hyvaksy(); });
  cmdPeruuta.KunKlikataan([this] { Sulje(); });
}

Tunniste Poimintalomake::Poimi(std::vector<Rivi> rivit, std::vector<std::string> otsikot) {
  rivit_ = std::move(rivit);
  otsikot_ = std::move(otsikot);
  Nayta();
  txtHaku.Kohdista();
  NaytaModaalisena();
  return poimittu_;
}

/// The rows that fit the search, the best of each heading first, and a heading where there are any.
void Poimintalomake::Nayta() {
  Taulukko haettavat;
  for (const Rivi& rivi : rivit_) haettavat.push_back({rivi.rivi.solut.front(), rivi.hakusanat});
  const std::vector<int> osumat = EtsiValinnat(haettavat, txtHaku.Teksti());
  Luettelosisalto sisalto;
  Tunniste ensimmainen;
  for (int ryhma = 0; ryhma < std::ssize(otsikot_); ++ryhma) {
    const auto ennen = sisalto.rivit.size();
    for (const int osuma : osumat) {
      const Rivi& rivi = rivit_[static_cast<std::size_t>(osuma)];
      if (rivi.ryhma != ryhma) continue;
      if (ensimmainen.Tyhja()) ensimmainen = rivi.rivi.avain;
      sisalto.rivit.push_back(rivi.rivi);
      sisalto.rivit.back().ylempi = OtsikonAvain(ryhma);
    }
    if (sisalto.rivit.size() > ennen)
      sisalto.rivit.insert(sisalto.rivit.begin() + static_cast<std::ptrdiff_t>(ennen),
                           Otsikkorivi(otsikot_[static_cast<std::size_t>(ryhma)], ryhma));
  }
  lvwRivit.Tayta(std::move(sisalto));
  lvwRivit.Valitse(ensimmainen);
  RiviValittu();
}

const Poimintalomake::Rivi* Poimintalomake::Valittu() const {
  const auto kohta = std::ranges::find(rivit_, lvwRivit.Valittu(), [](const Rivi& rivi) { return rivi.rivi.avain; });
  return kohta == rivit_.end() ? nullptr : &*kohta;
}

void Poimintalomake::RiviValittu() {
  const Rivi* rivi = Valittu();
  cmdOk.Kaytossa(rivi != nullptr);
  if (rivi) return lblSelite.Otsikko(rivi->selite);
  lblSelite.Otsikko(Teksti(lvwRivit.Rivit().empty() ? tekstit::kEiLoydyLuettelosta : tekstit::kValitseLuettelosta));
}

void Poimintalomake::Hyvaksy() {
  if (!Valittu()) return;
  poimittu_ = lvwRivit.Valittu();
  Sulje();
}
