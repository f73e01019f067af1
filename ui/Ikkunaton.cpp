// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Ikkunaton.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <pugixml.hpp>
#include <stdexcept>
#include <utility>

#include "kernel/Kirjainkoko.h"
#include "ui/Asettelu.h"

/// Remembers where the program has put the focus.
class IkkunatonOhjain : public Ohjain {
 public:
  IkkunatonOhjain(Ikkunaton& ikkuna, Ohjainkuvaus kuvaus) : Ohjain(ikkuna, std::move(kuvaus)), ikkuna_(ikkuna) {}

 protected:
  void Paivita(Piirre piirre) override {
    if (piirre == Piirre::Tekstivalinta) ikkuna_.tekstiValittu_ = true;
    if (piirre != Piirre::Kohdistus) return;
    ikkuna_.kohdistettu_ = Nimi();
    ikkuna_.tekstiValittu_ = false;
  }

 private:
  Ikkunaton& ikkuna_;
};

namespace {

std::string Ominaisuus(const pugi::xml_node& widget, const char* nimi) {
  return widget.find_child_by_attribute("property", "name", nimi).first_child().text().get();
}

bool EiOleEpatosi(const pugi::xml_node& widget, const char* nimi) { return Ominaisuus(widget, nimi) != "false"; }

std::vector<Osa> LueOsat(const pugi::xml_node& widget, Ohjaintyyppi tyyppi) {
  std::vector<Osa> osat;
  if (tyyppi == Ohjaintyyppi::TabStrip)
    for (const pugi::xml_node sivu : widget.children("widget"))
      osat.push_back({.otsikko = {},
                      .tag = Ominaisuus(sivu, "Tag"),
                      .vihjetag = Ominaisuus(sivu, "ToolTipText"),
                      .nimi = sivu.attribute("name").value()});
  if (tyyppi == Ohjaintyyppi::ListView)
    for (const pugi::xml_node sarake :
         widget.find_child_by_attribute("property", "name", "Sarakkeet").child("stringlist").children("string"))
      osat.push_back(Sarakkeeksi(sarake.text().get()));
  return osat;
}

Ohjainkuvaus LueKuvaus(const pugi::xml_node& widget, Ohjaintyyppi tyyppi, const std::string& sailio) {
  Ohjainkuvaus k;
  k.nimi = widget.attribute("name").value();
  k.tyyppi = tyyppi;
  k.tag = Ominaisuus(widget, "Tag");
  k.vihjetag = Ominaisuus(widget, "ToolTipText");
  k.teksti = Ominaisuus(widget, tyyppi == Ohjaintyyppi::Frame ? "title" : "text");
  k.sailio = sailio;
  k.kumppani = Ominaisuus(widget, "buddy");
  k.nimio = Ominaisuus(widget, "Nimio");
  k.lukittu = Ominaisuus(widget, "readOnly") == "true";
  k.kaytossa = EiOleEpatosi(widget, "enabled");
  k.nakyva = EiOleEpatosi(widget, "visible");
  k.osat = LueOsat(widget, tyyppi);
  return k;
}

/// Descriptions of all controls below the node, in the order of the file.
void KeraaKuvaukset(const pugi::xml_node& solmu, const std::string& sailio, std::vector<Ohjainkuvaus>& kuvaukset) {
  for (const pugi::xml_node lapsi : solmu.children()) {
    const bool onWidget = std::string_view(lapsi.name()) == "widget";
    Ohjaintyyppi tyyppi;
    if (onWidget && TyyppiLuokasta(lapsi.attribute("class").value(), tyyppi))
      kuvaukset.push_back(LueKuvaus(lapsi, tyyppi, sailio));
    KeraaKuvaukset(lapsi, onWidget ? lapsi.attribute("name").value() : sailio, kuvaukset);
  }
}

pugi::xml_document LueLomaketiedosto(const std::string& polku) {
  pugi::xml_document tiedosto;
  if (const auto tulos = tiedosto.load_file(polku.c_str()); !tulos)
    throw std::runtime_error(polku + ": " + tulos.description());
  return tiedosto;
}

/// Captions of what the person can choose from: rows of a list, pages of a tab control.
std::vector<std::string> Valittavat(const Ohjain& ohjain) {
  std::vector<std::string> otsikot;
  for (const auto& rivi : ohjain.Rivit()) otsikot.push_back(rivi.empty() ? std::string() : rivi.front());
  if (ohjain.Tyyppi() == Ohjaintyyppi::TabStrip)
    for (const Osa& sivu : ohjain.Osat()) otsikot.push_back(sivu.otsikko);
  return otsikot;
}

[[noreturn]] void LopetaVirheeseen(const std::string& virhe) {
  std::fprintf(stderr, "%s\n", virhe.c_str());
  std::abort();
}

void (*g_virheenKertoja)(const std::string& virhe) = LopetaVirheeseen;

int ValittavanPaikka(const Ohjain& ohjain, std::string_view teksti) {
  const auto otsikot = Valittavat(ohjain);
  const auto it = std::ranges::find(otsikot, teksti);
  if (it == otsikot.end()) throw std::logic_error(ohjain.Nimi() + ": ei ole valittavana " + std::string(teksti));
  return static_cast<int>(it - otsikot.begin());
}

}  // namespace

