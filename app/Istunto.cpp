// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Istunto.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "app/Viimeisimmat.h"
#include "building/Mallivaraus.h"
#include "building/Versiotarkistus.h"
#include "building/Yhteiset.h"
#include "building/clsPerustiedot.h"
#include "building/clsSaa.h"
#include "building/modAlkuarvojaRakennukseen.h"
#include "kernel/Hakemistot.h"
#include "kernel/Kirjainkoko.h"
#include "kernel/Kirjoitussuoja.h"
#include "kernel/Paivamaara.h"
#include "kernel/Projektitiedosto.h"
#include "kernel/Virhe.h"
#include "settings/clsKatselmoijienTiedot.h"
#include "settings/clsProjektiAsetukset.h"
#include "tekstit/paaikkuna.h"
#include "tekstit/viestit.h"
#include "ui/Lomake.h"
#include "ui/Odotus.h"
#include "ui/Paaikkuna.h"
#include "ui/Tekstivarasto.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* kPaate = ".lvt";
constexpr std::size_t kPolkuOtsikossa = 75, kPolkuKysymyksessa = 50;
constexpr int kUudenPaikkakunta = 1;

Vastaus Kysy(std::string teksti, int otsikko, Napit napit, Vastaus oletus, Vakavuus vakavuus = Vakavuus::Kysymys) {
  return ViestitNyt().Nayta({std::move(teksti), otsikko ? Teksti(otsikko) : std::string(), vakavuus, napit, oletus});
}

/// What tells one file that was left from another: the object's name, if it can be read, and when it was written.
std::string Tuntomerkit(const std::string& tiedosto) {
  const std::string nimi = HaeTiedostonTeksti(tiedosto, "clsPerustiedot", "KohteenNimi");
  const auto [paiva, kello] = Kirjoitusaika(tiedosto);
  return (nimi.empty() ? nimi : Teksti(tekstit::kTalteenKohde) + " " + nimi + "\n") + Teksti(tekstit::kTalteenOtettu) +
         " " + paiva + " " + Teksti(tekstit::kKlo) + " " + kello;
}

/// Refuses a command while the model is reserved.
bool EstaaVaraus() {
  if (!MalliVarattu()) return false;
  Ilmoita(Teksti(tekstit::kLaskentaKesken), Teksti(tekstit::kHuomautus));
  return true;
}

bool OnKohdetiedostonNimi(const std::string& tiedosto) {
  const std::size_t alku = tiedosto.size() < 3 ? 0 : tiedosto.size() - 3;
  return SamaNimi(std::string_view(tiedosto).substr(alku), "lvt");
}

/// The name with the extension that opening asks for.
std::string Paatteella(const std::string& tiedosto) {
  return SamaNimi(fs::path(tiedosto).extension().string(), kPaate) ? tiedosto : tiedosto + kPaate;
}

/// An object's name as the name of a file: without what separates folders or hides a file.
std::string Tiedostonimeksi(std::string nimi) {
  std::ranges::replace_if(
      nimi, [](unsigned char merkki) { return merkki == '/' || merkki < ' '; }, '-');
  nimi.erase(0, std::min(nimi.find_first_not_of(". "), nimi.size()));
  return nimi.empty() ? nimi : nimi + kPaate;
}

/// The file's version allows opening. A file that isn't a project, or a newer one, is told of and refused; an older one
/// is told of.
bool VersioKay(const std::string& tiedosto) try {
  const Tiedostoversio versio = HaeTiedostonVersio(tiedosto);
  const bool uudempi = Suhde(versio) == Versiosuhde::Uudempi;
  if (const std::string viesti = Versioviesti(versio); !viesti.empty())
    Ilmoita(viesti, Teksti(tekstit::kHuomautus), uudempi ? Vakavuus::Varoitus : Vakavuus::Tieto);
  return !uudempi;
} catch (const Projektivirhe& virhe) {
  Ilmoita(Teksti(tekstit::kKohdetiedostoEiKelpaa) + "\n\n" + virhe.what(), Teksti(tekstit::kVirhe), Vakavuus::Virhe);
  return false;
}

}  // namespace

