// SPDX-License-Identifier: GPL-3.0-or-later
#include "lifecycle/Elinkaarihierarkia.h"

#include <algorithm>
#include <span>
#include <unordered_map>
#include <utility>

#include "building/clsRakennus.h"
#include "building/clsTilat.h"
#include "tekstit/elinkaari.h"
#include "ui/Tekstivarasto.h"
#include "ventilation/clsIVKoneet.h"

namespace {

/// A node that a tree has in every building.
struct Vakiosolmu {
  std::string_view avain;
  std::string_view vanhempi;  // empty: the root
  Tekstinumero teksti;
  enum { Aina, KunnesOmia, OmienKanssa } esiintyy = Aina;  // against objects of the building in its place or below it
};

constexpr Vakiosolmu kPerustamissolmut[] = {
    {"Kaikki", "", tekstit::kPerustamissolmut[0]},
    {"EV", "Kaikki", tekstit::kPerustamissolmut[1]},
    {"L1", "EV", tekstit::kPerustamissolmut[2]},
    {"S1", "EV", tekstit::kPerustamissolmut[3]},
    {"J", "Kaikki", tekstit::kPerustamissolmut[4]},
    {"US1", "J", tekstit::kPerustamissolmut[5]},
    {"Tila2", "US1", tekstit::kPerustamissolmut[6], Vakiosolmu::KunnesOmia},
    {"Tila3", "US1", tekstit::kPerustamissolmut[7], Vakiosolmu::KunnesOmia},
    {"Ikk", "J", tekstit::kPerustamissolmut[8]},
    {"Ikk1", "Ikk", tekstit::kPerustamissolmut[9], Vakiosolmu::KunnesOmia},
    {"Ap3", "J", tekstit::kPerustamissolmut[10]},
    {"yp3", "J", tekstit::kPerustamissolmut[11]},
    {"kanvs", "J", tekstit::kPerustamissolmut[12]},
    {"kevvs", "J", tekstit::kPerustamissolmut[13]},
    {"Ovi", "J", tekstit::kOvisolmu, Vakiosolmu::OmienKanssa},
    {"Vp", "J", tekstit::kValipohjasolmu, Vakiosolmu::OmienKanssa},
    {"Runko", "Kaikki", tekstit::kPerustamissolmut[14]},
    {"Pil", "Runko", tekstit::kPerustamissolmut[15]},
    {"Pal", "Runko", tekstit::kPerustamissolmut[16]},
    {"LVI", "Kaikki", tekstit::kPerustamissolmut[17]},
    {"Lammjar", "LVI", tekstit::kPerustamissolmut[18]},
    {"Vesiviem", "LVI", tekstit::kPerustamissolmut[19]},
    {"Han", "Vesiviem", tekstit::kPerustamissolmut[20]},
    {"Suih", "Vesiviem", tekstit::kPerustamissolmut[21]},
    {"WC", "Vesiviem", tekstit::kPerustamissolmut[22]},
    {"IV", "LVI", tekstit::kPerustamissolmut[23]},
    {"IV1", "IV", tekstit::kPerustamissolmut[24], Vakiosolmu::KunnesOmia},
    {"Kylma", "LVI", tekstit::kPerustamissolmut[25]},
    {"Paine", "LVI", tekstit::kPerustamissolmut[26]},
    {"Hoyry", "LVI", tekstit::kPerustamissolmut[27]},
    {"Palo", "LVI", tekstit::kPerustamissolmut[28]},
    {"MuuLvi", "LVI", tekstit::kPerustamissolmut[29]},
    {"Sah", "Kaikki", tekstit::kPerustamissolmut[30]},
    {"Alue", "Sah", tekstit::kPerustamissolmut[31]},
    {"Kytk", "Sah", tekstit::kPerustamissolmut[32]},
    {"Joh", "Sah", tekstit::kPerustamissolmut[33]},
    {"JohVar", "Sah", tekstit::kPerustamissolmut[34]},
    {"Val", "Sah", tekstit::kPerustamissolmut[35]},
    {"Lamm", "Sah", tekstit::kPerustamissolmut[36]},
    {"Er", "Sah", tekstit::kPerustamissolmut[37]},
    {"Tieto", "Kaikki", tekstit::kPerustamissolmut[38]},
    {"Puh", "Tieto", tekstit::kPerustamissolmut[39]},
    {"Ant", "Tieto", tekstit::kPerustamissolmut[40]},
    {"AAn", "Tieto", tekstit::kPerustamissolmut[41]},
    {"ATK", "Tieto", tekstit::kPerustamissolmut[42]},
    {"Turva", "Tieto", tekstit::kPerustamissolmut[43]},
    {"RakAut", "Tieto", tekstit::kPerustamissolmut[44]},
    {"Int", "Tieto", tekstit::kPerustamissolmut[45]},
};

constexpr Vakiosolmu kHoitosolmut[] = {
    {"Kaikki", "", tekstit::kHoitosolmut[0]},        {"Henk", "Kaikki", tekstit::kHoitosolmut[1]},
    {"Hall", "Kaikki", tekstit::kHoitosolmut[2]},    {"Kaytt", "Kaikki", tekstit::kHoitosolmut[3]},
    {"Ulkoal", "Kaikki", tekstit::kHoitosolmut[4]},  {"Siiv", "Kaikki", tekstit::kHoitosolmut[5]},
    {"Lammm", "Kaikki", tekstit::kHoitosolmut[6]},   {"Perlam", "Lammm", tekstit::kHoitosolmut[7]},
    {"Kullam", "Lammm", tekstit::kHoitosolmut[8]},   {"Vesi", "Kaikki", tekstit::kHoitosolmut[9]},
    {"Perves", "Vesi", tekstit::kHoitosolmut[10]},   {"Kulves", "Vesi", tekstit::kHoitosolmut[11]},
    {"sah", "Kaikki", tekstit::kHoitosolmut[12]},    {"Persah", "sah", tekstit::kHoitosolmut[13]},
    {"Tehsah", "sah", tekstit::kHoitosolmut[14]},    {"Kulsan", "sah", tekstit::kHoitosolmut[15]},
    {"Jate", "Kaikki", tekstit::kHoitosolmut[16]},   {"Vahin", "Kaikki", tekstit::kHoitosolmut[17]},
    {"tvuokr", "Kaikki", tekstit::kHoitosolmut[18]}, {"mVuokr", "Kaikki", tekstit::kHoitosolmut[19]},
    {"kivr", "Kaikki", tekstit::kHoitosolmut[20]},   {"Korj", "Kaikki", tekstit::kHoitosolmut[21]},
    {"muut", "Kaikki", tekstit::kHoitosolmut[22]},   {"alv", "Kaikki", tekstit::kHoitosolmut[23]},
};

/// What is bought, beside the elements.
constexpr Vakiosolmu kOstosolmut[] = {kHoitosolmut[6], kHoitosolmut[9], kHoitosolmut[12]};
constexpr std::string_view kViimeinenVaikuttava = "MuuLvi";

/// Nodes below which the structures of a kind stand.
constexpr std::pair<std::int32_t, std::string_view> kRakennesolmut[] = {
    {Rakennelaji::Ulkoseina, "US1"},
    {Rakennelaji::Ikkuna, "Ikk"},
    {Rakennelaji::Alapohja, "Ap3"},
    {Rakennelaji::Ylapohja, "yp3"},
    {Rakennelaji::KantavaValiseina, "kanvs"},
    {Rakennelaji::KevytValiseina, "kevvs"},
    {Rakennelaji::Ovi, "Ovi"},
    {Rakennelaji::Valipohja, "Vp"},
};
constexpr std::string_view kKonesolmu = "IV";

std::string_view Rakennesolmu(std::int32_t rakennetyyppi) {
  for (const auto& [tyyppi, avain] : kRakennesolmut)
    if (tyyppi == rakennetyyppi) return avain;
  return {};
}

std::span<const Vakiosolmu> VaikuttavatOsat() {
  const auto viimeinen = std::ranges::find(kPerustamissolmut, kViimeinenVaikuttava, &Vakiosolmu::avain);
  return {std::begin(kPerustamissolmut), viimeinen + 1};
}

/// Objects of the building as nodes, each with the key of its parent.
class OmatSolmut {
 public:
  struct Oma {
    std::string_view vanhempi;
    Hierarkiasolmu solmu;
  };

