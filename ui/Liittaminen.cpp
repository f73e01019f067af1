// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Liittaminen.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "kernel/Kirjainkoko.h"
#include "kernel/Luetteleminen.h"
#include "kernel/Luvut.h"
#include "tekstit/lomakkeet_tilat.h"
#include "tekstit/viestit.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"

namespace {

constexpr std::size_t kKerrottavia = 12;  // cells told one by one
constexpr const char* kRajakuvio = "0.###";

std::string_view Siistitty(std::string_view solu) {
  const auto alku = solu.find_first_not_of(' ');
  if (alku == solu.npos) return {};
  return solu.substr(alku, solu.find_last_not_of(' ') - alku + 1);
}

/// The heading without its unit.
std::string_view OtsikonNimi(std::string_view otsikko) { return Siistitty(otsikko.substr(0, otsikko.find('('))); }

/// Empty, or what a list shows in place of a value that there isn't.
bool OnTyhja(std::string_view solu) { return solu.empty() || solu == "---"; }

std::string Rajateksti(const Suure& suure) {
  std::string teksti;
  const auto lisaa = [&](Tekstinumero sana, double raja) {
    if (std::abs(raja) == Suure::kRajaton) return;
    LisaaLuetteloon(teksti, Teksti(sana) + " " + Muotoile(raja, kRajakuvio));
    if (!suure.yksikko.empty()) teksti += " " + std::string(suure.yksikko);
  };
  lisaa(tekstit::kVahintaan, suure.ala);
  lisaa(tekstit::kEnintaan, suure.yla);
  return teksti;
}

Solutulos AsetaLuku(Olio& olio, const Jasen& jasen, std::string_view solu) {
  const auto luku = LueLuku(solu);
  if (!luku) return {.hylkays = Teksti(tekstit::kLiitettavaEiLuku)};
  if (!jasen.suure.Sallittu(*luku)) return {.hylkays = Rajateksti(jasen.suure)};
  AsetaJasen(olio, jasen.nimi, *luku);
  return {.epatavallinen = !jasen.suure.Tavallinen(*luku)};
}

/// Puts the rows of one sheet into new objects and gathers what is to be told of them.
class Liitos {
 public:
  Liitos(const Taulukko& rivit, std::span<const Liitossarake> sarakkeet) : rivit_(rivit), sarakkeet_(sarakkeet) {
    for (const Liitossarake& sarake : sarakkeet) paikat_.push_back(EtsiOtsikko(Teksti(sarake.otsikko)));
  }

  bool OtsikkoPuuttuu() const {
    return std::ranges::none_of(paikat_, [](const auto& paikka) { return paikka.has_value(); });
  }
  std::size_t Riveja() const {
    const bool summa = rivit_.size() > 1 && Siistitty(Solu(rivit_.back(), 0)) == Teksti(tekstit::kRakenteetYhteensa);
    return rivit_.size() - (summa ? 1 : 0);
  }
  void Tayta(Olio& olio, std::size_t rivi) {
    for (std::size_t i = 0; i < sarakkeet_.size(); ++i) AsetaSolu(olio, rivi, i);
  }
  const std::vector<std::string>& Hylatyt() const { return hylatyt_; }
  const std::vector<std::string>& Epatavalliset() const { return epatavalliset_; }

 private:
  std::optional<std::size_t> EtsiOtsikko(std::string_view otsikko) const {
    if (rivit_.empty()) return std::nullopt;
    for (std::size_t s = 0; s < rivit_.front().size(); ++s)
      if (SamaNimi(OtsikonNimi(rivit_.front()[s]), OtsikonNimi(otsikko))) return s;
    return std::nullopt;
  }

  void AsetaSolu(Olio& olio, std::size_t rivi, std::size_t sarake) {
    const Liitossarake& s = sarakkeet_[sarake];
    const std::string_view solu = paikat_[sarake] ? Siistitty(Solu(rivit_[rivi], *paikat_[sarake])) : "";
    const std::string paikka = Teksti(tekstit::kLiitettavaRivi) + " " + std::to_string(rivi + 1) + ", " +
                               std::string(OtsikonNimi(Teksti(s.otsikko))) + ": ";
    if (OnTyhja(solu)) {
      if (s.puuttuu != Tekstinumero{}) hylatyt_.push_back(paikka + Teksti(s.puuttuu));
      return;
    }
    const Solutulos tulos = s.aseta(olio, solu);
    const std::string arvo = paikka + std::string(solu);
    if (!tulos.hylkays.empty())
      hylatyt_.push_back(arvo + " – " + tulos.hylkays);
    else if (tulos.epatavallinen)
      epatavalliset_.push_back(arvo);
  }