Istunto::~Istunto() { SuljeKohde(); }

std::string Istunto::Tiedosto() const {
  return rakennus_ ? rakennus_->ProjektiAsetukset.strCurrentProjectFile : std::string();
}

void Istunto::mnuFileNew_Click() {
  if (EstaaVaraus()) return;
  Odotus odotus;
  if (!VoiVaihtaa()) return;
  auto uusi = std::make_unique<clsRakennus>();
  uusi->Saa.AsetaSaaPaikkakunta(kUudenPaikkakunta);
  Vaihda(std::move(uusi));
  AlustaPerustiedot(rakennus_->Perustiedot);
  AlustaToteutuneetKulutukset(rakennus_->Perustiedot.ToteutuneetKulutukset);
  rakennus_->KatselmoijienTiedot.HaeOletukset();
  rakennus_->Tallennettu = true;
  PaivitaOtsikko();
  NaytaPerustiedot();
}

void Istunto::mnuFileOpen_Click() {
  if (EstaaVaraus()) return;
  Odotus odotus;
  if (!VoiVaihtaa()) return;
  const auto tiedosto =
      ViestitNyt().KysyAvattavaTiedosto(Teksti(tekstit::kAvaaOtsikko), Teksti(tekstit::kKohdetiedostosuodatin));
  if (tiedosto && Avaa(*tiedosto)) NaytaPerustiedot();
}

void Istunto::AvaaViimeisin(const std::string& tiedosto) {
  if (EstaaVaraus()) return;
  Odotus odotus;
  if (VoiVaihtaa() && Avaa(tiedosto)) NaytaPerustiedot();
}

/// An object that doesn't take shape, for the person cancels its first dialog or an error comes, is dropped.
void Istunto::NaytaPerustiedot() try {
  if (!rakennus_->Perustiedot.NaytaKayttoliityma()) SuljeKohde();
} catch (...) {
  if (!KohdeValmis()) SuljeKohde();
  throw;
}

/// The question of New and Open. After No the forms of the object are closed: nothing is entered into it any more.
bool Istunto::VoiVaihtaa() {
  const std::string nimi = rakennus_ ? rakennus_->Perustiedot.KohteenNimi : std::string();
  const bool saa = VoiLuopua(
      {Teksti(tekstit::kTallentamattaAlku) + " " + nimi + " " + Teksti(tekstit::kTallentamattaLoppu),
       Teksti(tekstit::kTallentamattaOtsikko), Vakavuus::Kysymys, Napit::TallennaHylkaaPeruuta, Vastaus::Kylla});
  if (saa && rakennus_ && !rakennus_->Tallennettu) SuljeLomakkeet();
  return saa;
}

/// True when the object is saved, or gets saved now, or the person gives it up.
bool Istunto::VoiLuopua(const Viesti& kysymys) {
  if (!rakennus_ || rakennus_->Tallennettu) return true;
  const Vastaus vastaus = ViestitNyt().Nayta(kysymys);
  if (vastaus != Vastaus::Kylla) return vastaus == Vastaus::Ei;
  mnuFileSave_Click();
  return rakennus_ && rakennus_->Tallennettu;
}

bool Istunto::Avaa(const std::string& tiedosto) {
  if (!VoiAvata(tiedosto) || !Lataa(tiedosto)) return false;
  Merkitse(tiedosto);
  LisaaViimeisimpiin(tiedosto);
  return true;
}

bool Istunto::VoiAvata(const std::string& tiedosto) const {
  if (!OnKohdetiedostonNimi(tiedosto)) {
    Ilmoita(Teksti(tekstit::kEiKohdetiedosto), Teksti(tekstit::kHuomautus), Vakavuus::Varoitus);
    return false;
  }
  const std::string kaytossa = Teksti(tekstit::kTiedosto) + " " + LyhennaPolku(tiedosto, kPolkuKysymyksessa) + " " +
                               Teksti(tekstit::kKaytossaAvattaessa) + "\n" + Teksti(tekstit::kAvataankoSilti);
  if (OnKirjoitussuojattu(tiedosto) && !OnOmaTiedosto(tiedosto) &&
      Kysy(kaytossa, tekstit::kKaytossaOtsikko, Napit::KyllaEi, Vastaus::Ei, Vakavuus::Varoitus) == Vastaus::Ei)
    return false;
  return VersioKay(tiedosto);
}

