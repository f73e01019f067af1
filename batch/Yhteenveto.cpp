// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>

#include "batch/Tulokset.h"
#include "building/Tasehaarukka.h"
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "kernel/Luvut.h"
#include "kernel/Tulos.h"
#include "tekstit/tulokset.h"
#include "tekstit/viestit.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestikooste.h"

namespace {

constexpr const char* kValissa = "  ";
constexpr const char* kEnergia = "### ##0.00";
constexpr const char* kOminaiskulutus = "### ##0.00";
constexpr double kkWhperMWh = 1000;

constexpr std::string_view kLasketut[] = {"VuotuinenLampoEnergianTarveTilat", "VuotuinenIVjalkilammitysLampo",
                                          "VuotuisetLKVHaviot", "VuotuisetProsessiVesiHaviot"};
constexpr std::string_view kMitattu = "ToteutunutNormitettuLampo";
constexpr std::string_view kHaviotJaBrutto[] = {"VuotuisetSaatohaviot", "VuotuisetLammonKonversiohaviot",
                                                "VuotuinenBruttoLampoEnergia"};

/// Characters of a UTF-8 text: its bytes less the continuation bytes.
std::size_t Merkkeja(std::string_view teksti) {
  return static_cast<std::size_t>(
      std::ranges::count_if(teksti, [](char tavu) { return (static_cast<unsigned char>(tavu) & 0xC0) != 0x80; }));
}

std::string Taytto(std::string_view teksti, std::size_t leveys) {
  return std::string(leveys - std::min(leveys, Merkkeja(teksti)), ' ');
}

/// The number as it is shown: what sums are taken of, so that the column adds up.
double Naytetty(double mwh) { return LueLuku(Muotoile(mwh, kEnergia)).value_or(mwh); }

/// Rows of a name and numbers; as wide as its longest texts, a rule where a row is empty.
class Taulu {
 public:
  Taulu(double ala, double tilavuus) : ala_(ala), tilavuus_(tilavuus) {
    rivit_.push_back({"", "MWh/a", "kWh/m²,a", "kWh/m³,a"});
  }
  void Luku(const std::string& nimi, double mwh) {
    rivit_.push_back({nimi, Muotoile(mwh, kEnergia), Ominaisarvo(mwh, ala_), Ominaisarvo(mwh, tilavuus_)});
  }
  void Viiva() { rivit_.emplace_back(); }
  void Tulosta(std::ostream& tulos) const {
    Rivi leveydet{};
    std::array<std::size_t, kSarakkeita> merkkeja{};
    for (const Rivi& rivi : rivit_)
      for (std::size_t i = 0; i < kSarakkeita; ++i) merkkeja[i] = std::max(merkkeja[i], Merkkeja(rivi[i]));
    for (const Rivi& rivi : rivit_) TulostaRivi(tulos, rivi, merkkeja);
  }

 private:
  static constexpr std::size_t kSarakkeita = 4;
  using Rivi = std::array<std::string, kSarakkeita>;

  static std::string Ominaisarvo(double mwh, double jakaja) {
    return jakaja > 0 ? Muotoile(mwh * kkWhperMWh / jakaja, kOminaiskulutus) : "-";
  }
  static void TulostaRivi(std::ostream& tulos, const Rivi& rivi, const std::array<std::size_t, kSarakkeita>& leveydet) {
    const bool viiva = rivi == Rivi{};
    for (std::size_t i = 0; i < kSarakkeita; ++i) {
      const std::string taytto = viiva ? std::string(leveydet[i], '-') : Taytto(rivi[i], leveydet[i]);
      tulos << kValissa << (i == 0 ? rivi[i] + taytto : taytto + rivi[i]);
    }
    tulos << '\n';
  }

  double ala_, tilavuus_;
  std::vector<Rivi> rivit_;
};

/// A message on one line.
std::string Rivina(const Viesti& viesti) {
  std::string rivi;
  for (const char merkki : viesti.teksti)
    if (merkki != '\n')
      rivi += merkki;
    else if (!rivi.ends_with(' '))
      rivi += ' ';
  return rivi;
}

}  // namespace

std::vector<std::string> Viestirivit(const KerataanViestit& viestit) {
  std::vector<std::string> rivit;
  for (const Viestikooste& kooste : Koosta(viestit.Naytetyt())) rivit.push_back(Rivina(kooste.Koottu()));
  return rivit;
}

void KirjoitaYhteenveto(std::ostream& tulos, const std::string& tiedosto, clsRakennus& rakennus,
                        const KerataanViestit& viestit) {
  const Tasehaarukka haarukka(rakennus);
  const clsPerustiedot& tiedot = rakennus.Perustiedot;
  tulos << tiedot.KohteenNimi << "  (" << tiedosto << ")\n"
        << "  " << tiedot.Kayttotarkoitus << ", " << tiedot.LammTarveLukuPaikkakunta << ", "
        << Muotoile(tiedot.BruttoAla, "### ##0") << " m², " << Muotoile(tiedot.Kokonaistilavuus, "### ##0")
        << " m³\n\n";

  Taulu taulu(tiedot.BruttoAla, tiedot.Kokonaistilavuus);
  const auto luku = [&](std::string_view nimi) {
    const Tulos& rivi = clsRakennus::kLuokka.TulosNimella(nimi);
    const double arvo = Naytetty(rivi.Arvo({rakennus}));
    taulu.Luku(Teksti(rivi.teksti), arvo);
    return arvo;
  };
  double yhteensa = Naytetty(rakennus.MuuLampo);
  for (const std::string_view nimi : kLasketut) yhteensa += luku(nimi);
  taulu.Luku(Teksti(tekstit::kMuuLampoYhteensa), Naytetty(rakennus.MuuLampo));
  taulu.Viiva();
  taulu.Luku(Teksti(tekstit::kLaskettuKulutus), yhteensa);
  const double mitattu = luku(kMitattu);
  taulu.Luku(Teksti(tekstit::kMitattuVahennettynaLasketulla), mitattu - yhteensa);
  for (const std::string_view nimi : kHaviotJaBrutto) luku(nimi);
  taulu.Tulosta(tulos);
  for (const std::string& rivi : Viestirivit(viestit))
    tulos << "\n  " << Teksti(tekstit::kHuomautus) << ": " << rivi << '\n';
  tulos << '\n';
}