  explicit OmatSolmut(const clsRakennus& rakennus) {
    for (const clsTila& tila : rakennus.Tilat)
      for (const clsRakenne& rakenne : tila.Rakenteet) Lisaa(rakenne);
    for (const clsIVKone& kone : rakennus.IVKoneet)
      omat_.push_back({kKonesolmu,
                       {.avain = Avain(kKonesolmu, kone.sKey.Teksti()),
                        .nimi = kone.KoneenTunnus,
                        .yksikko = "kpl",
                        .mallinMaara = 1}});
  }
  const std::vector<Oma>& Omat() const { return omat_; }
  bool Esiintyy(const Vakiosolmu& solmu) const {
    if (solmu.esiintyy == Vakiosolmu::Aina) return true;
    const bool korvaaja = solmu.esiintyy == Vakiosolmu::KunnesOmia;
    const std::string_view haara = korvaaja ? solmu.vanhempi : solmu.avain;
    return std::ranges::any_of(omat_, [&](const Oma& oma) { return oma.vanhempi == haara; }) != korvaaja;
  }

 private:
  static Tunniste Avain(std::string_view vanhempi, const std::string& nimi) {
    return Tunniste(std::string(vanhempi) + ":" + nimi);
  }
  /// Structures of one kind and name as one, in the order in which they are met.
  void Lisaa(const clsRakenne& rakenne) {
    const std::string_view vanhempi = Rakennesolmu(rakenne.Rakennetyyppi);
    if (vanhempi.empty()) return;
    const std::string nimi = rakenne.NaytettavaNimi();
    const Tunniste avain = Avain(vanhempi, nimi);
    const auto [paikka, uusi] = paikat_.try_emplace(avain, omat_.size());
    if (uusi) omat_.push_back({vanhempi, {.avain = avain, .nimi = nimi, .yksikko = "m²", .mallinMaara = 0}});
    Hierarkiasolmu& solmu = omat_[paikka->second].solmu;
    *solmu.mallinMaara += rakenne.PintaAla;
    solmu.rakenteet.push_back(&rakenne);
  }