Ikkunaton::Ikkunaton(Ikkunattomat& omistaja, std::string nimi) : omistaja_(omistaja), nimi_(std::move(nimi)) {
  const pugi::xml_document tiedosto = LueLomaketiedosto(omistaja_.Kansio() + "/" + nimi_ + ".ui");
  const pugi::xml_node juuri = tiedosto.child("ui").child("widget");
  AsetaTag(Ominaisuus(juuri, "Tag"));
  std::vector<Ohjainkuvaus> kuvaukset;
  KeraaKuvaukset(juuri, nimi_, kuvaukset);
  const Asettelu asettelu(juuri);
  for (Ohjainkuvaus& kuvaus : kuvaukset) kuvaus.paikka = asettelu[kuvaus.nimi];
  for (Ohjainkuvaus& kuvaus : kuvaukset) Lisaa(std::make_unique<IkkunatonOhjain>(*this, std::move(kuvaus)));
  omistaja_.ikkunat_.push_back(this);
}

Ikkunaton::~Ikkunaton() { std::erase(omistaja_.ikkunat_, this); }

Ohjain& Ikkunaton::Kaytettava(std::string_view nimi) const {
  Ohjain& ohjain = Etsi(nimi);
  if (!ohjain.Kaytossa() || !ohjain.Nakyva())
    throw std::logic_error(nimi_ + ": ohjain " + ohjain.Nimi() + " ei ole käytettävissä");
  return ohjain;
}

void Ikkunaton::KayttajaKirjoittaa(std::string_view nimi, std::string teksti) {
  Ohjain& kentta = Kaytettava(nimi);
  if (kentta.Lukittu()) throw std::logic_error(nimi_ + ": kenttä " + kentta.Nimi() + " on lukittu");
  kentta.KayttajaKirjoittaa(std::move(teksti));
}

void Ikkunaton::KayttajaPoistuu(std::string_view nimi) { Kaytettava(nimi).KayttajaPoistuu(); }

void Ikkunaton::KayttajaValitsee(std::string_view nimi, std::string_view rivi) {
  Ohjain& ohjain = Kaytettava(nimi);
  ohjain.KayttajaValitsee(ohjain.Tyyppi() == Ohjaintyyppi::ListView ? Rivi(ohjain, rivi)
                                                                    : ValittavanPaikka(ohjain, rivi));
}

/// A row of a list that the person can see.
int Ikkunaton::Rivi(const Ohjain& lista, std::string_view rivi) const {
  const int paikka = ValittavanPaikka(lista, rivi);
  if (!lista.Lista().Nakyvissa(paikka))
    throw std::logic_error(nimi_ + ": rivi " + std::string(rivi) + " on suljetussa haarassa");
  return paikka;
}

void Ikkunaton::KayttajaAvaa(std::string_view nimi, std::string_view rivi, bool auki) {
  Ohjain& lista = Kaytettava(nimi);
  lista.KayttajaAvaa(Rivi(lista, rivi), auki);
}

