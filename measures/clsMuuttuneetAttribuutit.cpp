// SPDX-License-Identifier: GPL-3.0-or-later
#include "measures/clsMuuttuneetAttribuutit.h"

#include <algorithm>

#include "kernel/Kirjainkoko.h"
#include "kernel/Virhe.h"
#include "tekstit/virheet.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsMuuttuneetAttribuutit::TyypinNimi>("TyypinNimi"),
    Arvo<&clsMuuttuneetAttribuutit::LiittyyInstanssiin>("LiittyyInstanssiin"),
};

/// Members that change together.
constexpr std::pair<std::string_view, std::string_view> kParit[] = {
    {"U_arvo", "LaskeU_arvoMateriaaleista"},
    {"LaskentatapaTehopohjainen", "LaskentatapaEnergiapohjainen"},
    {"LiittyyTilaansKey", "LiittyyTilaanStr"},
};

/// The name of a choice without what tells its index and its text apart.
std::string_view Valinta(std::string_view nimi) {
  for (const std::string_view paate : {"ID", "Str"})
    if (nimi.ends_with(paate)) return nimi.substr(0, nimi.size() - paate.size());
  return nimi;
}

bool NimetOvatPari(std::string_view a, std::string_view b) {
  return SamaNimi(Valinta(a), Valinta(b)) || std::ranges::any_of(kParit, [&](const auto& pari) {
           return (a == pari.first && b == pari.second) || (b == pari.first && a == pari.second);
         });
}

}  // namespace

const Luokka clsMuuttuneetAttribuutit::kLuokka{"clsMuuttuneetAttribuutit", kJasenet, Luokka::Osallistuu::EiRekisteriin};
const Tunniste clsMuuttuneetAttribuutit::kViittausPuuttuu = "ViittausPuuttuu";

void clsMuuttuneetAttribuutit::Lisaa(const Muutos& muutos) try {
  clsMuuttunutAttribuutti& uusi = Add(Tunniste::Uusi(clsMuuttunutAttribuutti::kLuokka.NimiSana()));
  uusi.clsTypeName = muutos.clsTypeName;
  uusi.AttribuutinNimi = muutos.attribuutinNimi;
  uusi.TietoTyyppi = static_cast<std::int32_t>(muutos.tietoTyyppi);
  uusi.InstanssiId = muutos.instanssiId;
  uusi.ArvoEnnen = muutos.arvoEnnen;
  uusi.ArvoJalkeen = muutos.arvoJalkeen;
  uusi.ArvoEnnenStr = muutos.arvoEnnenStr;
  uusi.ArvoJalkeenStr = muutos.arvoJalkeenStr;
} catch (...) {
  NostaVirhe("clsMuuttuneetAttribuutit:Lisaa Method");
}

bool clsMuuttuneetAttribuutit::OvatPari(const clsMuuttunutAttribuutti& a, const clsMuuttunutAttribuutti& b) {
  return a.InstanssiId == b.InstanssiId && NimetOvatPari(a.AttribuutinNimi, b.AttribuutinNimi);
}

void clsMuuttuneetAttribuutit::PoistaPareineen(const Tunniste& avain) try {
  const clsMuuttunutAttribuutti poistettava = Item(avain);
  PoistaJos([&](const clsMuuttunutAttribuutti& muutos) { return OvatPari(muutos, poistettava); });
} catch (...) {
  NostaVirhe("clsMuuttuneetAttribuutit:PoistaPareineen Method");
}

void clsMuuttuneetAttribuutit::LuokatEroavat(const Olio& tama, const Olio& toinen) {
  NaytaVirhe(virheet::kLuokatEroavat, std::string(tama.LuokanNimi()) + ", " + std::string(toinen.LuokanNimi()));
}
