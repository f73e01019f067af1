// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Valikkotaulu.h"

#include "app/Istunto.h"
#include "app/frmMain.h"
#include "settings/clsLumivirtaAsetukset.h"
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

constexpr Paavalikko kPaavalikot[] = {{"mnuFile", 1000},      {"mnuEdit", 1013},      {"mnuView", 1019},
                                      {"mnuRakennus", 1084},  {"mnuKirjastot", 1088}, {"mnuSaastoToimenpiteet", 1095},
                                      {"mnuElinkaari", 1102}, {"mnuTools", 1031},     {"mnuWindow", 1025},
                                      {"mnuHelp", 1033}};

constexpr Valikkorivi kRivit[] = {
    {"mnuFile", "mnuFileNew", 1001, "Ctrl+N", nullptr, [](frmMain& i) { i.Kohteet().mnuFileNew_Click(); }, "New", 1040},
    {"mnuFile", "mnuFileOpen", 1002, "Ctrl+O", nullptr, [](frmMain& i) { i.Kohteet().mnuFileOpen_Click(); }, "Open",
     1041},
    {"mnuFile", "mnuFileClose", 1003, "", nullptr, [](frmMain&) { Ilmoita("Add 'mnuFileClose_Click' code."); }},
    {"mnuFile", ""},
    {"mnuFile", "mnuFileSave", 1004, "Ctrl+S", KohdeValmis, [](frmMain& i) { i.Kohteet().mnuFileSave_Click(); }, "Save",
     1042},
    {"mnuFile", "mnuFileSaveAs", 1005, "Ctrl+Shift+S", KohdeValmis,
     [](frmMain& i) { i.Kohteet().mnuFileSaveAs_Click(); }},
    {"mnuFile", "mnuFileSaveAll", 1006, "", nullptr, [](frmMain&) { Ilmoita("Add 'mnuFileSaveAll_Click' code."); }},
    {"mnuFile", ""},
    {"mnuFile", "mnuFileProperties", 1007, "", KohdeValmis,
     [](frmMain& i) { i.Kohteet().Rakennus()->KatselmoijienTiedot.NaytaKayttoliittyma(); }},
    {"mnuFile", ""},
    {"mnuFile", "mnuFilePageSetup", 1008, "", nullptr, [](frmMain& i) { i.mnuFilePageSetup_Click(); }},
    {"mnuFile", "mnuFilePrintPreview", 1009, "", nullptr,
     [](frmMain&) { Ilmoita("Add 'mnuFilePrintPreview_Click' code."); }},
    {"mnuFile", "mnuFilePrint", 1010, "Ctrl+P", VoiTulostaa, [](frmMain&) { frmMain::mnuFilePrint_Click(); }, "Print",
     1043},
    {"mnuFile", "mnuFileSend", 1011, "", nullptr, [](frmMain&) { Ilmoita("Add 'mnuFileSend_Click' code."); }},
    {"mnuFile", ""},
    {"mnuFile", "mnuFileExit", 1012, "Ctrl+Q", nullptr, [](frmMain& i) { i.mnuFileExit_Click(); }},

    {"mnuEdit", "mnuEditUndo", 1014, "Ctrl+Z", VoiKumota, [](frmMain& i) { i.Kohteet().mnuEditUndo_Click(); }},
    {"mnuEdit", ""},
    // A field or a list takes these keys before the menu does.
    {"mnuEdit", "mnuEditCut", 1015, "Ctrl+X", VoiLeikata, [](frmMain& i) { i.Leike().Leikkaa(); }, "Cut", 1044},
    {"mnuEdit", "mnuEditCopy", 1016, "Ctrl+C", VoiKopioida, [](frmMain& i) { i.Leike().Kopioi(); }, "Copy", 1045},
    {"mnuEdit", "mnuEditPaste", 1017, "Ctrl+V", VoiLiittaa, [](frmMain& i) { i.Leike().Liita(); }, "Paste", 1046},
    {"mnuEdit", "mnuEditPasteSpecial", 1018, "", nullptr,
     [](frmMain&) { Ilmoita("Add 'mnuEditPasteSpecial_Click' code."); }},

    {"mnuView", "mnuViewToolbar", 1020, "", nullptr, [](frmMain& i) { i.mnuViewToolbar_Click(); }},
    {"mnuView", "mnuViewStatusBar", 1021, "", nullptr, [](frmMain& i) { i.mnuViewStatusBar_Click(); }},
    {"mnuView", "mnuViewRefresh", 1022, "", nullptr, [](frmMain&) { Ilmoita("Add 'mnuViewRefresh_Click' code."); }},
    {"mnuView", ""},
    {"mnuView", "mnuViewWebBrowser", 1024, "", nullptr, [](frmMain&) { NaytaWWW(Asetukset().strWWWOsoite); }},

    {"mnuRakennus", "mnuPerustiedot", 1082, "Ctrl+K", KohdeValmis, [](frmMain& i) { i.Kohteet().NaytaPerustiedot(); }},
    {"mnuRakennus", "mnuRakennuksen_tilat", 1083, "Ctrl+T", TilatAvattavissa,
     [](frmMain& i) { i.Kohteet().Rakennus()->Tilat.NaytaKayttoliittyma(); }},
    {"mnuRakennus", "mnuIlmanvaihto", 1085, "", KoneetAvattavissa,
     [](frmMain& i) { i.Kohteet().Rakennus()->IVKoneet.NaytaKayttoliittyma(); }},
    {"mnuRakennus", "mnuSahko", 1086, "", kTulossa},
    {"mnuRakennus", "mnuVedenkulutus", 1087, "", kTulossa},
    {"mnuRakennus", ""},
    {"mnuRakennus", "mnuLampo", 1093, "Ctrl+L", LampoAvattavissa,
     [](frmMain& i) { i.Kohteet().Rakennus()->NaytaLampoYhteenvetoDlg(); }},
    {"mnuRakennus", "mnuYhteenveto", 1089, "", kTulossa},

    {"mnuKirjastot", "mnuRakennekirjasto", 1077, "", nullptr,
     [](frmMain&) { RakennekirjastolinkkiNyt().NaytaRakennekirjasto(); }},
    {"mnuKirjastot", "mnuMateriaalikirjasto", 1078, "", nullptr,
     [](frmMain&) { RakennekirjastolinkkiNyt().NaytaMateriaalikirjasto(); }},
    {"mnuKirjastot", "mnuEnergiamuotokirjastoLampo", 1079, "", kTulossa},
    {"mnuKirjastot", "mnuEnergiamuotokirjastoSahko", 1080, "", kTulossa},

    {"mnuSaastoToimenpiteet", "mnuSaastoKokoRakennus", 1096, "", kTulossa},
    {"mnuSaastoToimenpiteet", "mnuEnergianJaVedenhankinta", 1097, "", kTulossa},
    {"mnuSaastoToimenpiteet", "mnuTilatJaJohtuminen", 1098, "", kTulossa},
    {"mnuSaastoToimenpiteet", "mnuIlmanvaihtokoneet", 1099, "", kTulossa},
    {"mnuSaastoToimenpiteet", "mnuSahkoSaasto", 1086, "", kTulossa},
    {"mnuSaastoToimenpiteet", "mnuVesiSaasto", 1087, "", kTulossa},
    {"mnuSaastoToimenpiteet", ""},
    {"mnuSaastoToimenpiteet", "mnuTariffivertailu", 1100, "", kTulossa},
    {"mnuSaastoToimenpiteet", "mnuToimenpiteidenJarjestelija", 1101, "", kTulossa},

    {"mnuElinkaari", "mnuOletusarvot", 1103, "", kTulossa},
    {"mnuElinkaari", "mnuRakennusosat", 1104, "", kTulossa},
    {"mnuElinkaari", "mnuYmparistovaikutukset", 1105, "", kTulossa},
    {"mnuElinkaari", "mnuEkoprofiili", 1106, "", kTulossa},

    {"mnuTools", "mnuToolsOptions", 1032, "", nullptr, [](frmMain&) { Asetukset().NaytaKayttoliittyma(); }},

    {"mnuWindow", "mnuWindowNewWindow", 1026, "", kTulossa},
    {"mnuWindow", ""},
    {"mnuWindow", "mnuWindowCascade", 1027, "", IkkunoitaAuki, [](frmMain& i) { i.mnuWindowCascade_Click(); }},
    {"mnuWindow", "mnuWindowTileHorizontal", 1028, "", IkkunoitaAuki, [](frmMain& i) { i.JaaIkkunat(Qt::Vertical); }},
    {"mnuWindow", "mnuWindowTileVertical", 1029, "", IkkunoitaAuki, [](frmMain& i) { i.JaaIkkunat(Qt::Horizontal); }},
    {"mnuWindow", "mnuWindowArrangeIcons", 1030, "", IkkunoitaAuki,
     [](frmMain& i) { i.mnuWindowArrangeIcons_Click(); }},

    // F1 itself opens the topic of the active form, whatever window has the focus.
    {"mnuHelp", "mnuHelpContents", 1034, "", nullptr, [](frmMain&) { AvaaOhje(kOhjeSisallys); }, "Help", 1047},
    {"mnuHelp", "mnuHelpSearchForHelpOn", 1035, "", nullptr, [](frmMain&) { AvaaOhjeenHaku(); }},
    {"mnuHelp", ""},
    {"mnuHelp", "mnuHelpAbout", 1036, "", nullptr, [](frmMain&) { NaytaTietoja(); }},
};

}  // namespace

std::span<const Paavalikko> Paavalikot() { return kPaavalikot; }
std::span<const Valikkorivi> Valikkorivit() { return kRivit; }
