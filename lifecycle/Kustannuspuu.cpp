// SPDX-License-Identifier: GPL-3.0-or-later
#include "lifecycle/Kustannuspuu.h"

#include <algorithm>
#include <utility>

#include "building/Hankintalaskelma.h"
#include "building/Tasehaarukka.h"
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "kernel/Virhe.h"
#include "lifecycle/clsElinkaari.h"

namespace {

using Nousu = Kustannuspuu::Nousu;

/// Branches whose costs rise with the price of what is bought.
constexpr std::pair<std::string_view, Nousu> kNousevat[] = {
    {"Lammm", Nousu::Lampo}, {"Vesi", Nousu::Vesi}, {"sah", Nousu::Sahko}};

double Vuosinousu(const Elinkaarioletukset& oletukset, Nousu nousu) {
  switch (nousu) {
    case Nousu::Lampo:
      return oletukset.nousu.lampo;
    case Nousu::Sahko:
      return oletukset.nousu.sahko;
    case Nousu::Vesi:
      return oletukset.nousu.vesi;
    default:
      return 0;
  }
}

/// What a node's cost rises by, below a node of that rise.
Nousu SolmunNousu(const Tunniste& avain, Nousu ylemman) {
  for (const auto& [haara, nousu] : kNousevat)
    if (avain == Tunniste(haara)) return nousu;
  return ylemman;
}

}  // namespace

Kustannuspuu::Kustannuspuu(clsRakennus& rakennus, Laji laji) try {
  const bool hoito = laji == Laji::Hoito;
  for (Hierarkiasolmu& paikka : TeeHierarkia(rakennus, hoito ? Hierarkialaji::Hoito : Hierarkialaji::Perustaminen)) {
    Solmu& solmu = solmut_.emplace_back();
    static_cast<Hierarkiasolmu&>(solmu) = std::move(paikka);
    if (hoito) solmu.nousu = SolmunNousu(solmu.avain, solmu.vanhempi < 0 ? Nousu::Ei : solmut_[solmu.vanhempi].nousu);
  }
  if (hoito) OtaHankinta(rakennus);
  Laske(hoito ? rakennus.Elinkaari.Hoito : rakennus.Elinkaari.Perustaminen);
} catch (...) {
  NostaVirhe("Kustannuspuu:Kustannuspuu Constructor");
}

const Kustannuspuu::Solmu* Kustannuspuu::Etsi(const Tunniste& avain) const {
  const auto solmu = std::ranges::find(solmut_, avain, &Solmu::avain);
  return solmu == solmut_.end() ? nullptr : &*solmu;
}

Kustannuspuu::Solmu* Kustannuspuu::Solmuksi(std::string_view avain) {
  return const_cast<Solmu*>(Etsi(Tunniste(avain)));
}

void Kustannuspuu::OtaHankinta(clsRakennus& rakennus) {
  const Tasehaarukka haarukka(rakennus);
  const clsPerustiedot& tiedot = rakennus.Perustiedot;
  const auto ota = [&](const clsEnergianHankinta& hankinta, clsEnergianHankinta::Laji laji, std::string_view perus,
                       std::string_view teho, std::string_view kulutus) {
    const double maksut = hankinta.Energiamuodot.Vuosimaksut();
    const double tehomaksut = teho.empty() ? 0 : hankinta.Energiamuodot.Tehomaksut();
    Solmuksi(perus)->mallinArvo = maksut - tehomaksut;
    if (!teho.empty()) Solmuksi(teho)->mallinArvo = tehomaksut;
    Solmuksi(kulutus)->mallinArvo = LaskeHankinta(rakennus, laji).kustannus - maksut;
  };
  ota(tiedot.LammonHankinta, clsEnergianHankinta::Lampo, "Perlam", "", "Kullam");
  ota(tiedot.VedenHankinta, clsEnergianHankinta::Vesi, "Perves", "", "Kulves");
  ota(tiedot.SahkonHankinta, clsEnergianHankinta::Sahko, "Persah", "Tehsah", "Kulsan");
}

void Kustannuspuu::Laske(const clsElinkaarisolmut& syotetyt) {
  for (Solmu& solmu : solmut_) {
    OtaOmat(solmu);
    if (const clsElinkaarisolmu* syotetty = syotetyt.Etsi(solmu.avain)) OtaSyotetty(solmu, *syotetty);
  }
  LaskeKustannukset();
}

/// What the node is by itself.
void Kustannuspuu::OtaOmat(Solmu& solmu) {
  solmu.omaTyyppi = solmu.mallinArvo       ? clsElinkaarisolmu::Mallista
                    : solmu.lapset.empty() ? clsElinkaarisolmu::OmaArvo
                                           : clsElinkaarisolmu::SummaAlemmista;
  solmu.tyyppi = solmu.omaTyyppi;
  solmu.syotetty = false;
  solmu.laskentayksikko = solmu.yksikko;
  solmu.maaraMallista = solmu.mallinMaara.has_value();
  solmu.maara = solmu.mallinMaara;
  solmu.yksikkokustannus.reset();
  solmu.kustannus.reset();
}

void Kustannuspuu::OtaSyotetty(Solmu& solmu, const clsElinkaarisolmu& syotetty) {
  solmu.syotetty = true;
  solmu.tyyppi = syotetty.TyyppiID;
  if (!syotetty.Laskentayksikko.empty()) solmu.laskentayksikko = syotetty.Laskentayksikko;
  solmu.maaraMallista = syotetty.MaaraMallista && solmu.mallinMaara;
  if (!solmu.maaraMallista) solmu.maara = syotetty.YksikoidenMaara;
  solmu.yksikkokustannus = syotetty.Yksikkokustannus;
}

void Kustannuspuu::LaskeKustannukset() {
  for (auto solmu = solmut_.rbegin(); solmu != solmut_.rend(); ++solmu) switch (solmu->tyyppi) {
      case clsElinkaarisolmu::SummaAlemmista:
        for (const int lapsi : solmu->lapset)
          if (const auto& osa = solmut_[lapsi].kustannus) solmu->kustannus = solmu->kustannus.value_or(0) + *osa;
        break;
      case clsElinkaarisolmu::Mallista:
        solmu->kustannus = solmu->mallinArvo;
        break;
      default:
        if (solmu->maara && solmu->yksikkokustannus) solmu->kustannus = *solmu->maara * *solmu->yksikkokustannus;
    }
}

std::optional<double> Kustannuspuu::Nykyarvo(const Solmu& solmu, const Elinkaarioletukset& oletukset) const {
  if (!solmu.kustannus) return std::nullopt;
  if (solmu.tyyppi != clsElinkaarisolmu::SummaAlemmista)
    return *solmu.kustannus * Nykyarvokerroin(oletukset.pitoaika, oletukset.korko, Vuosinousu(oletukset, solmu.nousu));
  double summa = 0;
  for (const int lapsi : solmu.lapset) summa += Nykyarvo(solmut_[lapsi], oletukset).value_or(0);
  return summa;
}

std::optional<double> Kustannuspuu::Nykyarvo(const Elinkaarioletukset& oletukset) const {
  return Nykyarvo(solmut_.front(), oletukset);
}
