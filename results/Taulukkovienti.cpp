// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/Taulukkovienti.h"

#include <filesystem>
#include <map>
#include <optional>
#include <stdexcept>

#include "building/Yhteiset.h"
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "results/Laskentataulukko.h"
#include "results/Lomakesivu.h"
#include "results/Paataulu.h"
#include "settings/Asetusavaimet.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "tekstit/lomakkeet_asetukset.h"
#include "tekstit/lomakkeet_taulukot.h"
#include "tekstit/viestit.h"
#include "ui/Odotus.h"
#include "ui/Tallennuskysely.h"
#include "ui/Tekstivarasto.h"

namespace fs = std::filesystem;

namespace {

constexpr Tallennettava kTaulukko{tekstit::kTallennaTaulukko, tekstit::kTaulukkotiedostot, ".xlsx"};
constexpr std::size_t kNimenPituus = 200;  // bytes, of the 255 that file systems take
constexpr std::string_view kKielletyt = "/\\:*?\"<>|";

/// The start of a UTF-8 text, cut between letters.
std::string Alku(std::string teksti, std::size_t tavuja) {
  if (teksti.size() <= tavuja) return teksti;
  while (tavuja > 0 && (teksti[tavuja] & 0xC0) == 0x80) --tavuja;
  return teksti.substr(0, tavuja);
}

std::string Kelpaava(std::string_view nimi) {
  std::string tulos;
  for (const char c : nimi)
    tulos += static_cast<unsigned char>(c) < ' ' || kKielletyt.find(c) != kKielletyt.npos ? '_' : c;
  const auto alku = tulos.find_first_not_of(" ."), loppu = tulos.find_last_not_of(" .");
  return alku == tulos.npos ? std::string() : tulos.substr(alku, loppu - alku + 1);
}

/// Files that this run of the program has written, and when.
std::map<std::string, fs::file_time_type>& Omat() {
  static std::map<std::string, fs::file_time_type> omat;
  return omat;
}

void MerkitseOmaksi(const std::string& tiedosto) {
  std::error_code virhe;
  Omat()[tiedosto] = fs::last_write_time(tiedosto, virhe);
}

bool OnOmaKoskematon(const fs::path& tiedosto) {
  std::error_code virhe;
  const auto oma = Omat().find(tiedosto.string());
  return oma != Omat().end() && oma->second == fs::last_write_time(tiedosto, virhe);
}

/// Spreadsheet programs leave a lock beside a file that is open in them.
bool OnAuki(const fs::path& tiedosto) {
  std::error_code virhe;
  const std::string nimi = tiedosto.filename().string();
  return fs::exists(tiedosto.parent_path() / (".~lock." + nimi + "#"), virhe) ||
         fs::exists(tiedosto.parent_path() / ("~$" + nimi), virhe);
}

bool OnOlemassa(const fs::path& tiedosto) {
  std::error_code virhe;
  return fs::exists(fs::symlink_status(tiedosto, virhe));
}

/// The folder of the person's last choice while it is there, else a temporary one of the person's own.
fs::path Kansio() {
  std::error_code virhe;
  const std::string valittu = HaeAsetus(Avain::Taulukkokansio);
  if (!valittu.empty() && fs::is_directory(valittu, virhe)) return valittu;
  const fs::path kansio = fs::temp_directory_path(virhe) / ("lumivirta-" + Kelpaava(Asetukset().strCurrentUserName));
  if (fs::create_directories(kansio, virhe)) fs::permissions(kansio, fs::perms::owner_all, virhe);
  return kansio;
}

/// Remembering is a convenience: the sheet isn't lost with it.
void MuistaKansio(const std::string& tiedosto) try {
  TallennaAsetus(Avain::Taulukkokansio, fs::path(tiedosto).parent_path().string());
} catch (const std::exception&) {
}

fs::path Numerolla(const fs::path& kansio, const std::string& nimi, int numero) {
  return kansio / (nimi + (numero > 1 ? " " + std::to_string(numero) : std::string()) + ".xlsx");
}

/// The first free name: with the next number where something else stands under the name.
fs::path VapaaNimi(const fs::path& kansio, const std::string& nimi, int numero = 1) {
  while (OnOlemassa(Numerolla(kansio, nimi, numero)) &&
         (OnAuki(Numerolla(kansio, nimi, numero)) || !OnOmaKoskematon(Numerolla(kansio, nimi, numero))))
    ++numero;
  return Numerolla(kansio, nimi, numero);
}

std::optional<std::string> KysyPaikka(const fs::path& ehdotus) {
  auto valittu = KysyTallennuspaikka(kTaulukko, ehdotus.filename().string());
  if (valittu) MuistaKansio(*valittu);
  return valittu;
}

/// Where the workbook goes; nothing when the person doesn't want it.
std::optional<std::string> Paikka(const std::string& nimi) {
  const fs::path kansio = Kansio(), ensimmainen = Numerolla(kansio, nimi, 1), vapaa = VapaaNimi(kansio, nimi);
  if (!OnAuki(ensimmainen) || vapaa == ensimmainen) return vapaa.string();
  const Vastaus vastaus =
      ViestitNyt().Nayta({Teksti(tekstit::kTaulukkoOnAuki) + " " + ensimmainen.string() + "\n" +
                              Teksti(tekstit::kTallennetaankoNimella) + " " + vapaa.filename().string() + "?",
                          Teksti(tekstit::kHuomautus), Vakavuus::Kysymys, Napit::KyllaEiPeruuta, Vastaus::Kylla});
  if (vastaus == Vastaus::Kylla) return vapaa.string();
  return vastaus == Vastaus::Ei ? KysyPaikka(vapaa) : std::nullopt;
}

/// Why the file couldn't be written; "" when it was.
std::string Yrita(const std::function<void(const std::string&)>& kirjoita, const std::string& tiedosto) try {
  kirjoita(tiedosto);
  return "";
} catch (const std::exception& virhe) {
  return *virhe.what() ? virhe.what() : "?";
}

void Avaa(const std::string& tiedosto) {
  ViestitNyt().AsetaPaneeli(Teksti(tekstit::kTaulukkoTiedostossa) + " " + tiedosto);
  if (ViestitNyt().AvaaTiedosto(tiedosto)) return;
  Ilmoita(Teksti(tekstit::kTaulukkoTallennettu) + "\n" + tiedosto + "\n\n" + Teksti(tekstit::kTaulukkoOhjelmaPuuttuu),
          Teksti(tekstit::kHuomautus), Vakavuus::Varoitus);
}

std::string Kohde() {
  const clsRakennus* rakennus = GlobaaliRakennus();
  return rakennus ? rakennus->Perustiedot.KohteenNimi : std::string();
}

/// The name of the object over each page.
std::vector<Taulukkosivu> Nimettyina(std::vector<Taulukkosivu> sivut) {
  const std::string kohde = Kohde();
  for (Taulukkosivu& sivu : sivut)
    if (!kohde.empty()) sivu.otsikko = kohde + " – " + sivu.otsikko;
  return sivut;
}

void Vie(std::vector<Taulukkosivu> sivut) {
  const std::string mika = sivut.front().otsikko;
  sivut = Nimettyina(std::move(sivut));
  KirjoitaJaAvaa(mika, [&](const std::string& tiedosto) { TallennaKirja(sivut, tiedosto); });
}

}  // namespace

