// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Valikkotaulu.h"

#include "app/Istunto.h"
#include "app/frmMain.h"
#include "building/clsTilat.h"
#include "consumers/clsSahkonKulutusryhmat.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "lifecycle/clsElinkaari.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "measures/clsToimenpiteidenJarjestelija.h"
#include "results/raportti/Raporttiikkuna.h"
#include "settings/clsKatselmoijienTiedot.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "supply/clsEnergiamuodonKasittely.h"
#include "supply/clsSahkoTariffienVertailu.h"
#include "tekstit/lomakkeet_raportti.h"
#include "tekstit/lomakkeet_taulukot.h"
#include "tekstit/paaikkuna.h"
#include "ui/Lomake.h"
#include "ui/Ohje.h"
#include "ui/Rakennekirjastolinkki.h"
#include "ui/Viestit.h"
#include "ui/qt/Selain.h"
#include "ui/qt/Tietoja.h"
#include "ventilation/clsIVKoneet.h"

namespace {

bool KohdeValmis(const frmMain& ikkuna) { return ikkuna.Kohteet().KohdeValmis(); }

/// A form that is open isn't opened a second time over the same model, nor any over the list of measures.
bool Avattavissa(const frmMain& ikkuna, std::string_view lomake) {
  return KohdeValmis(ikkuna) && !AvoinLomake(lomake) && !AvoinLomake("frmSaastoToimenpiteet");
}
bool LampoAvattavissa(const frmMain& ikkuna) { return Avattavissa(ikkuna, "frmLampoYhteenveto"); }
bool TilatAvattavissa(const frmMain& ikkuna) { return Avattavissa(ikkuna, "frmTilaYhteenveto"); }
bool KoneetAvattavissa(const frmMain& ikkuna) { return Avattavissa(ikkuna, "frmIVKoneYhteenveto"); }
bool SahkoAvattavissa(const frmMain& ikkuna) { return Avattavissa(ikkuna, "frmSahkoLaitteet"); }
bool VesiAvattavissa(const frmMain& ikkuna) { return Avattavissa(ikkuna, "frmVedenKulutus"); }
/// The lists of measures, the arranger and the comparison of tariffs: one at a time.
bool ToimenpiteetAvattavissa(const frmMain& ikkuna) {
  return Avattavissa(ikkuna, "frmSahkotariffiVertailu") && !AvoinLomake("frmToimenpiteidenJarjestelija");
}

bool VoiKumota(const frmMain& ikkuna) { return ikkuna.Kohteet().Askeleet().VoiKumota(); }
bool VoiTehdaUudelleen(const frmMain& ikkuna) { return ikkuna.Kohteet().Askeleet().VoiTehdaUudelleen(); }
std::string Kumottava(const frmMain& ikkuna) { return ikkuna.Kohteet().Askeleet().Kumottava(); }
std::string Uudelleentehtava(const frmMain& ikkuna) { return ikkuna.Kohteet().Askeleet().Uudelleentehtava(); }
bool KohdeAuki(const frmMain& ikkuna) { return ikkuna.Kohteet().Rakennus() != nullptr; }
bool TyokalutNakyvat(const frmMain& ikkuna) { return ikkuna.TyokalutNakyvat(); }
bool TilariviNakyy(const frmMain& ikkuna) { return ikkuna.TilariviNakyy(); }
bool VoiLeikata(const frmMain& ikkuna) { return ikkuna.Leike().VoiLeikata(); }
bool VoiKopioida(const frmMain& ikkuna) { return ikkuna.Leike().VoiKopioida(); }
bool VoiLiittaa(const frmMain& ikkuna) { return ikkuna.Leike().VoiLiittaa(); }
bool IkkunoitaAuki(const frmMain& ikkuna) { return ikkuna.IkkunoitaAuki(); }
bool VoiEsikatsella(const frmMain& ikkuna) { return KohdeValmis(ikkuna) && AktiivinenLomake(); }
bool VoiTulostaa(const frmMain& ikkuna) { return KohdeValmis(ikkuna) && frmMain::Tulostusnappi(); }

/// An entry whose module isn't built yet.
constexpr bool (*kTulossa)(const frmMain&) = [](const frmMain&) { return false; };

using Toiminto = void (*)(frmMain&);

/// An entry that nothing was made for: kept with its message, and not shown.
constexpr Valikkorivi Vaiennettu(const char* valikko, const char* ohjain, int teksti, Toiminto toiminto) {
  return {.valikko = valikko, .ohjain = ohjain, .teksti = teksti, .toiminto = toiminto, .nakyva = false};
}

/// The list of measures at the branch of the level.
template <int Taso>
constexpr Valikkorivi Toimenpidehaara(const char* ohjain, int teksti) {
  return {.valikko = "mnuSaastoToimenpiteet",
          .ohjain = ohjain,
          .teksti = teksti,
          .kaytossa = ToimenpiteetAvattavissa,
          .toiminto = [](frmMain& i) { i.Kohteet().Rakennus()->Saastotoimenpiteet.NaytaKayttoliittyma(Taso); }};
}

constexpr Valikkorivi Rastitettava(const char* ohjain, int teksti, Toiminto toiminto, bool (*rasti)(const frmMain&)) {
  return {.valikko = "mnuView", .ohjain = ohjain, .teksti = teksti, .toiminto = toiminto, .rasti = rasti};
}

/// Undo or redo, with the name of its step.
constexpr Valikkorivi Askel(const char* ohjain, int teksti, const char* nappaimet, bool (*kaytossa)(const frmMain&),
                            Toiminto toiminto, std::string (*tarkenne)(const frmMain&)) {
  return {.valikko = "mnuEdit",
          .ohjain = ohjain,
          .teksti = teksti,
          .nappaimet = nappaimet,
          .kaytossa = kaytossa,
          .toiminto = toiminto,
          .tarkenne = tarkenne};
}

constexpr Paavalikko kPaavalikot[] = {
    {"mnuFile", tekstit::kValikkoTiedosto},       {"mnuEdit", tekstit::kValikkoMuokkaa},
    {"mnuView", tekstit::kValikkoNayta},          {"mnuRakennus", tekstit::kValikkoRakennus},
    {"mnuKirjastot", tekstit::kValikkoKirjastot}, {"mnuSaastoToimenpiteet", tekstit::kValikkoSaastotoimenpiteet},
    {"mnuElinkaari", tekstit::kValikkoElinkaari}, {"mnuTools", tekstit::kValikkoTyokalut},
    {"mnuWindow", tekstit::kValikkoIkkuna},       {"mnuHelp", tekstit::kValikkoOhje}};

constexpr Valikkorivi kRivit[] = {
    {"mnuFile", "mnuFileNew", tekstit::kValikkoUusi, "Ctrl+N", nullptr,
     [](frmMain& i) { i.Kohteet().mnuFileNew_Click(); }, "New", tekstit::kVihjeUusiKatselmuskohde},
    {"mnuFile", "mnuFileOpen", tekstit::kValikkoAvaa, "Ctrl+O", nullptr,
     [](frmMain& i) { i.Kohteet().mnuFileOpen_Click(); }, "Open", tekstit::kVihjeAvaaKatselmuskohde},
    Vaiennettu("mnuFile", "mnuFileClose", tekstit::kValikkoSulje,
               [](frmMain&) { Ilmoita("Add 'mnuFileClose_Click' code."); }),
    {"mnuFile", "mnuSuljeKohde", tekstit::kValikkoSuljeKohde, "", KohdeAuki,
     [](frmMain& i) { i.Kohteet().mnuSuljeKohde_Click(); }},
    {"mnuFile", ""},
    {"mnuFile", "mnuFileSave", tekstit::kValikkoTallenna, "Ctrl+S", KohdeValmis,
     [](frmMain& i) { i.Kohteet().mnuFileSave_Click(); }, "Save", tekstit::kVihjeTallennaKatselmuskohde},
    {"mnuFile", "mnuFileSaveAs", tekstit::kValikkoTallennaNimella, "Ctrl+Shift+S", KohdeValmis,
     [](frmMain& i) { i.Kohteet().mnuFileSaveAs_Click(); }},
    Vaiennettu("mnuFile", "mnuFileSaveAll", tekstit::kValikkoTallennaKaikki,
               [](frmMain&) { Ilmoita("Add 'mnuFileSaveAll_Click' code."); }),
    {"mnuFile", ""},
    {"mnuFile", "mnuFileProperties", tekstit::kValikkoKatselmoijienTiedot, "", KohdeValmis,
     [](frmMain& i) { i.Kohteet().Rakennus()->KatselmoijienTiedot.NaytaKayttoliittyma(); }},
    {"mnuFile", ""},
    {"mnuFile", "mnuFilePageSetup", tekstit::kValikkoSivunAsetukset, "", nullptr,
     [](frmMain& i) { i.mnuFilePageSetup_Click(); }},
    Vaiennettu("mnuFile", "mnuFilePrintPreview", tekstit::kValikkoEsikatselu,
               [](frmMain&) { Ilmoita("Add 'mnuFilePrintPreview_Click' code."); }),
    {"mnuFile", "mnuEsikatselu", tekstit::kValikkoEsikatseluJaTulostus, "Ctrl+Shift+P", VoiEsikatsella,
     [](frmMain& i) { i.mnuEsikatselu_Click(); }},
    {"mnuFile", "mnuFilePrint", tekstit::kValikkoTulosta, "Ctrl+P", VoiTulostaa,
     [](frmMain&) { frmMain::mnuFilePrint_Click(); }, "Print", tekstit::kVihjeTulostaAktiivinenIkkuna},
    Vaiennettu("mnuFile", "mnuFileSend", tekstit::kValikkoLaheta,
               [](frmMain&) { Ilmoita("Add 'mnuFileSend_Click' code."); }),
    {"mnuFile", ""},
    {"mnuFile", "mnuFileExit", tekstit::kValikkoLopeta, "Ctrl+Q", nullptr, [](frmMain& i) { i.mnuFileExit_Click(); }},

    Askel(
        "mnuEditUndo", tekstit::kValikkoKumoa, "Ctrl+Z", VoiKumota, [](frmMain& i) { i.Kohteet().mnuEditUndo_Click(); },
        Kumottava),
    Askel(
        "mnuEditRedo", tekstit::kValikkoTeeUudelleen, "Ctrl+Shift+Z", VoiTehdaUudelleen,
        [](frmMain& i) { i.Kohteet().mnuEditRedo_Click(); }, Uudelleentehtava),
    {"mnuEdit", ""},
    // A field or a list takes these keys before the menu does.
    {"mnuEdit", "mnuEditCut", tekstit::kValikkoLeikkaa, "Ctrl+X", VoiLeikata, [](frmMain& i) { i.Leike().Leikkaa(); },
     "Cut", tekstit::kVihjeLeikkaaLeikepoydalle},
    {"mnuEdit", "mnuEditCopy", tekstit::kValikkoKopioi, "Ctrl+C", VoiKopioida, [](frmMain& i) { i.Leike().Kopioi(); },
     "Copy", tekstit::kVihjeKopioiLeikepoydalle},
    {"mnuEdit", "mnuEditPaste", tekstit::kValikkoLiita, "Ctrl+V", VoiLiittaa, [](frmMain& i) { i.Leike().Liita(); },
     "Paste", tekstit::kVihjeLiitaLeikepoydalta},
    Vaiennettu("mnuEdit", "mnuEditPasteSpecial", tekstit::kValikkoLiitaMaaraten,
               [](frmMain&) { Ilmoita("Add 'mnuEditPasteSpecial_Click' code."); }),

    Rastitettava(
        "mnuViewToolbar", tekstit::kValikkoTyokalurivi, [](frmMain& i) { i.mnuViewToolbar_Click(); }, TyokalutNakyvat),
    Rastitettava(
        "mnuViewStatusBar", tekstit::kValikkoTilarivi, [](frmMain& i) { i.mnuViewStatusBar_Click(); }, TilariviNakyy),
    Vaiennettu("mnuView", "mnuViewRefresh", tekstit::kValikkoPaivita,
               [](frmMain&) { Ilmoita("Add 'mnuViewRefresh_Click' code."); }),
    {"mnuView", "mnuPaivitaNakymat", tekstit::kValikkoPaivitaNakymat, "F5", KohdeValmis,
     [](frmMain& i) { i.Kohteet().Rakennus()->PaivitaNakymat(); }},
    {"mnuView", ""},
    {"mnuView", "mnuViewWebBrowser", tekstit::kValikkoWWWSelain, "", nullptr,
     [](frmMain&) { NaytaWWW(Asetukset().strWWWOsoite); }},

    {"mnuRakennus", "mnuPerustiedot", tekstit::kValikkoPerustiedot, "Ctrl+K", KohdeValmis,
     [](frmMain& i) { i.Kohteet().NaytaPerustiedot(); }},
    {"mnuRakennus", "mnuRakennuksen_tilat", tekstit::kValikkoTilat, "Ctrl+T", TilatAvattavissa,
     [](frmMain& i) { i.Kohteet().Rakennus()->Tilat.NaytaKayttoliittyma(); }},
    {"mnuRakennus", "mnuIlmanvaihto", tekstit::kValikkoIlmanvaihtokoneet, "", KoneetAvattavissa,
     [](frmMain& i) { i.Kohteet().Rakennus()->IVKoneet.NaytaKayttoliittyma(); }},
    {"mnuRakennus", "mnuSahko", tekstit::kValikkoSahkolaitteet, "", SahkoAvattavissa,
     [](frmMain& i) { i.Kohteet().Rakennus()->SahkonKulutusryhmat.NaytaKayttoliittyma(); }},
    {"mnuRakennus", "mnuVedenkulutus", tekstit::kValikkoVedenkulutus, "", VesiAvattavissa,
     [](frmMain& i) { i.Kohteet().Rakennus()->VedenKulutusryhmat.NaytaKayttoliittyma(); }},
    {"mnuRakennus", ""},
    {"mnuRakennus", "mnuLampo", tekstit::kValikkoLampo, "Ctrl+L", LampoAvattavissa,
     [](frmMain& i) { i.Kohteet().Rakennus()->NaytaLampoYhteenvetoDlg(); }},
    {"mnuRakennus", "mnuYhteenveto", tekstit::kValikkoYhteenveto, "", KohdeValmis,
     [](frmMain& i) { i.Kohteet().Rakennus()->NaytaYhteenvetoDlg(); }},
    {"mnuRakennus", "mnuRaportti", tekstit::kValikkoRaportti, "", KohdeValmis,
     [](frmMain& i) { NaytaRaporttiikkuna(*i.Kohteet().Rakennus()); }},

    {"mnuKirjastot", "mnuRakennekirjasto", tekstit::kValikkoRakennekirjasto, "", nullptr,
     [](frmMain&) { RakennekirjastolinkkiNyt().NaytaRakennekirjasto(); }},
    {"mnuKirjastot", "mnuMateriaalikirjasto", tekstit::kValikkoMateriaalikirjasto, "", nullptr,
     [](frmMain&) { RakennekirjastolinkkiNyt().NaytaMateriaalikirjasto(); }},
    {"mnuKirjastot", "mnuEnergiamuotokirjastoLampo", tekstit::kValikkoLammonEnergiamuodot, "", nullptr,
     [](frmMain&) { clsEnergiamuodonKasittely().Selaa(true); }},
    {"mnuKirjastot", "mnuEnergiamuotokirjastoSahko", tekstit::kValikkoSahkonEnergiamuodot, "", nullptr,
     [](frmMain&) { clsEnergiamuodonKasittely().Selaa(false); }},

    Toimenpidehaara<0>("mnuSaastoKokoRakennus", tekstit::kValikkoKokoRakennus),
    Toimenpidehaara<1>("mnuEnergianJaVedenhankinta", tekstit::kValikkoEnergianJaVedenHankinta),
    Toimenpidehaara<2>("mnuTilatJaJohtuminen", tekstit::kValikkoTilatJaJohtuminen),
    Toimenpidehaara<3>("mnuIlmanvaihtokoneet", tekstit::kValikkoKoneidenSaasto),
    Toimenpidehaara<4>("mnuSahkoSaasto", tekstit::kValikkoSahkolaitteet),
    Toimenpidehaara<5>("mnuVesiSaasto", tekstit::kValikkoVedenkulutus),
    {"mnuSaastoToimenpiteet", ""},
    {"mnuSaastoToimenpiteet", "mnuTariffivertailu", tekstit::kValikkoSahkotariffienVertailu, "",
     ToimenpiteetAvattavissa, [](frmMain& i) { i.Kohteet().Rakennus()->SahkoTariffienVertailu.NaytaKayttoliittyma(); }},
    {"mnuSaastoToimenpiteet", "mnuToimenpiteidenJarjestelija", tekstit::kValikkoToimenpiteidenJarjestelija, "",
     ToimenpiteetAvattavissa,
     [](frmMain& i) { i.Kohteet().Rakennus()->ToimenpiteidenJarjestelija.NaytaKayttoliittyma(); }},

    {"mnuElinkaari", "mnuOletusarvot", tekstit::kValikkoOletusarvot, "", KohdeValmis,
     [](frmMain& i) { i.Kohteet().Rakennus()->Elinkaari.NaytaOletusarvot(); }},
    {"mnuElinkaari", "mnuRakennusosat", tekstit::kValikkoRakennusosat, "", KohdeValmis,
     [](frmMain& i) { i.Kohteet().Rakennus()->Elinkaari.NaytaKustannukset(); }},
    {"mnuElinkaari", "mnuYmparistovaikutukset", tekstit::kValikkoYmparistovaikutukset, "", KohdeValmis,
     [](frmMain& i) { i.Kohteet().Rakennus()->Elinkaari.NaytaYmparistovaikutukset(); }},
    {"mnuElinkaari", "mnuEkoprofiili", tekstit::kValikkoEkoprofiili, "", KohdeValmis,
     [](frmMain& i) { i.Kohteet().Rakennus()->Elinkaari.NaytaEkoprofiili(); }},

    {"mnuTools", "mnuToolsOptions", tekstit::kValikkoAsetukset, "", nullptr,
     [](frmMain&) { Asetukset().NaytaKayttoliittyma(); }},

    {"mnuWindow", "mnuWindowNewWindow", tekstit::kValikkoUusiIkkuna, "", kTulossa},
    {"mnuWindow", ""},
    {"mnuWindow", "mnuWindowCascade", tekstit::kValikkoLimita, "", IkkunoitaAuki,
     [](frmMain& i) { i.mnuWindowCascade_Click(); }},
    {"mnuWindow", "mnuWindowTileHorizontal", tekstit::kValikkoJaaVaakasuunnassa, "", IkkunoitaAuki,
     [](frmMain& i) { i.JaaIkkunat(Qt::Vertical); }},
    {"mnuWindow", "mnuWindowTileVertical", tekstit::kValikkoJaaPystysuunnassa, "", IkkunoitaAuki,
     [](frmMain& i) { i.JaaIkkunat(Qt::Horizontal); }},
    {"mnuWindow", "mnuWindowArrangeIcons", tekstit::kValikkoJarjestaKuvakkeet, "", IkkunoitaAuki,
     [](frmMain& i) { i.mnuWindowArrangeIcons_Click(); }},

    // F1 itself opens the topic of the active form, whatever window has the focus.
    {"mnuHelp", "mnuHelpContents", tekstit::kValikkoSisallys, "", nullptr, [](frmMain&) { AvaaOhje(kOhjeSisallys); },
     "Help", tekstit::kVihjeOhjeenSisallys},
    {"mnuHelp", "mnuHelpSearchForHelpOn", tekstit::kValikkoEtsiOhjeesta, "", nullptr,
     [](frmMain&) { AvaaOhjeenHaku(); }},
    {"mnuHelp", ""},
    {"mnuHelp", "mnuHelpAbout", tekstit::kValikkoTietojaLumivirrasta, "", nullptr, [](frmMain&) { NaytaTietoja(); }},
};

}  // namespace

std::span<const Paavalikko> Paavalikot() { return kPaavalikot; }
std::span<const Valikkorivi> Valikkorivit() { return kRivit; }
