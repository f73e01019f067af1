// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmRaportti.h"

frmRaportti::frmRaportti() : Muokkauslomake("frmRaportti") {
  lvwOsat.KunRastitetaan([this](int rivi, bool rasti) {
    osat_.at(static_cast<std::size_t>(rivi)).mukana = rasti;
    TaytaLista();
  });
  cmdTaulukko.KunKlikataan([this] { Nosta(TaulukkoKlikattu); });
  cmdPdf.KunKlikataan([this] { Nosta(PdfKlikattu); });
}

void frmRaportti::NaytaOsat(std::vector<Osa> osat) {
  osat_ = std::move(osat);
  TaytaLista();
}

void frmRaportti::TaytaLista() {
  Luettelosisalto sisalto;
  for (const Osa& osa : osat_) {
    Luettelorivi rivi{{osa.otsikko}};
    rivi.avain = osa.nimi;
    rivi.piirteet.rasti = osa.mukana;
    sisalto.rivit.push_back(std::move(rivi));
  }
  lvwOsat.Tayta(std::move(sisalto));
}
