// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Valikkotaulu.h"

#include "app/Istunto.h"
#include "app/frmMain.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "tekstit/paaikkuna.h"
#include "ui/Lomake.h"
#include "ui/Ohje.h"
#include "ui/Rakennekirjastolinkki.h"
#include "ui/Viestit.h"
#include "ui/qt/Selain.h"
#include "ui/qt/Tietoja.h"

namespace {

bool KohdeValmis(const frmMain& ikkuna) { return ikkuna.Kohteet().KohdeValmis(); }

/// A form that is open isn't opened a second time over the same model.
bool LampoAvattavissa(const frmMain& ikkuna) { return KohdeValmis(ikkuna) && !AvoinLomake("frmLampoYhteenveto"); }
bool TilatAvattavissa(const frmMain& ikkuna) { return KohdeValmis(ikkuna) && !AvoinLomake("frmTilaYhteenveto"); }
bool KoneetAvattavissa(const frmMain& ikkuna) { return KohdeValmis(ikkuna) && !AvoinLomake("frmIVKoneYhteenveto"); }

bool VoiKumota(const frmMain& ikkuna) { return ikkuna.Kohteet().VoiKumota(); }
bool VoiLeikata(const frmMain& ikkuna) { return ikkuna.Leike().VoiLeikata(); }
bool VoiKopioida(const frmMain& ikkuna) { return ikkuna.Leike().VoiKopioida(); }
bool VoiLiittaa(const frmMain& ikkuna) { return ikkuna.Leike().VoiLiittaa(); }
bool IkkunoitaAuki(const frmMain& ikkuna) { return ikkuna.IkkunoitaAuki(); }
bool VoiTulostaa(const frmMain& ikkuna) { return KohdeValmis(ikkuna) && frmMain::Tulostusnappi(); }

/// An entry whose module isn't built yet.
constexpr bool (*kTulossa)(const frmMain&) = [](const frmMain&) { return false; };

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
    {"mnuFile", "mnuFileClose", tekstit::kValikkoSulje, "", nullptr,
     [](frmMain&) { Ilmoita("Add 'mnuFileClose_Click' code."); }},
    {"mnuFile", ""},
    {"mnuFile", "mnuFileSave", tekstit::kValikkoTallenna, "Ctrl+S", KohdeValmis,
     [](frmMain& i) { i.Kohteet().mnuFileSave_Click(); }, "Save", tekstit::kVihjeTallennaKatselmuskohde},
    {"mnuFile", "mnuFileSaveAs", tekstit::kValikkoTallennaNimella, "Ctrl+Shift+S", KohdeValmis,
     [](frmMain& i) { i.Kohteet().mnuFileSaveAs_Click(); }},
    {"mnuFile", "mnuFileSaveAll", tekstit::kValikkoTallennaKaikki, "", nullptr,
     [](frmMain&) { Ilmoita("Add 'mnuFileSaveAll_Click' code."); }},
    {"mnuFile", ""},
    {"mnuFile", "mnuFileProperties", tekstit::kValikkoKatselmoijienTiedot, "", KohdeValmis,
     [](frmMain& i) { i.Kohteet().Rakennus()->KatselmoijienTiedot.NaytaKayttoliittyma(); }},
    {"mnuFile", ""},
    {"mnuFile", "mnuFilePageSetup", tekstit::kValikkoSivunAsetukset, "", nullptr,
     [](frmMain& i) { i.mnuFilePageSetup_Click(); }},
    {"mnuFile", "mnuFilePrintPreview", tekstit::kValikkoEsikatselu, "", nullptr,
     [](frmMain&) { Ilmoita("Add 'mnuFilePrintPreview_Click' code."); }},
    {"mnuFile", "mnuFilePrint", tekstit::kValikkoTulosta, "Ctrl+P", VoiTulostaa,
     [](frmMain&) { frmMain::mnuFilePrint_Click(); }, "Print", tekstit::kVihjeTulostaAktiivinenIkkuna},
    {"mnuFile", "mnuFileSend", tekstit::kValikkoLaheta, "", nullptr,
     [](frmMain&) { Ilmoita("Add 'mnuFileSend_Click' code."); }},
    {"mnuFile", ""},
    {"mnuFile", "mnuFileExit", tekstit::kValikkoLopeta, "Ctrl+Q", nullptr, [](frmMain& i) { i.mnuFileExit_Click(); }},

    {"mnuEdit", "mnuEditUndo", tekstit::kValikkoKumoa, "Ctrl+Z", VoiKumota,
     [](frmMain& i) { i.Kohteet().mnuEditUndo_Click(); }},
    {"mnuEdit", ""},
    // A field or a list takes these keys before the menu does.
    {"mnuEdit", "mnuEditCut", tekstit::kValikkoLeikkaa, "Ctrl+X", VoiLeikata, [](frmMain& i) { i.Leike().Leikkaa(); },
     "Cut", tekstit::kVihjeLeikkaaLeikepoydalle},
    {"mnuEdit", "mnuEditCopy", tekstit::kValikkoKopioi, "Ctrl+C", VoiKopioida, [](frmMain& i) { i.Leike().Kopioi(); },
     "Copy", tekstit::kVihjeKopioiLeikepoydalle},
    {"mnuEdit", "mnuEditPaste", tekstit::kValikkoLiita, "Ctrl+V", VoiLiittaa, [](frmMain& i) { i.Leike().Liita(); },
     "Paste", tekstit::kVihjeLiitaLeikepoydalta},
    {"mnuEdit", "mnuEditPasteSpecial", tekstit::kValikkoLiitaMaaraten, "", nullptr,
     [](frmMain&) { Ilmoita("Add 'mnuEditPasteSpecial_Click' code."); }},

