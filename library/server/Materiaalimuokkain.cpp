// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/server/Materiaalimuokkain.h"

#include "library/server/Kenttatyot.h"
#include "tekstit/lomakkeet_kirjasto.h"
#include "ui/Kenttatarkistus.h"

Materiaalimuokkain::Materiaalimuokkain(const Kirjastot& kirjastot, Kirjastomateriaali materiaali)
    : materiaali_(std::move(materiaali)),
      tallennus_(kirjastot,
                 {[this](Kayttajankirjasto& kirjasto) { return kirjasto.Tallenna(materiaali_); },
                  [this] { materiaali_.Id.clear(); }, tekstit::kMateriaaliPoistettu},
                 KayttoLiittyma.lblTila) {
  KayttoLiittyma.MateriaaliMuuttui = [this] { KayttoLiittyma_MateriaaliMuuttui(); };
  KayttoLiittyma.KentastaPoistuttu = [this] { TarkistaLukukentat(KayttoLiittyma); };
  KayttoLiittyma.SuljeKlikattu = [this] {
    if (tallennus_.VoiSulkea()) KayttoLiittyma.Sulje();
  };
  LueDataluokka();
}

void Materiaalimuokkain::LueDataluokka() {
  KayttoLiittyma.txtNimi.Teksti(materiaali_.Aine.Nimi);
  KayttoLiittyma.txtRyhma.Teksti(materiaali_.Ryhma);
  KayttoLiittyma.txtLahde.Teksti(materiaali_.Lahde);
  KayttoLiittyma.txtLambda.Luku(materiaali_.Aine.Lambda, "0.00##");
  KayttoLiittyma.txtTiheys.Luku(materiaali_.Aine.Tiheys, "0.##");
  KayttoLiittyma.txtOminaislampo.Luku(materiaali_.Aine.Ominaislampo, "0.0##");
  KayttoLiittyma.txtMuKuiva.Luku(materiaali_.MuKuiva, "0.##");
  KayttoLiittyma.txtMuMarka.Luku(materiaali_.MuMarka, "0.##");
}

void Materiaalimuokkain::KirjoitaDataluokka() {
  LueTeksti(KayttoLiittyma.txtNimi, materiaali_.Aine.Nimi, true);
  LueTeksti(KayttoLiittyma.txtRyhma, materiaali_.Ryhma);
  LueTeksti(KayttoLiittyma.txtLahde, materiaali_.Lahde);
  LueRajoissa(KayttoLiittyma.txtLambda, materiaali_.Aine.Lambda);
  LueRajoissa(KayttoLiittyma.txtTiheys, materiaali_.Aine.Tiheys);
  LueRajoissa(KayttoLiittyma.txtOminaislampo, materiaali_.Aine.Ominaislampo);
  LueRajoissa(KayttoLiittyma.txtMuKuiva, materiaali_.MuKuiva);
  LueRajoissa(KayttoLiittyma.txtMuMarka, materiaali_.MuMarka);
}

void Materiaalimuokkain::KayttoLiittyma_MateriaaliMuuttui() {
  KirjoitaDataluokka();
  if (!tallennus_.Tallenna()) KayttoLiittyma.Sulje();
}
