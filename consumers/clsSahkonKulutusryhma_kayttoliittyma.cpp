// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog of an electricity consumer group.
#include "building/Muokkausistunto.h"
#include "building/Tilavalinta.h"
#include "building/Yhteiset.h"
#include "building/clsRakennus.h"
#include "consumers/clsSahkonKulutusryhmat.h"
#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "tekstit/rakennus.h"
#include "ui/Hiljaa.h"
#include "ui/Sidonta.h"
#include "ui/Tekstivarasto.h"
#include "ui/frmTarkennettuLaiteLaskenta.h"

namespace {

using Ryhma = clsSahkonKulutusryhma;

constexpr const char* kEnergia = "### ##0.00";  // MWh/a

std::int32_t RyhmanTila(const Ryhma& ryhma) { return TilanRivi(ryhma.LiittyyTilaansKey); }
void AsetaTila(Ryhma& ryhma, std::int32_t rivi) {
  ryhma.LiittyyTilaansKey = RivinTila(rivi);
  ryhma.LiittyyTilaanStr = RivinTilanNimi(rivi);
}
bool OnTeho(const Ryhma& ryhma) { return ryhma.LaskentatapaTehopohjainen(); }
void AsetaTeho(Ryhma& ryhma, bool teho) { ryhma.LaskentatapaTehopohjainen(teho); }
bool OnEnergia(const Ryhma& ryhma) { return ryhma.LaskentatapaEnergiapohjainen(); }
void AsetaEnergia(Ryhma& ryhma, bool energia) { ryhma.LaskentatapaEnergiapohjainen(energia); }

const Sidontataulu kSidonnat{
    "frmTarkennettuLaiteLaskenta",
    {
        Tekstikentta<&Ryhma::KulutusRyhma>("txtKulutusRyhmanNimi"),
        Valintakentta<Funktiot<RyhmanTila, AsetaTila>>("cmbLiittyyTilaan"),
        Rastikentta<&Ryhma::EnergiaHyodynnetaanLammityksessa>("chkHyodynnetaanLammityksessa"),
        Rastikentta<Funktiot<OnTeho, AsetaTeho>>("optLaskentatapa0"),
        Rastikentta<Funktiot<OnEnergia, AsetaEnergia>>("optLaskentatapa1"),
        Nappikentta<&Ryhma::LaskentatapaEnergiapohjainenIndex, std::int16_t{0}>("optEnergiamoodit0"),
        Nappikentta<&Ryhma::LaskentatapaEnergiapohjainenIndex, std::int16_t{1}>("optEnergiamoodit1"),
        Nappikentta<&Ryhma::LaskentatapaEnergiapohjainenIndex, std::int16_t{2}>("optEnergiamoodit2"),
        Valintakentta<&Ryhma::LaskentaperusteID, &Ryhma::LaskentaperusteStr>("cmbLaskentaOminaissuure"),
        Lukukentta<&Ryhma::LaskentaperusteNumber>("txtOminaissuureidenMaara", "0.0#####"),
        Lukukentta<&Ryhma::LaskentayksikkoNumber>("txtLaskentaYksikoidenMaara", "0.0"),
        Tekstikentta<&Ryhma::Laskentayksikko>("txtLaskentayksikko"),
        Lukukentta<&Ryhma::KayttoaikaHpD>("txtKayttomaaraTunnitVrk_ssa", "0.0"),
        Lukukentta<&Ryhma::KayttoaikaDpA>("txtKayttomaaraVrktVuodessa", "0"),
        Lukukentta<&Ryhma::Tasauskerroin>("txtTasauskerroin", "0.00"),
        Lukukentta<&Ryhma::KulutusryhmienLukumaara>("txtKulutusRyhmienMaara", "0"),
        Lukukentta<&Ryhma::SyötettyKulutus>("txtKulutus2", "0.0"),
    }};

std::vector<std::string> Tilavalinnat() {
  std::vector<std::string> rivit = TilojenNimet();
  rivit.insert(rivit.begin(), Teksti(tekstit::kViiva));
  return rivit;
}

/// Takes what the person has written and shows what comes of it.
void Laske(const frmTarkennettuLaiteLaskenta& lomake, Ryhma& ryhma) {
  kSidonnat.Kirjoita(lomake, ryhma);
  std::optional<double> tunnit, yhden, kaikkien;
  if (lomake.TekijatLuettavissa()) {
    tunnit = ryhma.KayttoaikaHpD * ryhma.KayttoaikaDpA;
    yhden = LaskeHiljaa([&] { return ryhma.YhdenVuosikulutus(); });
    if (LueLuku(lomake.txtKulutusRyhmienMaara.Teksti())) kaikkien = LaskeHiljaa([&] { return ryhma.Vuosikulutus(); });
  }
  lomake.lblMuuntokerroin.Otsikko(Muotoile(ryhma.Muuntokerroin(), "0"));
  lomake.NaytaTulos(lomake.txth_per_a, tunnit, "### ##0.##");
  lomake.NaytaTulos(lomake.txtKulutus, yhden, kEnergia);
  lomake.NaytaTulos(lomake.txtKokonaiskulutus, kaikkien, kEnergia);
}

/// False for a group that a saving measure owns: the building didn't change with it.
bool OnElavassaMallissa(const Ryhma& ryhma) { return VaadiRakennus().SahkonKulutusryhmat.Etsi(ryhma.sKey) == &ryhma; }

}  // namespace

bool clsSahkonKulutusryhma::NaytaKayttoliittyma(Muokkaus muokkaus) try {
  frmTarkennettuLaiteLaskenta lomake;
  lomake.LaskentaMuuttui = [&] { Laske(lomake, *this); };
  Muokkausistunto istunto(*this, lomake,
                          {.nimi = KulutusRyhma,
                           .elava = OnElavassaMallissa(*this),
                           .lue =
                               [&] {
                                 lomake.cmbLiittyyTilaan.Rivit(Tilavalinnat());
                                 lomake.Yksikot(LaskentatapaTehopohjainen());
                                 kSidonnat.Lue(lomake, *this);
                                 lomake.Taytetty();
                                 if (muokkaus == Muokkaus::TilaLukittu) lomake.LukitseTila();
                               },
                           .kirjoita = [&] { kSidonnat.Kirjoita(lomake, *this); },
                           .tapahtuma = DataMuuttui.arvo});
  return istunto.Nayta();
} catch (...) {
  NostaVirhe("clsSahkonKulutusryhma:NaytaKayttoliittyma Method");
}