bool Istunto::OnOmaTiedosto(const std::string& tiedosto) const {
  std::error_code virhe;
  return fs::equivalent(tiedosto, Tiedosto(), virhe) && !virhe;
}

void Istunto::Vaihda(std::unique_ptr<clsRakennus> rakennus) {
  SuljeKohde();
  rakennus_ = std::move(rakennus);
  AsetaGlobaaliRakennus(rakennus_.get());
  rakennus_->MuutosVahvistettu = [this](std::string_view toiminto) {
    kumous_.Kirjaa(toiminto);
    PaivitaOtsikko();
  };
  kumous_.Aloita(rakennus_.get());
}

/// An object that could be read only in part stays, as one without a file: saving it can't replace what is good in the
/// file. One that has no measured consumption isn't even a part.
bool Istunto::Lataa(const std::string& tiedosto) {
  Vaihda(std::make_unique<clsRakennus>());
  try {
    rakennus_->Hae(tiedosto);
  } catch (const Virhe& virhe) {
    Ilmoita(virhe.Kuvaus() + "\n" + virhe.SyynKuvaus(), Teksti(tekstit::kVirhe), Vakavuus::Virhe);
    AsetaTiedosto({});
    rakennus_->Tallennettu = false;
  }
  kumous_.Aloita(rakennus_.get());
  if (rakennus_->Tallennettu) TiedostossaNyt();
  if (rakennus_->Perustiedot.ToteutuneetKulutukset.Count() > 0) return true;
  Ilmoita(Teksti(tekstit::kKohdetiedostoPuutteellinen), Teksti(tekstit::kVirhe), Vakavuus::Virhe);
  SuljeKohde();
  return false;
}

void Istunto::SuljeKohde() {
  PoistaMerkki();
  if (!rakennus_) return;
  SuljeLomakkeet();
  kumous_.Aloita(nullptr);
  palautus_.Poista();
  tiedostossa_ = talteenOtettu_ = 0;
  rakennus_->Delete();
  rakennus_.reset();
  PaivitaOtsikko();
}

void Istunto::mnuFileSave_Click() {
  if (!rakennus_ || EstaaVaraus() || TarjoaVarakopio()) return;
  if (Tiedosto().empty()) return TallennaNimella();
  const Tiedostotunnus luettu = rakennus_->LuettuTiedosto;
  if (luettu.OnYha(Tiedosto()))
    Tallenna(Tiedosto(), &luettu);
  else if (Kysy(Teksti(tekstit::kTiedostoaMuutettuMuualla) + "\n\n" + Tiedosto() + "\n" + Tuntomerkit(Tiedosto()),
                tekstit::kHuomautus, Napit::KyllaEi, Vastaus::Ei, Vakavuus::Varoitus) == Vastaus::Kylla)
    Tallenna(Tiedosto(), nullptr);
}

void Istunto::mnuFileSaveAs_Click() {
  if (!rakennus_ || EstaaVaraus() || TarjoaVarakopio()) return;
  TallennaNimella();
}

/// The file isn't there, or the person lets it be replaced and nobody has it in use.
bool Istunto::SaaKorvata(const std::string& tiedosto) const {
  if (!fs::exists(tiedosto)) return true;
  if (Kysy(Teksti(tekstit::kKorvataankoAlku) + tiedosto + Teksti(tekstit::kKorvataankoLoppu),
           tekstit::kKorvataankoOtsikko, Napit::KyllaEiPeruuta, Vastaus::Ei) != Vastaus::Kylla)
    return false;
  if (!OnKirjoitussuojattu(tiedosto)) return true;
  Ilmoita(Teksti(tekstit::kTiedosto) + " " + tiedosto + " " + Teksti(tekstit::kKaytossaEiKorvata),
          Teksti(tekstit::kHuomautus), Vakavuus::Varoitus);
  return false;
}

