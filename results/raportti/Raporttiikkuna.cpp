// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/raportti/Raporttiikkuna.h"

#include "building/Muokkausistunto.h"
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "kernel/Virhe.h"
#include "results/Taulukkovienti.h"
#include "results/clsRaporttiasetukset.h"
#include "results/raportti/Raportinosat.h"
#include "results/raportti/Raporttikirja.h"
#include "tekstit/lomakkeet_raportti.h"
#include "ui/Odotus.h"
#include "ui/Tallennuskysely.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"
#include "ui/frmRaportti.h"

namespace {

constexpr Tallennettava kTaulukko{tekstit::kRapTallennaOtsikko, tekstit::kRapTaulukkotiedostot, ".xlsx"};
constexpr Tallennettava kPdf{tekstit::kRapTallennaOtsikko, tekstit::kRapPdftiedostot, ".pdf"};

Pdfkirjoitin pdfkirjoitin;

void Lue(frmRaportti& lomake, const clsRaporttiasetukset& asetukset) {
  std::vector<frmRaportti::Osa> osat;
  for (const Raporttiosarivi& rivi : Raporttiosat())
    osat.push_back({std::string(rivi.nimi), Teksti(rivi.otsikko), asetukset.OnMukana(rivi.nimi)});
  lomake.NaytaOsat(std::move(osat));
  lomake.txtNykytila.Teksti(asetukset.Nykytila);
  lomake.txtSuositus.Teksti(asetukset.Suositus);
}

void Kirjoita(const frmRaportti& lomake, clsRaporttiasetukset& asetukset) {
  for (const frmRaportti::Osa& osa : lomake.Osat()) asetukset.OtaMukaan(osa.nimi, osa.mukana);
  asetukset.Nykytila = lomake.txtNykytila.Teksti();
  asetukset.Suositus = lomake.txtSuositus.Teksti();
}

/// Makes the file. False, after telling why, when it can't be written.
bool Kirjoitettiin(const Raportti& raportti, const std::string& tiedosto, const Pdfkirjoitin& kirjoita) try {
  const Odotus odotus(Teksti(tekstit::kRapTehdaan));
  kirjoita(raportti, tiedosto);
  return true;
} catch (const std::exception& virhe) {
  Ilmoita(Lause(tekstit::kRapEiVoituKirjoittaa, {tiedosto, SyynKuvaus(virhe)}), Teksti(tekstit::kRapTallennaOtsikko),
          Vakavuus::Virhe);
  return false;
}

/// Makes the report of what stands in the dialog, and opens it. Where it can't be written another place is asked for.
void Tee(const frmRaportti& lomake, clsRakennus& rakennus, const Tallennettava& mika, const Pdfkirjoitin& kirjoita) {
  Kirjoita(lomake, rakennus.Raporttiasetukset);
  const std::string ehdotus =
      Taulukkotiedosto(rakennus.Perustiedot.KohteenNimi, Teksti(tekstit::kRapTiedostonimi)) + std::string(mika.paate);
  std::optional<Raportti> raportti;
  while (const auto tiedosto = KysyTallennuspaikka(mika, ehdotus)) {
    if (!raportti) {
      const Odotus odotus(Teksti(tekstit::kRapTehdaan));
      raportti = TeeRaportti(rakennus);
    }
    if (!Kirjoitettiin(*raportti, *tiedosto, kirjoita)) continue;
    if (!ViestitNyt().AvaaTiedosto(*tiedosto))
      Ilmoita(Lause(tekstit::kRapTehtiin, {*tiedosto}), Teksti(tekstit::kRapTallennaOtsikko));
    return;
  }
}

}  // namespace

void AsetaPdfkirjoitin(Pdfkirjoitin kirjoitin) { pdfkirjoitin = std::move(kirjoitin); }

void NaytaRaporttiikkuna(clsRakennus& rakennus) try {
  frmRaportti lomake;
  lomake.cmdPdf.Kaytossa(static_cast<bool>(pdfkirjoitin));
  lomake.TaulukkoKlikattu = [&] { Tee(lomake, rakennus, kTaulukko, KirjoitaRaporttikirja); };
  lomake.PdfKlikattu = [&] { Tee(lomake, rakennus, kPdf, pdfkirjoitin); };
  clsRaporttiasetukset& asetukset = rakennus.Raporttiasetukset;
  Muokkausistunto(asetukset, lomake,
                  {.nimi = rakennus.Perustiedot.KohteenNimi,
                   .lue = [&] { Lue(lomake, asetukset); },
                   .kirjoita = [&] { Kirjoita(lomake, asetukset); }})
      .Nayta();
} catch (...) {
  NostaVirhe("Raporttiikkuna:NaytaRaporttiikkuna Function");
}
