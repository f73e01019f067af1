// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>

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

/// Characters of a UTF-8 text: its bytes less the continuation bytes.
std::size_t Merkkeja(std::string_view teksti) {
  return static_cast<std::size_t>(
      std::ranges::count_if(teksti, [](char tavu) { return (static_cast<unsigned char>(tavu) & 0xC0) != 0x80; }));
}

std::string Taytto(std::string_view teksti, std::size_t leveys) {
  return std::string(leveys - std::min(leveys, Merkkeja(teksti)), ' ');
}

/// The number as it is shown: what sums are taken of, so that the column adds up.
double Naytetty(double arvo) { return LueLuku(Muotoile(arvo, kMaara)).value_or(arvo); }

/// Rows of a name and numbers; as wide as its longest texts, a rule where a row is empty.
class Taulu {
 public:
  /// `yksikko` of the amounts, `tuhannesosa` of those for a square metre and a cubic metre of the building.
  Taulu(const clsPerustiedot& tiedot, Tekstinumero otsikko, const std::string& yksikko, const std::string& tuhannesosa)
      : ala_(tiedot.BruttoAla), tilavuus_(tiedot.Kokonaistilavuus) {
    rivit_.push_back({Teksti(otsikko), yksikko + "/a", tuhannesosa + "/m²,a", tuhannesosa + "/m³,a"});
  }
  /// A row of the number as it is shown, which is given back.
  double Luku(Tekstinumero nimi, double arvo) {
    arvo = Naytetty(arvo);
    rivit_.push_back({Teksti(nimi), Muotoile(arvo, kMaara), Ominaisarvo(arvo, ala_), Ominaisarvo(arvo, tilavuus_)});
    return arvo;
  }
  /// Rows of what was computed, given as their sum so far, and of what was measured.
  void Vertailu(double laskettu, Tekstinumero mitatunNimi, double mitattu) {
    Viiva();
    Luku(tekstit::kLaskettuKulutus, laskettu);
    mitattu = Luku(mitatunNimi, mitattu);
    Luku(tekstit::kMitattuVahennettynaLasketulla, mitattu - laskettu);
  }
  void Viiva() { rivit_.emplace_back(); }
  void Tulosta(std::ostream& tulos) const {
    Rivi leveydet{};
    std::array<std::size_t, kSarakkeita> merkkeja{};
    for (const Rivi& rivi : rivit_)
      for (std::size_t i = 0; i < kSarakkeita; ++i) merkkeja[i] = std::max(merkkeja[i], Merkkeja(rivi[i]));
    for (const Rivi& rivi : rivit_) TulostaRivi(tulos, rivi, merkkeja);
    tulos << '\n';
  }

 private:
  static constexpr std::size_t kSarakkeita = 4;
  using Rivi = std::array<std::string, kSarakkeita>;

  static std::string Ominaisarvo(double maara, double jakaja) {
    return jakaja > 0 ? Muotoile(maara * kTuhat / jakaja, kMaara) : "-";
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
  for (const std::string& rivi : Viestirivit(viestit))
    tulos << kValissa << Teksti(tekstit::kHuomautus) << ": " << rivi << "\n\n";
}