void Ikkunaton::KayttajaMuokkaa(std::string_view nimi, std::string_view rivi, int sarake, const std::string& teksti) {
  Ohjain& lista = Kaytettava(nimi);
  const int paikka = Rivi(lista, rivi);
  if (!lista.Lista().Muokattava(paikka, sarake))
    throw std::logic_error(nimi_ + ": rivin " + std::string(rivi) + " solu on lukittu");
  lista.KayttajaMuokkaa(paikka, sarake, teksti);
}

void Ikkunaton::KayttajaSiirtaa(std::string_view nimi, std::string_view rivi, std::string_view ylempi) {
  Ohjain& lista = Kaytettava(nimi);
  const int paikka = Rivi(lista, rivi), kohde = ylempi.empty() ? Luettelo::kEiRivia : Rivi(lista, ylempi);
  if (!lista.VoiSiirtaa(paikka, kohde))
    throw std::logic_error(nimi_ + ": riviä " + std::string(rivi) + " ei voi siirtää");
  lista.KayttajaSiirtaa(paikka, kohde);
}

void Ikkunaton::KayttajaJarjestaa(std::string_view nimi, std::string_view rivi, std::string_view edellinen) {
  Ohjain& lista = Kaytettava(nimi);
  const int paikka = Rivi(lista, rivi), kohde = Rivi(lista, edellinen);
  if (!lista.VoiJarjestaa(paikka, kohde))
    throw std::logic_error(nimi_ + ": riviä " + std::string(rivi) + " ei voi siirtää");
  lista.KayttajaJarjestaa(paikka, kohde);
}

void Ikkunaton::KayttajaRastittaa(std::string_view nimi, std::string_view rivi) {
  Ohjain& lista = Kaytettava(nimi);
  const int paikka = Rivi(lista, rivi);
  if (!lista.Lista().Piirteet(paikka).rasti)
    throw std::logic_error(nimi_ + ": rivillä " + std::string(rivi) + " ei ole ruutua");
  lista.KayttajaRastittaa(paikka);
}

void Ikkunaton::KayttajaPainaa(std::string_view nimi) { Kaytettava(nimi).KayttajaPainaa(); }

void Ikkunaton::NaytaModaalisena() {
  auki_ = true;
  omistaja_.Suorita(*this);
}

Ikkunattomat::Ikkunattomat(std::string kansio) : kansio_(std::move(kansio)) {
  AsetaLomakesovitin([this](const std::string& nimi) { return std::make_unique<Ikkunaton>(*this, nimi); });
}

Ikkunattomat::~Ikkunattomat() {
  AsetaLomakesovitin(nullptr);
  for (const std::string& virhe : virheet_) g_virheenKertoja(virhe);
}

void Ikkunattomat::AsetaVirheenKertoja(void (*kertoja)(const std::string& virhe)) { g_virheenKertoja = kertoja; }

void Ikkunattomat::KunNaytetaan(const std::string& nimi, Kasikirjoitus kasikirjoitus) {
  kasikirjoitukset_[nimi] = std::move(kasikirjoitus);
}

void Ikkunattomat::Suorita(Ikkunaton& ikkuna) {
  try {
    kasikirjoitukset_.at(ikkuna.Nimi())(ikkuna);
  } catch (const std::exception& virhe) {
    virheet_.push_back(ikkuna.Nimi() + ": " + virhe.what());
  }
  if (ikkuna.Auki()) virheet_.push_back(ikkuna.Nimi() + ": modaalinen lomake jäi auki");
  ikkuna.Sulje();
}

Ikkunaton& Ikkunattomat::Ikkuna(std::string_view nimi) const {
  for (auto it = ikkunat_.rbegin(); it != ikkunat_.rend(); ++it)
    if (SamaNimi((*it)->Nimi(), nimi)) return **it;
  throw std::logic_error("lomake ei ole auki: " + std::string(nimi));
}

std::vector<std::string> Ikkunattomat::Virheet() { return std::exchange(virheet_, {}); }