  const Taulukko& rivit_;
  std::span<const Liitossarake> sarakkeet_;
  std::vector<std::optional<std::size_t>> paikat_;  // column of the sheet for each of ours
  std::vector<std::string> hylatyt_, epatavalliset_;
};

std::string Otsikot(std::span<const Liitossarake> sarakkeet) {
  std::string otsikot;
  for (const Liitossarake& sarake : sarakkeet) LisaaLuetteloon(otsikot, Teksti(sarake.otsikko));
  return otsikot;
}

/// Those that are told one by one.
std::span<const std::string> Kerrottavat(std::span<const std::string> tekstit) {
  return tekstit.first(std::min(tekstit.size(), kKerrottavia));
}

/// The beginning of the message and the cells on lines of their own.
std::string Lueteltuna(Tekstinumero alku, const std::vector<std::string>& solut) {
  std::string teksti = Teksti(alku);
  for (const std::string& solu : Kerrottavat(solut)) teksti += "\n" + solu;
  return solut.size() > kKerrottavia ? teksti + "\n" + TekstiLuvulla(tekstit::kJaMuuta, solut.size() - kKerrottavia)
                                     : teksti;
}

/// The objects made; taken away at the end unless they are kept.
class Luodut {
 public:
  explicit Luodut(const Liitostoimet& toimet) : toimet_(toimet) {}
  Luodut(const Luodut&) = delete;
  Luodut& operator=(const Luodut&) = delete;
  ~Luodut() {
    for (auto avain = avaimet_.rbegin(); avain != avaimet_.rend(); ++avain) toimet_.poista(*avain);
  }
  Olio& Uusi() {
    Alkio& uusi = toimet_.luo();
    avaimet_.push_back(uusi.sKey);
    return uusi;
  }
  std::vector<Tunniste> Pida() { return std::exchange(avaimet_, {}); }

 private:
  const Liitostoimet& toimet_;
  std::vector<Tunniste> avaimet_;
};

}  // namespace

int SananPaikka(std::span<const std::string> sanat, std::string_view sana) {
  const auto it = std::ranges::find_if(sanat, [&](const std::string& s) { return SamaNimi(s, sana); });
  return it == sanat.end() ? -1 : static_cast<int>(it - sanat.begin());
}

Solutulos EiValinta(std::span<const std::string> sanat) {
  std::string luettelo;
  for (const std::string& sana : Kerrottavat(sanat)) luettelo += (luettelo.empty() ? " " : ", ") + sana;
  return {.hylkays = Teksti(tekstit::kLiitettavaEiValinta) + luettelo + (sanat.size() > kKerrottavia ? "…" : "")};
}

Liitossarake Jasensarake(Tekstinumero otsikko, std::string_view jasen, Tekstinumero puuttuu) {
  return {otsikko,
          [jasen](Olio& olio, std::string_view solu) -> Solutulos {
            const Jasen* j = olio.LuokanTiedot().Etsi(jasen);
            if (j && j->laji != Laji::Teksti) return AsetaLuku(olio, *j, solu);
            AsetaJasen(olio, jasen, std::string(solu));
            return {};
          },
          puuttuu};
}

Liitossarake Valintasarake(Tekstinumero otsikko, std::string_view rivi, std::string_view sana, std::string_view lomake,
                           std::string_view valinta, Tekstinumero puuttuu) {
  return {otsikko,
          [=](Olio& olio, std::string_view solu) -> Solutulos {
            const std::vector<std::string> sanat = Valintalista(lomake, valinta);
            const int paikka = SananPaikka(sanat, solu);
            if (paikka < 0) return EiValinta(sanat);
            AsetaJasen(olio, rivi, paikka);
            if (!sana.empty()) AsetaJasen(olio, sana, sanat[static_cast<std::size_t>(paikka)]);
            return {};
          },
          puuttuu};
}

std::vector<Tunniste> LiitaRivit(const Taulukko& rivit, std::span<const Liitossarake> sarakkeet,
                                 const Liitostoimet& toimet) {
  Liitos liitos(rivit, sarakkeet);
  if (liitos.OtsikkoPuuttuu()) {
    Ilmoita(Teksti(tekstit::kLiitettavaIlmanOtsikkoa) + " " + Otsikot(sarakkeet), Teksti(tekstit::kVirhe),
            Vakavuus::Virhe);
    return {};
  }
  Luodut luodut(toimet);
  for (std::size_t rivi = 1; rivi < liitos.Riveja(); ++rivi) liitos.Tayta(luodut.Uusi(), rivi);
  if (!liitos.Hylatyt().empty()) {
    Ilmoita(Lueteltuna(tekstit::kLiitettavassaVirhe, liitos.Hylatyt()), Teksti(tekstit::kVirhe), Vakavuus::Virhe);
    return {};
  }
  if (!liitos.Epatavalliset().empty())
    Ilmoita(Lueteltuna(tekstit::kEpatavallinenArvo, liitos.Epatavalliset()), Teksti(tekstit::kHuomautus),
            Vakavuus::Varoitus);
  return luodut.Pida();
}
