// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Kenttatarkistus.h"

#include <algorithm>
#include <chrono>
#include <optional>
#include <string>
#include <string_view>

#include "kernel/Kellonajat.h"
#include "kernel/Kirjainkoko.h"
#include "kernel/Luetteleminen.h"
#include "kernel/Luvut.h"
#include "kernel/Paivamaara.h"
#include "tekstit/viestit.h"
#include "tekstit/virheet.h"
#include "ui/Kenttanimi.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"

namespace {

constexpr std::uint32_t kViestivaliMs = 1000;

std::uint32_t OikeaKello() {
  const auto nyt = std::chrono::steady_clock::now().time_since_epoch();
  return static_cast<std::uint32_t>(std::chrono::duration_cast<std::chrono::milliseconds>(nyt).count());
}

std::uint32_t (*kello_)() = OikeaKello;
std::optional<std::uint32_t> viimeViesti_;

struct Tarkistus {
  std::string_view tyyppi, alaraja, ylaraja, epatavallinen;
};

/// Cuts the text up to the next comma off `loput`.
std::string_view SeuraavaOsa(std::string_view& loput) {
  const auto pilkku = loput.find(',');
  const std::string_view osa = loput.substr(0, pilkku);
  loput.remove_prefix(pilkku == std::string_view::npos ? loput.size() : pilkku + 1);
  return osa;
}

Tarkistus LueTag(std::string_view tag) {
  SeuraavaOsa(tag);  // id of the tool tip
  Tarkistus tarkistus;
  for (std::string_view* osa : {&tarkistus.tyyppi, &tarkistus.alaraja, &tarkistus.ylaraja, &tarkistus.epatavallinen})
    *osa = SeuraavaOsa(tag);
  return tarkistus;
}

std::string LisaaYksikko(std::string teksti, const Ohjain& kentta) {
  const std::string yksikko = KentanYksikko(kentta.Ikkuna(), kentta);
  return yksikko.empty() ? teksti : std::move(teksti) + " " + yksikko;
}

/// "Bruttoala (m²)".
std::string NimiJaYksikko(const Ohjain& kentta) {
  const std::string nimi = KentanNimi(kentta.Ikkuna(), kentta), yksikko = KentanYksikko(kentta.Ikkuna(), kentta);
  return yksikko.empty() ? nimi : nimi + " (" + yksikko + ")";
}

std::string RajaTekstina(Tekstinumero sana, std::string_view raja, const Ohjain& kentta) {
  if (raja.empty()) return {};
  std::string luku(raja);
  std::ranges::replace(luku, '.', ',');
  if (luku.starts_with('-')) luku.replace(0, 1, "−");
  return Teksti(sana) + " " + LisaaYksikko(std::move(luku), kentta);
}

/// "Sisälämpötila, vähintään −50 °C, enintään 60 °C."
std::string NimiJaRajat(const Ohjain& kentta, const Tarkistus& t) {
  std::string teksti;
  for (const std::string& osa :
       {KentanNimi(kentta.Ikkuna(), kentta), RajaTekstina(tekstit::kVahintaan, t.alaraja, kentta),
        RajaTekstina(tekstit::kEnintaan, t.ylaraja, kentta)})
    if (!osa.empty()) LisaaLuetteloon(teksti, osa);
  return teksti + ".";
}

/// False when a message was shown just before.
bool OnViestinAika() {
  const std::uint32_t nyt = kello_();
  const bool liianPian = viimeViesti_ && nyt >= *viimeViesti_ && nyt - *viimeViesti_ <= kViestivaliMs;
  if (!liianPian) viimeViesti_ = nyt;
  return !liianPian;
}

void NaytaHarvakseltaan(Virhenumero koodi, const std::string& lisateksti) {
  if (OnViestinAika()) NaytaVirhe(koodi, lisateksti);
}

bool Rajoissa(const Tarkistus& t, double arvo) {
  const auto ala = LueLuku(t.alaraja), yla = LueLuku(t.ylaraja);
  return (!ala || arvo >= *ala) && (!yla || arvo <= *yla);
}

/// Takes the person to a field whose text doesn't do.
bool Hylkaa(Ohjain& kentta, bool valitseTeksti) {
  kentta.Kohdista();
  if (valitseTeksti) kentta.ValitseTeksti();
  return false;
}

/// Tells why the text of the field isn't good.
void KerroLuvusta(const Ohjain& kentta, const Tarkistus& t) {
  if (LueLuku(kentta.Teksti()))
    NaytaHarvakseltaan(virheet::kRajojenUlkopuolella, NimiJaRajat(kentta, t));
  else
    NaytaHarvakseltaan(virheet::kEiLuku, NimiJaYksikko(kentta) + ".");
}

void KerroPaivamaarasta(const Ohjain& kentta) {
  if (OnViestinAika())
    Ilmoita(Teksti(tekstit::kEiPaivamaara) + " " + NimiJaYksikko(kentta) + ".", Teksti(tekstit::kVirhe),
            Vakavuus::Virhe);
}

bool OnEpatavallinen(const Ohjain& kentta) {
  const auto raja = LueLuku(LueTag(kentta.Tag()).epatavallinen);
  return raja && kentta.Muuttunut() && LueLuku(kentta.Teksti()).value_or(0) > *raja;
}

void KerroEpatavallisista(const std::vector<Ohjain*>& kentat) {
  std::string luettelo;
  for (const Ohjain* kentta : kentat)
    if (OnEpatavallinen(*kentta))
      luettelo += "\n" + KentanNimi(kentta->Ikkuna(), *kentta) + ": " + LisaaYksikko(kentta->Teksti(), *kentta);
  if (!luettelo.empty())
    Ilmoita(Teksti(tekstit::kEpatavallinenArvo) + luettelo, Teksti(tekstit::kHuomautus), Vakavuus::Varoitus);
}

/// Fields that the person can see and write in.
std::vector<Ohjain*> Tarkistettavat(const Lomake& lomake) {
  std::vector<Ohjain*> kentat;
  for (const auto& ohjain : lomake.Ohjaimet())
    if (ohjain->Tyyppi() == Ohjaintyyppi::TextBox && ohjain->Nakyva() && ohjain->Kaytossa())
      kentat.push_back(ohjain.get());
  return kentat;
}

}  // namespace

