// SPDX-License-Identifier: GPL-3.0-or-later
#include "measures/clsMuuttuneetAttribuutit.h"

#include "kernel/Virhe.h"
#include "tekstit/virheet.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsMuuttuneetAttribuutit::TyypinNimi>("TyypinNimi"),
    Arvo<&clsMuuttuneetAttribuutit::LiittyyInstanssiin>("LiittyyInstanssiin"),
};

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

void clsMuuttuneetAttribuutit::LuokatEroavat(const Olio& tama, const Olio& toinen) {
  NaytaVirhe(virheet::kLuokatEroavat, std::string(tama.LuokanNimi()) + ", " + std::string(toinen.LuokanNimi()));
}
