// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmKuukausitase.h"

#include "tekstit/lomakkeet_asetukset.h"
#include "ui/Tallennuskysely.h"

namespace {

constexpr Tallennettava kTaulukko{tekstit::kTallennaTaulukko, tekstit::kTaulukkotiedostot, ".xlsx"};
constexpr Tallennettava kKuva{tekstit::kTallennaKuva, tekstit::kKuvatiedostot, ".png"};

}  // namespace

frmKuukausitase::frmKuukausitase() : Lomake("frmKuukausitase") {
  cmdKopioiTaulukko.KunKlikataan([this] { lvwTase.KopioiLeikepoydalle(); });
  cmdKopioiKuva.KunKlikataan([this] { chtTase.KopioiLeikepoydalle(); });
  cmdTallennaTaulukko.KunKlikataan([this] { KysyJaTallenna(kTaulukko, TallennaTaulukko); });
  cmdTallennaKuva.KunKlikataan([this] {
    KysyJaTallenna(kKuva, [this](const std::string& tiedosto) { return chtTase.TallennaKuva(tiedosto); });
  });
  cmdSulje.KunKlikataan([this] { Sulje(); });
}