bool Kelpaa(const Ohjain& ohjain) {
  const Tarkistus t = LueTag(ohjain.Tag());
  const std::string& teksti = ohjain.Teksti();
  if (ohjain.Tyyppi() != Ohjaintyyppi::TextBox) return true;
  if (SamaNimi(t.tyyppi, "K")) return LueKellonaika(teksti).has_value();
  if (SamaNimi(t.tyyppi, "P")) return teksti.empty() || OnPaivamaara(teksti);
  const auto luku = LueLuku(teksti);
  return !SamaNimi(t.tyyppi, "N") || (luku && Rajoissa(t, *luku));
}

bool TarkistaKentta(Ohjain& kentta) {
  if (Kelpaa(kentta)) return true;
  const Tarkistus t = LueTag(kentta.Tag());
  const bool luku = SamaNimi(t.tyyppi, "N");
  if (luku)
    KerroLuvusta(kentta, t);
  else if (SamaNimi(t.tyyppi, "P"))
    KerroPaivamaarasta(kentta);
  else
    NaytaHarvakseltaan(virheet::kEiKellonaika, NimiJaYksikko(kentta) + ".");
  return Hylkaa(kentta, !luku || !LueLuku(kentta.Teksti()));
}

bool VaadiLuku(Ohjain& kentta, const Lukuviestit& viestit) {
  if (LueLuku(kentta.Teksti())) return true;
  const bool tyhja = LueLukuTaiNolla(kentta.Teksti()).has_value();
  Hylkaa(kentta, !tyhja);
  if (OnViestinAika()) (tyhja ? viestit.puuttuu : viestit.eiLuku)(NimiJaYksikko(kentta));
  return false;
}

bool TarkistaLukukentat(const Lomake& lomake) {
  const auto kentat = Tarkistettavat(lomake);
  if (!std::ranges::all_of(kentat, [](Ohjain* kentta) { return TarkistaKentta(*kentta); })) return false;
  KerroEpatavallisista(kentat);
  return true;
}

void HylkaaKentta(Ohjain& kentta, const std::string& viesti) {
  Ilmoita(KentanNimi(kentta.Ikkuna(), kentta) + " " + viesti, Teksti(tekstit::kVirhe), Vakavuus::Virhe);
  Hylkaa(kentta, true);
}

void AsetaTarkistuksenKello(std::uint32_t (*kello)()) {
  kello_ = kello ? kello : OikeaKello;
  viimeViesti_.reset();
}
