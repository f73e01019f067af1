// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Valikkotaulu.h"

#include "app/Istunto.h"
#include "app/frmMain.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "ui/Lomake.h"
#include "ui/Ohje.h"
#include "ui/Rakennekirjastolinkki.h"
#include "ui/qt/Selain.h"
#include "ui/qt/Tietoja.h"

namespace {

bool KohdeValmis(const frmMain& ikkuna) { return ikkuna.Kohteet().KohdeValmis(); }

/// A form that is open isn't opened a second time over the same model.
bool LampoAvattavissa(const frmMain& ikkuna) { return KohdeValmis(ikkuna) && !AvoinLomake("frmLampoYhteenveto"); }
bool TilatAvattavissa(const frmMain& ikkuna) { return KohdeValmis(ikkuna) && !AvoinLomake("frmTilaYhteenveto"); }

bool VoiKumota(const frmMain& ikkuna) { return ikkuna.Kohteet().VoiKumota(); }
bool VoiLeikata(const frmMain&) { return frmMain::VoiLeikata(); }
bool VoiKopioida(const frmMain&) { return frmMain::VoiKopioida(); }
bool VoiLiittaa(const frmMain&) { return frmMain::VoiLiittaa(); }
bool IkkunoitaAuki(const frmMain& ikkuna) { return ikkuna.IkkunoitaAuki(); }

constexpr Paavalikko kPaavalikot[] = {{"mnuFile", 1000},     {"mnuEdit", 1013},      {"mnuView", 1019},
                                      {"mnuRakennus", 1084}, {"mnuKirjastot", 1088}, {"mnuTools", 1031},
                                      {"mnuWindow", 1025},   {"mnuHelp", 1033}};

constexpr Valikkorivi kRivit[] = {
    {"mnuFile", "mnuFileNew", 1001, "Ctrl+N", nullptr, [](frmMain& i) { i.Kohteet().mnuFileNew_Click(); }, "New", 1040,
     QStyle::SP_FileIcon},
    {"mnuFile", "mnuFileOpen", 1002, "Ctrl+O", nullptr, [](frmMain& i) { i.Kohteet().mnuFileOpen_Click(); }, "Open",
     1041, QStyle::SP_DialogOpenButton},
    {"mnuFile", ""},
    {"mnuFile", "mnuFileSave", 1004, "Ctrl+S", KohdeValmis, [](frmMain& i) { i.Kohteet().mnuFileSave_Click(); }, "Save",
     1042, QStyle::SP_DialogSaveButton},
    {"mnuFile", "mnuFileSaveAs", 1005, "Ctrl+Shift+S", KohdeValmis,
     [](frmMain& i) { i.Kohteet().mnuFileSaveAs_Click(); }},
    {"mnuFile", ""},
    {"mnuFile", "mnuFileProperties", 1007, "", KohdeValmis,
     [](frmMain& i) { i.Kohteet().Rakennus()->KatselmoijienTiedot.NaytaKayttoliittyma(); }},
    {"mnuFile", ""},
    {"mnuFile", "mnuFileExit", 1012, "Ctrl+Q", nullptr, [](frmMain& i) { i.mnuFileExit_Click(); }},

    {"mnuEdit", "mnuEditUndo", 1014, "Ctrl+Z", VoiKumota, [](frmMain& i) { i.Kohteet().mnuEditUndo_Click(); }},
    {"mnuEdit", ""},
    {"mnuEdit", "mnuEditCut", 1015, "", VoiLeikata, [](frmMain&) { frmMain::mnuEditCut_Click(); }},
    {"mnuEdit", "mnuEditCopy", 1016, "", VoiKopioida, [](frmMain&) { frmMain::mnuEditCopy_Click(); }},
    {"mnuEdit", "mnuEditPaste", 1017, "", VoiLiittaa, [](frmMain&) { frmMain::mnuEditPaste_Click(); }},

    {"mnuView", "mnuViewToolbar", 1020, "", nullptr, [](frmMain& i) { i.mnuViewToolbar_Click(); }},
    {"mnuView", "mnuViewStatusBar", 1021, "", nullptr, [](frmMain& i) { i.mnuViewStatusBar_Click(); }},
    {"mnuView", ""},
    {"mnuView", "mnuViewWebBrowser", 1024, "", nullptr, [](frmMain&) { NaytaWWW(Asetukset().strWWWOsoite); }},

    {"mnuRakennus", "mnuPerustiedot", 1082, "Ctrl+K", KohdeValmis, [](frmMain& i) { i.Kohteet().NaytaPerustiedot(); }},
    {"mnuRakennus", "mnuRakennuksen_tilat", 1083, "Ctrl+T", TilatAvattavissa,
     [](frmMain& i) { i.Kohteet().Rakennus()->Tilat.NaytaKayttoliittyma(); }},
    {"mnuRakennus", ""},
    {"mnuRakennus", "mnuLampo", 1093, "Ctrl+L", LampoAvattavissa,
     [](frmMain& i) { i.Kohteet().Rakennus()->NaytaLampoYhteenvetoDlg(); }},

    {"mnuKirjastot", "mnuRakennekirjasto", 1077, "", nullptr,
     [](frmMain&) { RakennekirjastolinkkiNyt().NaytaRakennekirjasto(); }},
    {"mnuKirjastot", "mnuMateriaalikirjasto", 1078, "", nullptr,
     [](frmMain&) { RakennekirjastolinkkiNyt().NaytaMateriaalikirjasto(); }},

    {"mnuTools", "mnuToolsOptions", 1032, "", nullptr, [](frmMain&) { Asetukset().NaytaKayttoliittyma(); }},

    {"mnuWindow", "mnuWindowCascade", 1027, "", IkkunoitaAuki, [](frmMain& i) { i.mnuWindowCascade_Click(); }},
    {"mnuWindow", "mnuWindowTileHorizontal", 1028, "", IkkunoitaAuki, [](frmMain& i) { i.mnuWindowTile_Click(); }},

    // F1 itself opens the topic of the active form, whatever window has the focus.
    {"mnuHelp", "mnuHelpContents", 1034, "", nullptr, [](frmMain&) { AvaaOhje(kOhjeSisallys); }},
    {"mnuHelp", "mnuHelpSearchForHelpOn", 1035, "", nullptr, [](frmMain&) { AvaaOhjeenHaku(); }},
    {"mnuHelp", ""},
    {"mnuHelp", "mnuHelpAbout", 1036, "", nullptr, [](frmMain&) { NaytaTietoja(); }},
};

}  // namespace

std::span<const Paavalikko> Paavalikot() { return kPaavalikot; }
std::span<const Valikkorivi> Valikkorivit() { return kRivit; }