void Istunto::TallennaNimella() {
  const auto valittu = ViestitNyt().KysyTallennettavaTiedosto(Teksti(tekstit::kTallennaNimellaOtsikko),
                                                              Teksti(tekstit::kKohdetiedostosuodatin),
                                                              Tiedostonimeksi(rakennus_->Perustiedot.KohteenNimi));
  if (!valittu) return;
  const std::string tiedosto = Paatteella(*valittu);
  if (!SaaKorvata(tiedosto)) return;
  const std::string entinen = Tiedosto();
  AsetaTiedosto(tiedosto);
  if (Tallenna(tiedosto, nullptr)) return;
  PoistaMerkki();
  AsetaTiedosto(entinen);
  Merkitse(entinen);
}

/// `odotettu`: the state of the file that may be replaced; null for any.
bool Istunto::Tallenna(const std::string& tiedosto, const Tiedostotunnus* odotettu) {
  PoistaMerkki();
  const bool onnistui = rakennus_->Tallenna(tiedosto, odotettu);
  Merkitse(tiedosto);
  if (!onnistui) return false;
  kumous_.Tallennettiin();
  TiedostossaNyt();
  LisaaViimeisimpiin(tiedosto);
  PaivitaOtsikko();
  return true;
}

/// The object is whole in its file: there is nothing to rescue.
void Istunto::TiedostossaNyt() {
  tiedostossa_ = talteenOtettu_ = rakennus_->Sormenjalki();
  palautus_.Poista();
}

/// Takes the name as the object's own and shows it in the caption.
void Istunto::AsetaTiedosto(const std::string& tiedosto) {
  rakennus_->ProjektiAsetukset.strCurrentProjectFile = tiedosto;
  rakennus_->ProjektiAsetukset.strCurrentProjectPath = fs::path(tiedosto).parent_path().string();
  PaivitaOtsikko();
}

void Istunto::PaivitaOtsikko() const {
  PaaikkunaNyt().AsetaOtsikko(rakennus_ && Tiedosto().empty() ? Teksti(tekstit::kValikkoUusi) : std::string());
}

void Istunto::Merkitse(const std::string& tiedosto) {
  merkitty_ = tiedosto;
  AsetaKirjoitussuoja(tiedosto);
}

void Istunto::PoistaMerkki() {
  if (!merkitty_.empty()) PoistaKirjoitussuoja(std::exchange(merkitty_, {}));
}

bool Istunto::QueryUnload(bool istuntoPaattyy) {
  if (EstaaVaraus()) return false;
  const Napit napit = istuntoPaattyy ? Napit::TallennaHylkaa : Napit::TallennaHylkaaPeruuta;
  if (!VoiLuopua({Teksti(tekstit::kTallennetaankoLopettaessa), Teksti(tekstit::kTallentamattaOtsikko),
                  Vakavuus::Kysymys, napit, Vastaus::Kylla}))
    return false;
  PoistaMerkki();
  return true;
}

bool Istunto::TarjoaJaaneet() {
  for (Palautuskopio& kopio : Palautuskopio::OtaJaaneet())
    if (TarjoaTalteenotettu(kopio)) return true;
  return TarjoaVarakopio();
}

/// What the person doesn't open now is kept under a name of its own, and isn't offered again.
bool Istunto::TarjoaTalteenotettu(Palautuskopio& kopio) {
  if (Kysy(Teksti(tekstit::kAvataankoTalteenOtettu) + "\n\n" + Tuntomerkit(kopio.Polku()), tekstit::kHuomautus,
           Napit::KyllaEi, Vastaus::Kylla) == Vastaus::Kylla &&
      VoiVaihtaa() && VersioKay(kopio.Polku())) {
    AvaaTalteenotettu(kopio);
    return rakennus_ != nullptr;
  }
  Ilmoita(Teksti(tekstit::kVarmuuskopioTalteen) + " " + kopio.Sailyta(), Teksti(tekstit::kHuomautus));
  return false;
}

