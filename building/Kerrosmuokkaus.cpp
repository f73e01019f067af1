// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/Kerrosmuokkaus.h"

#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "library/clsRakennekerros.h"
#include "ui/frmRakennekerroksenMuokkaaminen.h"

namespace {

constexpr const char* kVastus = "0.00##";  // m²K/W
constexpr const char* kEiVastusta = "---";

using Aine = frmRakennekerroksenMuokkaaminen::Aine;

struct Ainekentta {
  TextBox Aine::*kentta;
  float Materiaali::*luku;
  const char* kuvio;
};
constexpr Ainekentta kAinekentat[] = {
    {&Aine::lambda, &Materiaali::Lambda, "0.0####"},
    {&Aine::tiheys, &Materiaali::Tiheys, "### ##0.##"},
    {&Aine::ominaislampo, &Materiaali::Ominaislampo, "0.0##"},
};

void LueAine(const Aine& kentat, const Materiaali& aine) {
  kentat.nimi.Teksti(aine.Nimi);
  for (const Ainekentta& k : kAinekentat) (kentat.*k.kentta).Luku(aine.*k.luku, k.kuvio);
}

void KirjoitaAine(const Aine& kentat, Materiaali& aine) {
  aine.Nimi = kentat.nimi.Teksti();
  for (const Ainekentta& k : kAinekentat) LueArvo(kentat.*k.kentta, aine.*k.luku);
}

void LueDataluokka(frmRakennekerroksenMuokkaaminen& lomake, const clsRakennekerros& kerros) {
  lomake.txtKerroksenNimi.Teksti(kerros.Nimi);
  lomake.txtPaksuus.Luku(kerros.Paksuus, "### ##0.##");
  lomake.chkUArvoon.Valittu(kerros.UArvoon);
  lomake.chkHomogeeninen.Valittu(kerros.Yhtenainen);
  LueAine(lomake.paamateriaali, kerros.Materiaali);
  LueAine(lomake.lisamateriaali, kerros.Lisamateriaali);
  lomake.txtLisamateriaalinOsuus.Luku(kerros.LisamateriaalinOsuus, "0.0#");
  lomake.txtLammonvastus.Luku(kerros.Lammonvastus, kVastus);
  lomake.PaivitaKentat();
}

/// A field that holds no number yet leaves its value as it was.
void KirjoitaDataluokka(const frmRakennekerroksenMuokkaaminen& lomake, clsRakennekerros& kerros) {
  kerros.Nimi = lomake.txtKerroksenNimi.Teksti();
  LueArvo(lomake.txtPaksuus, kerros.Paksuus);
  kerros.UArvoon = lomake.chkUArvoon.Valittu();
  kerros.Yhtenainen = lomake.chkHomogeeninen.Valittu();
  KirjoitaAine(lomake.paamateriaali, kerros.Materiaali);
  KirjoitaAine(lomake.lisamateriaali, kerros.Lisamateriaali);
  LueArvo(lomake.txtLisamateriaalinOsuus, kerros.LisamateriaalinOsuus);
  LueArvo(lomake.txtLammonvastus, kerros.Lammonvastus);
}

/// The layer's own resistance, surfaces left out.
void NaytaVastus(const frmRakennekerroksenMuokkaaminen& lomake, const clsRakennekerros& kerros) {
  const ::Kerros laskettava[] = {kerros.Laskentakerros()};
  const LammonlapaisyTulos tulos = LaskeLammonlapaisy(laskettava, 0, 0, 0, 0);
  lomake.txtKerroksenVastus.Teksti(tulos.onArvo ? Muotoile(tulos.R, kVastus) : kEiVastusta);
}

}  // namespace

bool MuokkaaKerrosta(clsRakennekerros& kerros) try {
  frmRakennekerroksenMuokkaaminen lomake;
  clsRakennekerros muokattu = kerros;
  bool hyvaksytty = false;
  lomake.DataMuuttui = [&] {
    KirjoitaDataluokka(lomake, muokattu);
    NaytaVastus(lomake, muokattu);
  };
  lomake.OkKlikattu = [&] {
    KirjoitaDataluokka(lomake, muokattu);
    hyvaksytty = true;
    lomake.Sulje();
  };
  lomake.PeruutaKlikattu = [&] { lomake.Sulje(); };
  LueDataluokka(lomake, muokattu);
  NaytaVastus(lomake, muokattu);
  lomake.NaytaModaalisena();
  if (hyvaksytty) kerros = muokattu;
  return hyvaksytty;
} catch (...) {
  NostaVirhe("Kerrosmuokkaus:MuokkaaKerrosta Method");
}
