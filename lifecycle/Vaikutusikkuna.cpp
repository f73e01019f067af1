// SPDX-License-Identifier: GPL-3.0-or-later
#include "lifecycle/Vaikutusikkuna.h"

#include <utility>

#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "kernel/Luvut.h"
#include "lifecycle/clsElinkaari.h"
#include "tekstit/lomakkeet_elinkaari.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr std::size_t kEnsimmainenRaakaaine = 2;
constexpr const char* kArvo = "### ### ##0.####";
constexpr const char* kMaara = "### ### ##0.##";
constexpr const char* kOsuus = "0.0";
constexpr double kProsentti = 100, kGrammaa = 1000;
constexpr const char *kMassa = "kg", *kEnergia = "MWh", *kAla = "br-m²";

/// Rows that show how the list looks while the building has nothing to show; not the building's.
constexpr std::pair<Tekstinumero, double> kEsimerkkirivit[] = {{tekstit::kEsimerkkiRaakaaineet[0], 1.4},
                                                               {tekstit::kEsimerkkiRaakaaineet[1], 5.2},
                                                               {tekstit::kEsimerkkiRaakaaineet[2], 7.2},
                                                               {tekstit::kEsimerkkiRaakaaineet[3], 4},
                                                               {tekstit::kEsimerkkiRaakaaineet[4], 5}};

/// What one unit of the node is: a kilogram of materials, a megawatt-hour bought, or a gross square metre of the whole.
struct Laskentayksikko {
  const char* nimi = "";
  double maara = 0;   // of energy in a year
  double jakaja = 0;  // units that the total is divided by
};

Laskentayksikko Yksikko(const Vaikutuspuu& puu, const Vaikutuspuu::Solmu& solmu, double bruttoala) {
  if (solmu.vanhempi < 0) return {kAla, bruttoala, bruttoala};
  if (solmu.osto) return {kEnergia, solmu.osto->ostettu, solmu.osto->ostettu * puu.Pitoaika().value_or(0)};
  return {kMassa, solmu.materiaalit.massa, solmu.materiaalit.massa};
}

std::string Lajinyksikko(std::size_t laji) {
  if (laji < kEnsimmainenRaakaaine) return "MJ";
  return laji < kIlmastonLampeneminen ? "kg" : "g";
}

void NaytaLuku(const TextBox& kentta, std::optional<double> luku, const char* kuvio) {
  if (luku)
    kentta.Luku(*luku, kuvio);
  else
    kentta.Teksti({});
}

Luettelorivi Ainerivi(const std::string& nimi, double maara, double yhteensa) {
  Luettelorivi rivi{{nimi}};
  rivi.LisaaLuku(maara, kArvo);
  rivi.solut.emplace_back(kMassa);
  rivi.LisaaLuku(yhteensa, kMaara);
  return rivi;
}

}  // namespace

Vaikutusikkuna::Vaikutusikkuna(clsRakennus& rakennus) : rakennus_(rakennus), puu_(rakennus.Elinkaari.Vaikutukset()) {
  lomake_.SolmuValittu = [this] { NaytaSolmu(); };
  lomake_.ProfiiliKlikattu = [this] { rakennus_.Elinkaari.NaytaEkoprofiili(); };
}

void Vaikutusikkuna::Nayta() {
  NaytaPuu();
  NaytaSolmu();
  lomake_.NaytaModaalisena();
}

void Vaikutusikkuna::NaytaPuu() {
  Luettelosisalto sisalto;
  for (const Vaikutuspuu::Solmu& solmu : puu_.Solmut()) {
    Luettelorivi rivi{{solmu.nimi}, solmu.avain};
    if (solmu.vanhempi >= 0) rivi.ylempi = puu_.Solmut()[static_cast<std::size_t>(solmu.vanhempi)].avain;
    sisalto.rivit.push_back(std::move(rivi));
  }
  lomake_.TreeView1.Tayta(std::move(sisalto));
}

void Vaikutusikkuna::NaytaSolmu() {
  const Vaikutuspuu::Solmu* solmu = puu_.Etsi(lomake_.TreeView1.Valittu());
  if (!solmu) return;
  const Laskentayksikko yksikko = Yksikko(puu_, *solmu, rakennus_.Perustiedot.BruttoAla);
  const bool tietoa = yksikko.maara > 0;
  lomake_.txtLaskentayksikko.Teksti(tietoa ? yksikko.nimi : "");
  NaytaLuku(lomake_.txtYksikoidenMaara, tietoa ? std::optional(yksikko.maara) : std::nullopt, kMaara);
  for (std::size_t i = 0; i < lomake_.lajit.size(); ++i) {
    lomake_.lajit[i].lblYksikko.Otsikko(Lajinyksikko(i) + "/" + yksikko.nimi);
    NaytaLaji(i, *solmu, yksikko.jakaja);
  }
  NaytaTiedot(*solmu);
  NaytaRaakaaineet(*solmu, yksikko.jakaja);
}

