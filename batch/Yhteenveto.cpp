// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/Hankintayhteenveto.h"
#include "batch/Tekstitaulu.h"
#include "batch/Toimenpideyhteenveto.h"
#include "batch/Tulokset.h"
#include "building/Tasehaarukka.h"
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "consumers/clsSahkonKulutusryhmat.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "kernel/Luvut.h"
#include "kernel/Tulos.h"
#include "tekstit/tulokset.h"
#include "tekstit/viestit.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestikooste.h"

namespace {

constexpr const char* kValissa = "  ";
constexpr const char* kMaara = "### ##0.00";
constexpr double kTuhat = 1000;

constexpr std::string_view kLasketut[] = {"VuotuinenLampoEnergianTarveTilat", "VuotuinenIVjalkilammitysLampo",
                                          "VuotuisetLKVHaviot", "VuotuisetProsessiVesiHaviot"};
constexpr std::string_view kMitattuLampo = "ToteutunutNormitettuLampo";
constexpr std::string_view kHaviotJaBrutto[] = {"VuotuisetSaatohaviot", "VuotuisetLammonKonversiohaviot",
                                                "VuotuinenBruttoLampoEnergia"};
constexpr std::string_view kSahkot[] = {"SahkoLaitteidenVuosikulutus", "LammitysSahkonVuosikulutus"};
constexpr std::string_view kVedet[] = {"VuotuinenKvKulutus", "VuotuinenKylmanProsessivedenKulutus"};

/// The number as it is shown: what sums are taken of, so that the column adds up.
double Naytetty(double arvo) { return LueLuku(Muotoile(arvo, kMaara)).value_or(arvo); }

/// Rows of a name and numbers.
class Taulu {
 public:
  /// `yksikko` of the amounts, `tuhannesosa` of those for a square metre and a cubic metre of the building.
  Taulu(const clsPerustiedot& tiedot, Tekstinumero otsikko, const std::string& yksikko, const std::string& tuhannesosa)
      : ala_(tiedot.BruttoAla),
        tilavuus_(tiedot.Kokonaistilavuus),
        taulu_({Teksti(otsikko), yksikko + "/a", tuhannesosa + "/m²,a", tuhannesosa + "/m³,a"}) {}
  /// A row of the number as it is shown, which is given back.
  double Luku(Tekstinumero nimi, double arvo) {
    arvo = Naytetty(arvo);
    taulu_.Lisaa({Teksti(nimi), Muotoile(arvo, kMaara), Ominaisarvo(arvo, ala_), Ominaisarvo(arvo, tilavuus_)});
    return arvo;
  }
  /// Rows of what was computed, given as their sum so far, and of what was measured.
  void Vertailu(double laskettu, Tekstinumero mitatunNimi, double mitattu) {
    taulu_.Viiva();
    Luku(tekstit::kLaskettuKulutus, laskettu);
    mitattu = Luku(mitatunNimi, mitattu);
    Luku(tekstit::kMitattuVahennettynaLasketulla, mitattu - laskettu);
  }
  void Tulosta(std::ostream& tulos) const {
    taulu_.Tulosta(tulos);
    tulos << '\n';
  }

 private:
  static std::string Ominaisarvo(double maara, double jakaja) {
    return jakaja > 0 ? Muotoile(maara * kTuhat / jakaja, kMaara) : "-";
  }
  double ala_, tilavuus_;
  Tekstitaulu taulu_;
};

/// Rows of the object's results; their sum.
double Tulosrivit(Taulu& taulu, Olio& olio, std::span<const std::string_view> nimet) {
  double summa = 0;
  for (const std::string_view nimi : nimet) {
    const Tulos& tulos = olio.LuokanTiedot().TulosNimella(nimi);
    summa += taulu.Luku(tulos.teksti, tulos.Arvo({olio}));
  }
  return summa;
}

void TulostaLampo(std::ostream& tulos, clsRakennus& rakennus) {
  Taulu taulu(rakennus.Perustiedot, tekstit::kYhteenvedonLampo, "MWh", "kWh");
  const double lasketut = Tulosrivit(taulu, rakennus, kLasketut);
  const double yhteensa = lasketut + taulu.Luku(tekstit::kMuuLampoYhteensa, rakennus.MuuLampo);
  const Tulos& mitattu = clsRakennus::kLuokka.TulosNimella(kMitattuLampo);
  taulu.Vertailu(yhteensa, mitattu.teksti, mitattu.Arvo({rakennus}));
  Tulosrivit(taulu, rakennus, kHaviotJaBrutto);
  taulu.Tulosta(tulos);
}

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

  TulostaLampo(tulos, rakennus);
  const clsToteutunutKulutus& mitattu = tiedot.ToteutuneetKulutukset.VertailuVuodenTiedot();
  Taulu sahko(tiedot, tekstit::kYhteenvedonSahko, "MWh", "kWh");
  sahko.Vertailu(Tulosrivit(sahko, rakennus.SahkonKulutusryhmat, kSahkot), tekstit::kMitattuKulutus, mitattu.Sahko);
  sahko.Tulosta(tulos);
  Taulu vesi(tiedot, tekstit::kYhteenvedonVesi, "m³", "dm³");
  vesi.Vertailu(Tulosrivit(vesi, rakennus.VedenKulutusryhmat, kVedet), tekstit::kMitattuKulutus, mitattu.Vesi);
  vesi.Tulosta(tulos);
  KirjoitaHankinta(tulos, rakennus);
  KirjoitaToimenpiteet(tulos, rakennus);
  for (const std::string& rivi : Viestirivit(viestit))
    tulos << kValissa << Teksti(tekstit::kHuomautus) << ": " << rivi << "\n\n";
}
