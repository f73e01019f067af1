// SPDX-License-Identifier: GPL-3.0-or-later
// Makes the sample audits: project files of invented, typical Finnish buildings, by the program's own generator.
// Arguments: the folder of the tables (malliauditoinnit*.csv: buildings, consumer groups, energy forms, tariffs and
// measures) and that of the project files.
#include <filesystem>
#include <iostream>

#include "batch/malliauditoinnit/Hankinnat.h"
#include "batch/malliauditoinnit/Kayntiajat.h"
#include "batch/malliauditoinnit/Kulutusryhmat.h"
#include "batch/malliauditoinnit/Toimenpiteet.h"
#include "building/Yhteiset.h"
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "building/clsTilat.h"
#include "building/modAlkuarvojaRakennukseen.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "kernel/Virhe.h"
#include "measures/clsToimenpiteidenJarjestelija.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "ui/KerataanViestit.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestikooste.h"
#include "ventilation/clsIVKoneet.h"

namespace {

constexpr std::int32_t kMuuKayttoaika = 4;

std::int16_t Kayttotarkoitusindeksi(int koodi) {
  const auto& koodit = clsRakennus::KayttoTarkoitusKoodit;
  const auto kohta = std::find(koodit.begin(), koodit.end(), koodi);
  if (kohta == koodit.end()) throw std::runtime_error("tuntematon käyttötarkoituskoodi " + std::to_string(koodi));
  return static_cast<std::int16_t>(kohta - koodit.begin());
}

void TaytaKulutukset(const Rivi& rivi, clsToteutuneetKulutukset& kulutukset) {
  kulutukset.KulutusTietojenViimVuosi = Kokonaisluku(rivi, "Vuosi1");
  for (int i = 1; i <= 3; ++i) {
    const std::string n = std::to_string(i);
    clsToteutunutKulutus& vuosi = *kulutukset.Vuosi(i);
    vuosi.LammTarveLuku = Luku(rivi, "LammTarveLuku" + n);
    vuosi.Lampo = Luku(rivi, "Lampo" + n);
    vuosi.Sahko = Luku(rivi, "Sahko" + n);
    vuosi.Vesi = Luku(rivi, "Vesi" + n);
  }
}

void TaytaPerustiedot(const Rivi& rivi, clsPerustiedot& tiedot) {
  AlustaPerustiedot(tiedot);
  AlustaToteutuneetKulutukset(tiedot.ToteutuneetKulutukset);
  tiedot.KohteenNimi = rivi.at("Nimi");
  tiedot.KayttoTarkoitusID = Kayttotarkoitusindeksi(Kokonaisluku(rivi, "KayttotarkoitusKoodi"));
  tiedot.Kayttotarkoitus =
      Valintalista("frmPerustiedot", "cmbKayttotarkoitus").at(static_cast<std::size_t>(tiedot.KayttoTarkoitusID));
  tiedot.ValmistumisVuosi = Kokonaisluku(rivi, "ValmistumisVuosi");
  tiedot.BruttoAla = Luku(rivi, "BruttoAla");
  tiedot.Kokonaistilavuus = Luku(rivi, "Kokonaistilavuus");
  tiedot.KerrostenLukumaara = Luku(rivi, "KerrostenLukumaara");
  tiedot.KohteenHenkiloMaara = Luku(rivi, "KohteenHenkiloMaara");
  tiedot.LammTarveLukuPaikkakuntaID(Kokonaisluku(rivi, "PaikkakuntaID"));
  tiedot.LammTarveLukuPaikkakunta = Valintalista("frmPerustiedot", "cmbPaikkakunta")
                                        .at(static_cast<std::size_t>(tiedot.LammTarveLukuPaikkakuntaID()));
  TaytaKulutukset(rivi, tiedot.ToteutuneetKulutukset);
}

void TaytaTila(const Rivi& rivi, clsTila& tila) {
  tila.Sisalampotila = Luku(rivi, "Sisalampotila");
  tila.Vuotoilmanvaihto = Luku(rivi, "Vuotoilma");
  tila.TilanKayttoaikaID = kMuuKayttoaika;
  tila.TilanKayttoaikaStr = Valintalista("frmTila", "cmbTilanKayttoaika").at(kMuuKayttoaika);
  tila.TilanKayttoaikaHpA = Luku(rivi, "KayttoaikaHpA");
}

/// The text of a choice, by its row.
std::string Valinta(const char* lomake, const char* valinta, std::int32_t rivi) {
  return Valintalista(lomake, valinta).at(static_cast<std::size_t>(rivi));
}

void LisaaIVKone(const Rivi& rivi, const clsTila& tila, clsIVKoneet& koneet) {
  constexpr const char* kLomake = "frmIlmanvaihtokone";
  clsIVKone& kone = koneet.Add(Tunniste::Uusi(clsIVKone::kLuokka.NimiSana()));
  kone.IVPeriaateID = Kokonaisluku(rivi, "IVPeriaateID");
  kone.IVPeriaate = Valinta(kLomake, "cmbIVPeriaate", kone.IVPeriaateID);
  kone.KoneenTunnus = kone.OnTulopuhallin() ? "TK01" : "PK01";
  kone.LiittyyTilaansKey = tila.sKey;
  kone.TuloIlmavirta11Teho = Luku(rivi, "TuloIlmavirta");
  kone.PoistoIlmavirta11Teho = Luku(rivi, "PoistoIlmavirta");
  kone.SisaanpuhallusLampotila(Luku(rivi, "SisaanpuhallusLampotila"));
  kone.PoistoLampotila = tila.Sisalampotila;
  kone.LtoHyotysuhde = Luku(rivi, "LtoHyotysuhde");
  kone.JarjestelmaTyyppiID = Kokonaisluku(rivi, "JarjestelmaTyyppiID");
  kone.JarjestelmaTyyppi = Valinta(kLomake, "cmbJarjestelmaTyyppi", kone.JarjestelmaTyyppiID);
  kone.PuhaltimenSaatotapaID = Kokonaisluku(rivi, "PuhaltimenSaatotapaID");
  kone.PuhaltimenSaatotapa = Valinta(kLomake, "cmbPuhaltimenSaatotapa", kone.PuhaltimenSaatotapaID);
  kone.PuhaltimenVoimansiirtoTapa =
      Valinta(kLomake, "cmbPuhaltimenVoimansiirtoTapa", kone.PuhaltimenVoimansiirtoTapaID);
  clsPuhaltimenSahkonKulutus& puhaltimet = kone.PuhaltimienSahkonKulutus;
  puhaltimet.TuloSahkoTeho11 = Luku(rivi, "TuloSahkoTeho");
  puhaltimet.PoistoSahkoTeho11 = Luku(rivi, "PoistoSahkoTeho");
  puhaltimet.Teho11TiedonLaatuIDTulo = puhaltimet.Teho11TiedonLaatuIDPoisto = clsPuhaltimenSahkonKulutus::Annettu;
  kone.KayntiAikaYleistiedot.IvKoneenNimi = kone.KoneenTunnus;
  kone.KayntiAikaYleistiedot.LuoJaksot(kone.SisaanpuhallusLampotila(), kone.IlmanLampeneminenPuhaltimessa);
  TaytaKayntiajat(rivi.at("Kayntiajat"), kone.KayntiAikaYleistiedot);
  kone.PaivitaPuhaltimienTiedot();
}

/// The machine of the building and, with a rate of natural ventilation, that in its place.
void AsetaIlmanvaihto(const Rivi& rivi, clsRakennus& rakennus) {
  clsTila& tila = rakennus.Tilat.Item(1);
  LisaaIVKone(rivi, tila, rakennus.IVKoneet);
  const double painovoimainen = Luku(rivi, "PainovoimainenIVMaara");
  if (painovoimainen <= 0) return;
  tila.PainovoimainenIlmanvaihto = true;
  tila.PainovoimainenIVMaara = painovoimainen;
}

struct Taulukot {
  std::vector<Rivi> rakennukset, ryhmat;
  Hankintataulukot hankinnat;
  Toimenpidetaulukot toimenpiteet;
};

Taulukot LueTaulukot(const std::string& kansio) {
  const auto lue = [&](const std::string& mika) { return LueTaulukko(kansio + "/malliauditoinnit" + mika + ".csv"); };
  return {lue(""),
          lue("_ryhmat"),
          {lue("_hankinta"), lue("_tariffit"), lue("_tariffivertailu")},
          {lue("_toimenpiteet"), lue("_muutokset")}};
}

void TeeMalliauditointi(const Rivi& rivi, const Taulukot& taulukot, const std::filesystem::path& kansio) {
  clsRakennus rakennus;
  AsetaGlobaaliRakennus(&rakennus);
  TaytaPerustiedot(rivi, rakennus.Perustiedot);
  rakennus.Perustiedot.OtaKayttoon(0);
  for (clsTila& tila : rakennus.Tilat) TaytaTila(rivi, tila);
  AsetaIlmanvaihto(rivi, rakennus);
  rakennus.VedenKulutusryhmat.LKVKiertoVirtaama = Luku(rivi, "LkvKiertovirtaama");
  AsetaKulutusryhmat(rivi.at("Tunnus"), taulukot.ryhmat, rakennus);
  AsetaHankinnat(rivi.at("Tunnus"), taulukot.hankinnat, rakennus);
  AsetaToimenpiteet(rivi.at("Tunnus"), taulukot.toimenpiteet, rakennus);
  AsetaTariffivertailu(rivi.at("Tunnus"), taulukot.hankinnat, rakennus);
  rakennus.ToimenpiteidenJarjestelija.PaivitaValitutToimenpiteet();
  const auto tiedosto = kansio / (rivi.at("Tunnus") + " " + rivi.at("Nimi") + ".lvt");
  if (!rakennus.Tallenna(tiedosto.string())) throw std::runtime_error("tallennus epäonnistui: " + tiedosto.string());
}

}  // namespace

int main(int argc, char** argv) try {
  if (argc != 3) throw std::runtime_error("käyttö: lumivirta-malliauditoinnit TAULUKOT KANSIO");
  KerataanViestit viestit;
  AsetaViestit(&viestit);
  AlustaTekstit();
  Asetukset().HaeRekisteristä();
  std::filesystem::create_directories(argv[2]);
  const Taulukot taulukot = LueTaulukot(argv[1]);
  for (const Rivi& rivi : taulukot.rakennukset) TeeMalliauditointi(rivi, taulukot, argv[2]);
  std::cerr << KoosteTekstina(viestit.Naytetyt());
  return viestit.Naytetyt().empty() ? 0 : 1;
} catch (const std::exception& virhe) {
  std::cerr << "lumivirta-malliauditoinnit: " << SyynKuvaus(virhe) << '\n';
  return 1;
}
