// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/Toimenpidelaskenta.h"

#include <filesystem>
#include <stdexcept>
#include <vector>

#include "batch/Tulokset.h"
#include "batch/Viestinkeruu.h"
#include "building/Yhteiset.h"
#include "building/clsRakennus.h"
#include "kernel/Luetteleminen.h"
#include "kernel/Virhe.h"
#include "measures/Muunnelma.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "measures/clsToimenpiteidenJarjestelija.h"

namespace {

clsSaastotoimenpide& EtsiToimenpide(const clsSaastotoimenpiteet& toimenpiteet, const std::string& haettu) {
  if (clsSaastotoimenpide* avaimella = toimenpiteet.Etsi(haettu)) return *avaimella;
  std::vector<clsSaastotoimenpide*> nimella;
  std::vector<std::string> avaimet, nimet;
  for (clsSaastotoimenpide& toimenpide : toimenpiteet) {
    nimet.push_back(toimenpide.Nimi);
    if (toimenpide.Nimi != haettu) continue;
    nimella.push_back(&toimenpide);
    avaimet.push_back(toimenpide.sKey.Teksti());
  }
  if (nimella.empty())
    throw std::runtime_error("kohteessa ei ole toimenpidettä " + haettu + ". Toimenpiteet: " + Luettele(nimet));
  if (nimella.size() > 1)
    throw std::runtime_error("nimi " + haettu + " on usealla toimenpiteellä. Anna avain: " + Luettele(avaimet));
  return *nimella.front();
}

/// Writes the changes into the building for good, all of them or an error.
void Toteuta(clsRakennus& rakennus, const clsSaastotoimenpide& toimenpide) {
  if (toimenpide.Kelluva())
    throw std::runtime_error("toimenpide " + toimenpide.Nimi +
                             " koskee omaa kulutusryhmäänsä, jota kohteen mallissa ei ole, joten sitä ei voi viedä");
  Muunnelma muunnelma(rakennus, toimenpide.MuuttuneetAttribuutit);
  std::vector<std::string> ohitetut;
  for (const Muunnelma::Ohitettu& ohitettu : muunnelma.Ohitetut()) ohitetut.push_back(ohitettu.nimi);
  if (!ohitetut.empty()) throw std::runtime_error("kaikkia muutoksia ei voitu tehdä: " + Luettele(ohitetut));
  muunnelma.Jata();
}

}  // namespace

std::optional<std::string> LaskeToimenpiteetUudelleen(clsRakennus& rakennus) try {
  for (clsSaastotoimenpide& toimenpide : rakennus.Saastotoimenpiteet)
    toimenpide.EnnenTiedotUpToDate = toimenpide.JalkeenTiedotUpToDate = false;
  rakennus.ToimenpiteidenJarjestelija.PaivitaValitutToimenpiteet();
  return std::nullopt;
} catch (const Virhe& virhe) {
  return virhe.Lahde() + ": " + virhe.SyynKuvaus();
}

void VieToimenpide(const std::string& tiedosto, const std::string& toimenpide, const std::string& uusi) {
  if (std::filesystem::exists(uusi)) throw std::runtime_error("tiedosto " + uusi + " on jo olemassa. Anna toinen nimi");
  const Viestinkeruu viestit;
  clsRakennus rakennus;
  AsetaGlobaaliRakennus(&rakennus);
  rakennus.Hae(tiedosto);
  const clsSaastotoimenpide& toteutettava = EtsiToimenpide(rakennus.Saastotoimenpiteet, toimenpide);
  Toteuta(rakennus, toteutettava);
  rakennus.Muuttui(toteutettava.Nimi);
  if (!rakennus.Tallenna(uusi)) throw std::runtime_error(Luettele(Viestirivit(viestit)));
}