/// The object goes on where the died run left it: in its own file, unsaved, and with the copy as this run's own.
void Istunto::AvaaTalteenotettu(Palautuskopio& kopio) {
  if (!Lataa(kopio.Polku())) return void(kopio.Sailyta());
  const bool kokonaan = !Tiedosto().empty();
  const std::string oma = kokonaan ? kopio.Projekti() : std::string();
  rakennus_->LuettuTiedosto = kopio.ProjektinTunnus();
  if (!oma.empty()) Merkitse(oma);
  if (kokonaan)
    palautus_ = std::move(kopio);
  else
    kopio.Sailyta();
  JatkaTallentamatta(oma);
}

/// The object that was read from a copy goes on: its content is in no file yet.
void Istunto::JatkaTallentamatta(const std::string& tiedosto) {
  AsetaTiedosto(tiedosto);
  rakennus_->Tallennettu = false;
  kumous_.Aloita(rakennus_.get());
  tiedostossa_ = talteenOtettu_ = 0;
  PaivitaOtsikko();
  NaytaPerustiedot();
}

/// Whatever the answer, the backup is kept under a name of its own, where no later save replaces it. Until there is an
/// answer it stays where it was, to be offered anew.
bool Istunto::TarjoaVarakopio() {
  const std::string varakopio = JaanytVarakopio();
  if (varakopio.empty()) return false;
  const Vastaus vastaus = Kysy(Teksti(tekstit::kAvataankoVarmuuskopio) + "\n\n" + Tuntomerkit(varakopio),
                               tekstit::kHuomautus, Napit::KyllaEi, Vastaus::Kylla);
  const std::string talteen = SailytaAjalla(varakopio);
  if (vastaus == Vastaus::Ei) {
    Ilmoita(Teksti(tekstit::kVarmuuskopioTalteen) + " " + talteen, Teksti(tekstit::kHuomautus));
    return false;
  }
  if (!VoiVaihtaa() || !VersioKay(talteen) || !Lataa(talteen)) return false;
  JatkaTallentamatta({});
  return true;
}

void Istunto::mnuSuljeKohde_Click() {
  if (!rakennus_ || EstaaVaraus() || !VoiVaihtaa()) return;
  SuljeKohde();
}

void Istunto::mnuEditUndo_Click() {
  if (EstaaVaraus()) return;
  kumous_.Kumoa();
  PaivitaOtsikko();
}

void Istunto::mnuEditRedo_Click() {
  if (EstaaVaraus()) return;
  kumous_.TeeUudelleen();
  PaivitaOtsikko();
}

void Istunto::HiljainenHetki() try {
  if (!KohdeValmis() || MalliVarattu()) return;
  const std::uint64_t nyt = rakennus_->Sormenjalki();
  if (nyt == talteenOtettu_) return;
  if (nyt == tiedostossa_)
    palautus_.Poista();
  else
    palautus_.Kirjoita(*rakennus_, Tiedosto(), rakennus_->LuettuTiedosto);
  talteenOtettu_ = nyt;
  palautusEpaonnistui_ = false;
} catch (const std::exception& virhe) {
  if (!std::exchange(palautusEpaonnistui_, true))
    ViestitNyt().AsetaPaneeli(Teksti(tekstit::kTalteenottoEiOnnistu) + " " + SyynKuvaus(virhe));
}

std::string PaaikkunanOtsikko(const std::string& teksti) {
  const clsRakennus* rakennus = GlobaaliRakennus();
  std::string loppu = teksti;
  if (loppu.empty() && rakennus)
    loppu = LyhennaPolku(rakennus->ProjektiAsetukset.strCurrentProjectFile, kPolkuOtsikossa);
  std::string otsikko = loppu.empty() ? Teksti(tekstit::kOhjelmanNimi) : Teksti(tekstit::kOhjelmanNimi) + " - " + loppu;
  if (!rakennus || !rakennus->Perustiedot.OletusarvotLaskettu) return otsikko;
  if (const std::string& nimi = rakennus->Perustiedot.KohteenNimi; !nimi.empty()) otsikko += " - " + nimi;
  return rakennus->Tallennettu ? otsikko : otsikko + " *";
}
