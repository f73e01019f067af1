// SPDX-License-Identifier: GPL-3.0-or-later
#include "measures/Toimenpidekohde.h"

#include <stdexcept>

#include "building/clsTila.h"
#include "consumers/clsSahkonKulutusryhma.h"
#include "consumers/clsVedenKulutusryhma.h"
#include "supply/clsEnergianHankinta.h"
#include "tekstit/lomakkeet_toimenpide.h"
#include "ventilation/clsIVKone.h"

namespace {

template <class T>
std::unique_ptr<Olio> Kopio(const Olio& kohde) {
  return static_cast<const T&>(kohde).Kopioi();
}

/// The dialog of an object whose event at OK is `Tapahtuma`. The event is its listener's only meanwhile.
template <class T, auto Tapahtuma>
void Muokkaa(Olio& olio, bool tilaLukittu, std::function<void()> muuttui) {
  auto& kohde = static_cast<T&>(olio);
  auto& tapahtuma = (kohde.*Tapahtuma).arvo;
  struct Kuuntelu {
    std::function<void()>& tapahtuma;
    ~Kuuntelu() { tapahtuma = nullptr; }
  } const kuuntelu{tapahtuma};
  tapahtuma = std::move(muuttui);
  if constexpr (std::is_same_v<T, clsSahkonKulutusryhma>)
    kohde.NaytaKayttoliittyma(tilaLukittu ? T::Muokkaus::TilaLukittu : T::Muokkaus::Kaikki);
  else
    kohde.NaytaKayttoliittyma();
}

struct Kohdelaji {
  const Luokka& luokka;
  std::unique_ptr<Olio> (*kopioi)(const Olio&);
  void (*muokkaa)(Olio&, bool tilaLukittu, std::function<void()> muuttui);
  Tekstinumero moduuli;
  std::string_view kuva;
};

template <class T, auto Tapahtuma>
Kohdelaji Laji(Tekstinumero moduuli, std::string_view kuva) {
  return {T::kLuokka, Kopio<T>, Muokkaa<T, Tapahtuma>, moduuli, kuva};
}

const Kohdelaji* EtsiLaji(std::string_view luokka) {
  static const Kohdelaji kLajit[] = {
      Laji<clsTila, &clsTila::DataMuuttui>(tekstit::kModuuliJohtuminen, "ToimenpideTila"),
      Laji<clsIVKone, &clsIVKone::LampoSahkoKulutusMuuttui>(tekstit::kModuuliIlmanvaihto, "ToimenpideIVKone"),
      Laji<clsSahkonKulutusryhma, &clsSahkonKulutusryhma::DataMuuttui>(tekstit::kModuuliSahko, "ToimenpideSahko"),
      Laji<clsVedenKulutusryhma, &clsVedenKulutusryhma::DataMuuttui>(tekstit::kModuuliVesi, "ToimenpideVesi"),
      Laji<clsEnergianHankinta, &clsEnergianHankinta::OKPainettu>(tekstit::kModuuliHankinta, "ToimenpideHankinta"),
  };
  for (const Kohdelaji& laji : kLajit)
    if (laji.luokka.Nimi() == luokka) return &laji;
  return nullptr;
}

const Kohdelaji& VaadiLaji(const Olio& kohde) {
  if (const Kohdelaji* laji = EtsiLaji(kohde.LuokanNimi())) return *laji;
  throw std::invalid_argument("toimenpide ei voi koskea oliota " + std::string(kohde.LuokanNimi()));
}

}  // namespace

std::unique_ptr<Olio> KopioiToimenpidekohde(const Olio& kohde) { return VaadiLaji(kohde).kopioi(kohde); }

void MuokkaaToimenpidekohdetta(Olio& kohde, bool tilaLukittu, std::function<void()> muuttui) {
  VaadiLaji(kohde).muokkaa(kohde, tilaLukittu, std::move(muuttui));
}

Tekstinumero ToimenpiteenModuuli(std::string_view luokka) {
  const Kohdelaji* laji = EtsiLaji(luokka);
  return laji ? laji->moduuli : Tekstinumero{};
}

std::string_view ToimenpiteenKuva(std::string_view luokka) {
  const Kohdelaji* laji = EtsiLaji(luokka);
  return laji ? laji->kuva : std::string_view();
}