std::string Taulukkotiedosto(std::string_view kohde, std::string_view mika) {
  const std::string alku = Kelpaava(kohde), loppu = Kelpaava(mika);
  const std::string vali = alku.empty() || loppu.empty() ? "" : " - ";
  const std::string oma = Alku(loppu, kNimenPituus / 2);
  const std::string nimi = Alku(alku, kNimenPituus - oma.size() - vali.size()) + vali + oma;
  return nimi.empty() ? Teksti(tekstit::kTaulukko) : nimi;
}

void KirjoitaJaAvaa(std::string_view mika, const std::function<void(const std::string& tiedosto)>& kirjoita) {
  const std::string nimi = Taulukkotiedosto(Kohde(), mika);
  auto tiedosto = Paikka(nimi);
  while (tiedosto) {
    std::string syy;
    {
      const Odotus odotus;
      syy = Yrita(kirjoita, *tiedosto);
    }
    if (syy.empty()) {
      MerkitseOmaksi(*tiedosto);
      return Avaa(*tiedosto);
    }
    Ilmoita(Teksti(tekstit::kTiedostoaEiVoituTallentaa) + " " + *tiedosto + "\n" + syy + "\n\n" +
                Teksti(tekstit::kValitseTaulukollePaikka),
            Teksti(tekstit::kVirhe), Vakavuus::Virhe);
    tiedosto = KysyPaikka(*tiedosto);
  }
}

void VieListaTaulukkoon(const ListView& lista, bool otsikot, int rivi, int sarake, bool taulukko2) {
  if (!taulukko2) return Vie({Luettelosivu(lista, otsikot, rivi, sarake)});
  const std::unique_ptr<Tyokirjapohja> pohja = AvaaPaataulu();
  if (!pohja) return;
  KirjoitaPerustiedot(*pohja, VaadiRakennus());
  if (!KirjoitaToimenpiteet(*pohja, TaulukkoLuettelosta(lista, {}), otsikot, rivi, sarake)) return;
  KirjoitaJaAvaa(Teksti(tekstit::kPaataulunNimi), [&](const std::string& tiedosto) { pohja->Tallenna(tiedosto); });
}

void VieLomakeTaulukkoon(const Lomake& lomake, double leveys, double korkeus) {
  Vie(LomakkeenSivut(lomake, leveys, korkeus));
}

std::vector<Taulukkosivu> KohteenSivut(const Lomake& lomake) { return Nimettyina(LomakkeenSivut(lomake)); }

void VieTaulukkoon(const Lomake& lomake) { Vie(LomakkeenSivut(lomake)); }