  std::vector<Oma> omat_;
  std::unordered_map<Tunniste, std::size_t> paikat_;
};

class Rakentaja {
 public:
  void Lisaa(Hierarkiasolmu solmu, std::string_view vanhempi) {
    const auto isa = std::ranges::find(solmut_, Tunniste(vanhempi), &Hierarkiasolmu::avain);
    if (isa != solmut_.end()) {
      solmu.vanhempi = static_cast<int>(isa - solmut_.begin());
      isa->lapset.push_back(static_cast<int>(solmut_.size()));
    }
    solmut_.push_back(std::move(solmu));
  }
  void Lisaa(const Vakiosolmu& vakio) {
    Lisaa({.avain = Tunniste(vakio.avain), .nimi = Teksti(vakio.teksti)}, vakio.vanhempi);
  }
  void LisaaOsat(std::span<const Vakiosolmu> vakiot, const clsRakennus& rakennus) {
    const OmatSolmut omat(rakennus);
    for (const Vakiosolmu& vakio : vakiot)
      if (omat.Esiintyy(vakio)) Lisaa(vakio);
    for (const auto& [vanhempi, solmu] : omat.Omat()) Lisaa(solmu, vanhempi);
  }
  std::vector<Hierarkiasolmu> Solmut() && { return std::move(solmut_); }

 private:
  std::vector<Hierarkiasolmu> solmut_;
};

}  // namespace

std::vector<Hierarkiasolmu> TeeHierarkia(const clsRakennus& rakennus, Hierarkialaji laji) {
  Rakentaja puu;
  switch (laji) {
    case Hierarkialaji::Perustaminen:
      puu.LisaaOsat(kPerustamissolmut, rakennus);
      break;
    case Hierarkialaji::Hoito:
      for (const Vakiosolmu& vakio : kHoitosolmut) puu.Lisaa(vakio);
      break;
    case Hierarkialaji::Ymparisto:
      puu.LisaaOsat(VaikuttavatOsat(), rakennus);
      for (const Vakiosolmu& vakio : kOstosolmut) puu.Lisaa(vakio);
      break;
  }
  return std::move(puu).Solmut();
}
