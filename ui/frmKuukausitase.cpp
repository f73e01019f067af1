// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmKuukausitase.h"

#include "ui/Tallennuskysely.h"

namespace {

constexpr Tallennettava kTaulukko{2930, 2934, ".xlsx"};
constexpr Tallennettava kKuva{2932, 2935, ".png"};

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