    {"mnuView", "mnuViewToolbar", tekstit::kValikkoTyokalurivi, "", nullptr,
     [](frmMain& i) { i.mnuViewToolbar_Click(); }},
    {"mnuView", "mnuViewStatusBar", tekstit::kValikkoTilarivi, "", nullptr,
     [](frmMain& i) { i.mnuViewStatusBar_Click(); }},
    {"mnuView", "mnuViewRefresh", tekstit::kValikkoPaivita, "", nullptr,
     [](frmMain&) { Ilmoita("Add 'mnuViewRefresh_Click' code."); }},
    {"mnuView", ""},
    {"mnuView", "mnuViewWebBrowser", tekstit::kValikkoWWWSelain, "", nullptr,
     [](frmMain&) { NaytaWWW(Asetukset().strWWWOsoite); }},

    {"mnuRakennus", "mnuPerustiedot", tekstit::kValikkoPerustiedot, "Ctrl+K", KohdeValmis,
     [](frmMain& i) { i.Kohteet().NaytaPerustiedot(); }},
    {"mnuRakennus", "mnuRakennuksen_tilat", tekstit::kValikkoTilat, "Ctrl+T", TilatAvattavissa,
     [](frmMain& i) { i.Kohteet().Rakennus()->Tilat.NaytaKayttoliittyma(); }},
    {"mnuRakennus", "mnuIlmanvaihto", tekstit::kValikkoIlmanvaihtokoneet, "", KoneetAvattavissa,
     [](frmMain& i) { i.Kohteet().Rakennus()->IVKoneet.NaytaKayttoliittyma(); }},
    {"mnuRakennus", "mnuSahko", tekstit::kValikkoSahkolaitteet, "", kTulossa},
    {"mnuRakennus", "mnuVedenkulutus", tekstit::kValikkoVedenkulutus, "", kTulossa},
    {"mnuRakennus", ""},
    {"mnuRakennus", "mnuLampo", tekstit::kValikkoLampo, "Ctrl+L", LampoAvattavissa,
     [](frmMain& i) { i.Kohteet().Rakennus()->NaytaLampoYhteenvetoDlg(); }},
    {"mnuRakennus", "mnuYhteenveto", tekstit::kValikkoYhteenveto, "", kTulossa},

    {"mnuKirjastot", "mnuRakennekirjasto", tekstit::kValikkoRakennekirjasto, "", nullptr,
     [](frmMain&) { RakennekirjastolinkkiNyt().NaytaRakennekirjasto(); }},
    {"mnuKirjastot", "mnuMateriaalikirjasto", tekstit::kValikkoMateriaalikirjasto, "", nullptr,
     [](frmMain&) { RakennekirjastolinkkiNyt().NaytaMateriaalikirjasto(); }},
    {"mnuKirjastot", "mnuEnergiamuotokirjastoLampo", tekstit::kValikkoLammonEnergiamuodot, "", kTulossa},
    {"mnuKirjastot", "mnuEnergiamuotokirjastoSahko", tekstit::kValikkoSahkonEnergiamuodot, "", kTulossa},

    {"mnuSaastoToimenpiteet", "mnuSaastoKokoRakennus", tekstit::kValikkoKokoRakennus, "", kTulossa},
    {"mnuSaastoToimenpiteet", "mnuEnergianJaVedenhankinta", tekstit::kValikkoEnergianJaVedenHankinta, "", kTulossa},
    {"mnuSaastoToimenpiteet", "mnuTilatJaJohtuminen", tekstit::kValikkoTilatJaJohtuminen, "", kTulossa},
    {"mnuSaastoToimenpiteet", "mnuIlmanvaihtokoneet", tekstit::kValikkoKoneidenSaasto, "", kTulossa},
    {"mnuSaastoToimenpiteet", "mnuSahkoSaasto", tekstit::kValikkoSahkolaitteet, "", kTulossa},
    {"mnuSaastoToimenpiteet", "mnuVesiSaasto", tekstit::kValikkoVedenkulutus, "", kTulossa},
    {"mnuSaastoToimenpiteet", ""},
    {"mnuSaastoToimenpiteet", "mnuTariffivertailu", tekstit::kValikkoSahkotariffienVertailu, "", kTulossa},
    {"mnuSaastoToimenpiteet", "mnuToimenpiteidenJarjestelija", tekstit::kValikkoToimenpiteidenJarjestelija, "",
     kTulossa},

    {"mnuElinkaari", "mnuOletusarvot", tekstit::kValikkoOletusarvot, "", kTulossa},
    {"mnuElinkaari", "mnuRakennusosat", tekstit::kValikkoRakennusosat, "", kTulossa},
    {"mnuElinkaari", "mnuYmparistovaikutukset", tekstit::kValikkoYmparistovaikutukset, "", kTulossa},
    {"mnuElinkaari", "mnuEkoprofiili", tekstit::kValikkoEkoprofiili, "", kTulossa},

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
