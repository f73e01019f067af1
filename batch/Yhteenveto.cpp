// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/Tulokset.h"
#include "building/Tasehaarukka.h"
#include "building/clsRakennus.h"
#include "kernel/Luvut.h"

namespace {

constexpr std::size_t kNimisarake = 34, kLukusarake = 12;
constexpr double kkWhperMWh = 1000;

/// Characters of a UTF-8 text: its bytes less the continuation bytes.
std::size_t Merkkeja(std::string_view teksti) {
  std::size_t n = 0;
  for (const char tavu : teksti) n += (static_cast<unsigned char>(tavu) & 0xC0) != 0x80;
  return n;
}

std::string Vasemmalle(std::string teksti, std::size_t leveys) {
  teksti.append(leveys - std::min(leveys, Merkkeja(teksti)), ' ');
  return teksti;
}

std::string Oikealle(const std::string& teksti, std::size_t leveys) {
  return std::string(leveys - std::min(leveys, Merkkeja(teksti)), ' ') + teksti;
}

class Taulu {
 public:
  Taulu(std::ostream& tulos, double ala, double tilavuus) : tulos_(tulos), ala_(ala), tilavuus_(tilavuus) {
    Rivi("", "MWh/a", "kWh/m²,a", "kWh/m³,a");
  }
  void Luku(const std::string& nimi, double mwh) {
    Rivi(nimi, Muotoile(mwh, "### ##0.00"), Ominaisarvo(mwh, ala_), Ominaisarvo(mwh, tilavuus_));
  }
  void Viiva() { tulos_ << "  " << std::string(kNimisarake + 3 * kLukusarake, '-') << '\n'; }

 private:
  static std::string Ominaisarvo(double mwh, double jakaja) {
    return jakaja > 0 ? Muotoile(mwh * kkWhperMWh / jakaja, "0.00") : "-";
  }
  void Rivi(const std::string& nimi, const std::string& a, const std::string& b, const std::string& c) {
    tulos_ << "  " << Vasemmalle(nimi, kNimisarake) << Oikealle(a, kLukusarake) << Oikealle(b, kLukusarake)
           << Oikealle(c, kLukusarake) << '\n';
  }

  std::ostream& tulos_;
  double ala_, tilavuus_;
};

}  // namespace

void KirjoitaYhteenveto(std::ostream& tulos, const std::string& tiedosto, clsRakennus& rakennus,
                        const KerataanViestit& viestit) {
  const Tasehaarukka haarukka(rakennus);
  const clsPerustiedot& tiedot = rakennus.Perustiedot;
  tulos << tiedot.KohteenNimi << "  (" << tiedosto << ")\n"
        << "  " << tiedot.Kayttotarkoitus << ", " << tiedot.LammTarveLukuPaikkakunta << ", "
        << Muotoile(tiedot.BruttoAla, "### ##0") << " m², " << Muotoile(tiedot.Kokonaistilavuus, "### ##0")
        << " m³\n\n";

  const double tilat = rakennus.VuotuinenLampoEnergianTarveTilat();
  const double koneet = rakennus.VuotuinenIVjalkilammitysLampo();
  const double kayttovesi = rakennus.VuotuisetLKVHaviot();
  const double prosessivesi = rakennus.VuotuisetProsessiVesiHaviot();
  const double yhteensa = tilat + koneet + kayttovesi + prosessivesi + rakennus.MuuLampo;
  const double mitattu = rakennus.ToteutunutNormitettuLampo();

  Taulu taulu(tulos, tiedot.BruttoAla, tiedot.Kokonaistilavuus);
  taulu.Luku("Tilojen lämmitys", tilat);
  taulu.Luku("Ilmanvaihdon jälkilämmitys", koneet);
  taulu.Luku("Käyttöveden lämmitys", kayttovesi);
  taulu.Luku("Prosessiveden lämmitys", prosessivesi);
  taulu.Luku("Muu lämpö", rakennus.MuuLampo);
  taulu.Viiva();
  taulu.Luku("Laskettu lämpö yhteensä", yhteensa);
  taulu.Luku("Mitattu, normeerattu lämpö", mitattu);
  taulu.Luku("Erotus (mitattu − laskettu)", mitattu - yhteensa);
  taulu.Luku("Säätöhäviöt", rakennus.VuotuisetSaatohaviot());
  taulu.Luku("Lämmöntuotannon häviöt", rakennus.VuotuisetLammonKonversiohaviot());
  taulu.Luku("Ostettava lämpö (brutto)", rakennus.VuotuinenBruttoLampoEnergia());
  for (const Viesti& viesti : viestit.Naytetyt()) tulos << "\n  Huom. " << viesti.teksti << '\n';
  tulos << '\n';
}
