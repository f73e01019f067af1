// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/clsTyyppiTiedot.h"

#include <algorithm>
#include <array>
#include <map>
#include <mutex>
#include <stdexcept>

#include "kernel/Hakemistot.h"
#include "kernel/Kirjainkoko.h"
#include "kernel/Tietokanta.h"
#include "kernel/Virhe.h"

namespace {

/// Columns of a class's table that aren't attributes.
constexpr std::array<std::string_view, 9> kEiAttribuutteja{
    "ObjID", "ParentID", "InstanssiId", "MyRealNameInParentObj", "OrderID", "Col", "Count", "Item", "ListaItem"};

std::vector<std::string> LueAttribuutit(const Tietokanta& kanta, const std::string& taulu) {
  std::vector<std::string> nimet;
  const Kysely kysely(kanta, "SELECT * FROM " + Lainaa(taulu) + " LIMIT 0");
  for (int i = 0; i < kysely.Sarakkeita(); ++i) {
    const std::string_view nimi = kysely.SarakkeenNimi(i);
    if (std::ranges::none_of(kEiAttribuutteja, [&](auto ei) { return SamaNimi(ei, nimi); })) nimet.emplace_back(nimi);
  }
  return nimet;
}

std::vector<clsTyyppiTieto> LueLuokat(const std::string& tiedosto) {
  const Tietokanta kanta(tiedosto);
  std::vector<clsTyyppiTieto> luokat;
  for (Kysely rivit(kanta, "SELECT Name FROM ClassTypes"); rivit.Seuraava();) {
    const std::string nimi(rivit.Teksti(0));
    luokat.emplace_back(nimi, LueAttribuutit(kanta, nimi));
  }
  return luokat;
}

}  // namespace

clsTyyppiTieto::clsTyyppiTieto(std::string nimi, std::vector<std::string> attribuutit)
    : clsNimi(std::move(nimi)), clsAttribuutit(std::move(attribuutit)), luokka_(Luokka::Nimella(clsNimi)) {
  if (!luokka_) return;
  for (const std::string& attribuutti : clsAttribuutit)
    if (const Jasen* jasen = luokka_->Etsi(attribuutti)) jasenet_.push_back(jasen);
  std::ranges::copy_if(jasenet_, std::back_inserter(oliojasenet_), &Jasen::OnOlio);
}

Tyyppiluettelo::Tyyppiluettelo(const std::string& tiedosto)
    : tiedot_(LueLuokat(tiedosto)), hakemisto_(Luokka::Kaikki().size()) {
  for (const clsTyyppiTieto& tieto : tiedot_)
    if (const Luokka* luokka = tieto.LuokanTiedot()) hakemisto_[luokka->Numero()] = &tieto;
}

std::shared_ptr<const Tyyppiluettelo> Tyyppiluettelo::Hae(const std::string& tiedosto) {
  static std::mutex lukko;
  static std::map<std::string, std::shared_ptr<const Tyyppiluettelo>> luetut;
  const std::scoped_lock varaus(lukko);
  auto& luettelo = luetut[tiedosto];
  if (!luettelo) luettelo = std::make_shared<const Tyyppiluettelo>(tiedosto);
  return luettelo;
}

const clsTyyppiTieto& Tyyppiluettelo::Item(std::string_view clsNimi) const {
  for (const clsTyyppiTieto& tieto : tiedot_)
    if (SamaNimi(tieto.clsNimi, clsNimi)) return tieto;
  throw std::out_of_range("tyyppiluettelossa ei ole luokkaa " + std::string(clsNimi));
}

void clsTyyppiTiedot::AlustaTyyppitiedot(const std::string& tiedosto) try {
  luettelo_ = Tyyppiluettelo::Hae(tiedosto.empty() ? Aineistotiedosto("stemplate.tmp") : tiedosto);
  for (const clsTyyppiTieto& tieto : *luettelo_)
    if (tieto.LuokanTiedot()) Nimet.Lisaa(*tieto.LuokanTiedot());
} catch (...) {
  NostaVirhe("clsTyyppiTiedot:AlustaTyyppitiedot Method");
}
