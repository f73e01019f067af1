// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Ohjelma.h"

#include <QApplication>
#include <QSessionManager>
#include <QTimer>
#include <chrono>
#include <iostream>
#include <string>

#include "building/Yhteiset.h"
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "kernel/Hakemistot.h"
#include "kernel/Versio.h"
#include "pdf/Pdfraportti.h"
#include "results/raportti/Raporttiikkuna.h"
#include "settings/Asetusavaimet.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "tekstit/paaikkuna.h"
#include "tekstit/viestit.h"
#include "ui/KerataanViestit.h"
#include "ui/Komento.h"
#include "ui/Lomakekaannos.h"
#include "ui/Odotus.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestikooste.h"
#include "ui/qt/QtIkkuna.h"

namespace {

constexpr std::chrono::milliseconds kUusiYritys{100};
constexpr std::chrono::seconds kTalteenottovali{15};

std::string Versioteksti() {
  return std::to_string(kVersioMajor) + "." + std::to_string(kVersioMinor) + "." + std::to_string(kVersioRevision) +
         " SP2 Win NT 4.0, Win 95, 2000";
}

/// Data directory and texts: what everything else, the first message too, needs.
void LueAineistot() {
  const Siemennys siemennys = SiemennaTiedostot();
  AlustaTekstit();
  if (!siemennys.virhe.empty())
    Ilmoita(Teksti(tekstit::kTietokansioonEiVoiKirjoittaa) + " " + AppPath() + "\n" + siemennys.virhe,
            Teksti(tekstit::kVirhe), Vakavuus::Varoitus);
}

void LueAsetukset() {
  PaivitaKaynnistyksessa();
  Asetukset().HaeRekisteristä();
  AsetaRahayksikko(Asetukset().strDefaultCurrencyUnit);
}

Kirjastoyhteystiedot KirjastojenPaikat() {
  return {.koti = AppPath(),
          .ohjelma = Kirjastopalvelinohjelma(),
          .kayttajanKanta = [] { return Asetukset().strKayttajanTietokanta; },
          .vakiokanta = [] { return Asetukset().strVakioTietokanta; },
          .valmistumisvuosi =
              [] {
                const clsRakennus* rakennus = GlobaaliRakennus();
                return rakennus ? rakennus->Perustiedot.ValmistumisVuosi : 0;
              }};
}

/// The welcome page of the guide, once per user.
void Tervehdi() {
  if (HaeAsetus(Avain::NäytaTervehdys) != "1") return;
  TallennaAsetus(Avain::NäytaTervehdys, "0");
  AvaaOhje(kOhjeTervetuloa);
}

std::unique_ptr<frmSplash> TeeAlkuikkuna() {
  auto alku = std::make_unique<frmSplash>();
  alku->lblVersio.Otsikko(Versioteksti());
  alku->cmdJatka.Kaytossa(false);
  return alku;
}

/// A command that waits for the person in a dialog may be left; one that computes or writes may not.
bool KomentoKesken() { return KomentoKaynnissa() && !QApplication::activeModalWidget(); }

}  // namespace

Ohjelma::Ohjelma() : lopetussignaali_([this] { Lopeta(); }) {
  Lataa();
  viestit_.AsetaPaneeli(Teksti(tekstit::kValmis));
  QObject::connect(qApp, &QGuiApplication::commitDataRequest, paaikkuna_.get(), [this](QSessionManager& istunto) {
    if (istunto.allowsInteraction() && !paaikkuna_->IstuntoPaattyy()) istunto.cancel();
  });
  QTimer::singleShot(0, paaikkuna_.get(), [this] { Nayta(); });
}

void Ohjelma::Lataa() {
  const Odotus odotus;
  LueAineistot();
  AsetaPdfkirjoitin(KirjoitaPdfraportti);
  AsetaQtLomakkeet(nullptr);
  frmSplash_ = TeeAlkuikkuna();
  frmSplash_->Nayta();
  viestit_.AnnaPiirtaa();
  paaikkuna_ = std::make_unique<frmMain>(istunto_);
  viestit_.AsetaPaneelinNaytto([this](const std::string& teksti) { paaikkuna_->AsetaPaneeli(teksti); });
  SuoritaKomento(LueAsetukset);
  kirjastot_ = std::make_unique<Kirjastoyhteys>(KirjastojenPaikat());
  QObject::connect(&hiljainenHetki_, &QTimer::timeout, paaikkuna_.get(), [this] {
    if (OnHiljaista()) SuoritaKomento([this] { istunto_.HiljainenHetki(); });
  });
  hiljainenHetki_.start(kTalteenottovali);
}

Ohjelma::~Ohjelma() { istunto_.SuljeKohde(); }

void Ohjelma::Nayta() {
  paaikkuna_->show();
  viestit_.AnnaPiirtaa();
  frmSplash_->Sulje();
  bool avattu = false;
  SuoritaKomento([&] { avattu = istunto_.TarjoaJaaneet(); });
  if (!avattu) NaytaAlkuikkuna();
  frmSplash_.reset();
  SuoritaKomento(Tervehdi);
}

/// Closing the start window without its button leaves the choice to the menus.
void Ohjelma::NaytaAlkuikkuna() {
  bool jatketaan = false;
  frmSplash_->JatkaKlikattu = [&] {
    jatketaan = true;
    frmSplash_->Sulje();
  };
  frmSplash_->cmdJatka.Kaytossa(true);
  frmSplash_->NaytaModaalisena();
  if (jatketaan) ValitseAlku(frmSplash_->Option1.Valittu());
}

void Ohjelma::ValitseAlku(bool uusi) {
  SuoritaKomento([&] { uusi ? istunto_.mnuFileNew_Click() : istunto_.mnuFileOpen_Click(); });
}

void Ohjelma::Lopeta() {
  if (lopetetaan_) return;
  if (KomentoKesken()) return QTimer::singleShot(kUusiYritys, paaikkuna_.get(), [this] { Lopeta(); });
  lopetetaan_ = true;
  istunto_.HiljainenHetki();
  if (paaikkuna_->IstuntoPaattyy()) {
    istunto_.SuljeKohde();
    QApplication::exit();
  }
  lopetetaan_ = false;
}

int KuvaaPaaikkuna(const std::string& kuva, const std::string& avattava) {
  KerataanViestit viestit;
  AsetaViestit(&viestit);
  bool onnistui = false;
  SuoritaKomento([&] {
    LueAineistot();
    Istunto istunto;
    frmMain ikkuna(istunto);
    LueAsetukset();
    ikkuna.AsetaPaneeli(Teksti(tekstit::kValmis));
    ikkuna.show();
    if (!avattava.empty() && istunto.Avaa(avattava)) istunto.Rakennus()->NaytaLampoYhteenvetoDlg();
    ikkuna.PaivitaValikot();
    QApplication::processEvents();
    onnistui = ikkuna.grab().save(QString::fromStdString(kuva));
    istunto.SuljeKohde();
  });
  std::cerr << KoosteTekstina(viestit.Naytetyt());
  AsetaViestit(nullptr);
  return onnistui ? 0 : 1;
}