/// Of energy the value of a unit is known without a period too.
void Vaikutusikkuna::NaytaLaji(std::size_t laji, const Vaikutuspuu::Solmu& solmu, double yksikoita) {
  const auto& kentat = lomake_.lajit[laji];
  const double kerroin = laji < kIlmastonLampeneminen ? 1 : kGrammaa;
  const auto yhteensa = puu_.Yhteensa(solmu)[laji];
  std::optional<double> yksikolle;
  if (yhteensa && yksikoita > 0)
    yksikolle = *yhteensa / yksikoita * kerroin;
  else if (solmu.vanhempi >= 0 && solmu.osto && solmu.osto->vuodessa[laji] && solmu.osto->ostettu > 0)
    yksikolle = *solmu.osto->vuodessa[laji] / solmu.osto->ostettu * kerroin;
  NaytaLuku(kentat.txt, yksikolle, kArvo);
  NaytaLuku(kentat.txtYhteensa, yhteensa, kMaara);
  const Materiaalisumma& aineet = solmu.materiaalit;
  kentat.lblIlman.Otsikko(
      aineet.massa > 0 ? Muotoile(aineet.massaIlmanArvoa[laji] / aineet.massa * kProsentti, kOsuus) + " %" : "");
}

void Vaikutusikkuna::NaytaTiedot(const Vaikutuspuu::Solmu& solmu) {
  std::string tiedot;
  const auto lisaa = [&](const std::string& teksti) { tiedot += (tiedot.empty() ? "" : " ") + teksti; };
  const Materiaalisumma& aineet = solmu.materiaalit;
  if (const auto osuus = aineet.OsuusIlmanTietoja())
    lisaa(Teksti(tekstit::kMassaaYhteensa) + " " + Muotoile(aineet.massa, kMaara) + " kg, " +
          Muotoile(*osuus * kProsentti, kOsuus) + " % " + Teksti(tekstit::kMassastaIlmanTietoja) + ".");
  if (aineet.alaIlmanKerroksia > 0)
    lisaa(Teksti(tekstit::kEiKerroksia) + " " + Muotoile(aineet.alaIlmanKerroksia, kMaara) + " m².");
  if (solmu.osto && !puu_.Pitoaika()) lisaa(Teksti(tekstit::kVaikutuksetIlmanPitoaikaa));
  if (solmu.avain == Tunniste("Vesi")) lisaa(Teksti(tekstit::kVedellaEiArvoja));
  lomake_.lblTiedot.Otsikko(tiedot);
}

void Vaikutusikkuna::NaytaRaakaaineet(const Vaikutuspuu::Solmu& solmu, double yksikoita) {
  Luettelosisalto sisalto;
  double maara = 0, yhteensa = 0;
  const auto lisaa = [&](const std::string& nimi, double yksikolle, double kaikkiaan) {
    sisalto.rivit.push_back(Ainerivi(nimi, yksikolle, kaikkiaan));
    sisalto.rivit.back().avain = "aine " + std::to_string(sisalto.rivit.size());
    maara += yksikolle;
    yhteensa += kaikkiaan;
  };
  if (Esimerkki())
    for (const auto& [nimi, kg] : kEsimerkkirivit) lisaa(Teksti(nimi), kg, kg);
  else
    for (const Raakaaine& aine : solmu.materiaalit.aineet)
      lisaa(aine.nimi, yksikoita > 0 ? aine.massa / yksikoita : 0, aine.massa);
  if (!sisalto.rivit.empty()) sisalto.summat = Ainerivi(Teksti(tekstit::kRaakaaineetYhteensa), maara, yhteensa).solut;
  lomake_.lblEsimerkki.Nakyva(Esimerkki());
  lomake_.lvwRaakaaineet.Tayta(std::move(sisalto));
}

bool Vaikutusikkuna::Esimerkki() const {
  const clsElinkaari& elinkaari = rakennus_.Elinkaari;
  return puu_.Materiaalit().massa <= 0 && !elinkaari.OletuksetAnnettu && elinkaari.Perustaminen.Count() == 0 &&
         elinkaari.Hoito.Count() == 0;
}
