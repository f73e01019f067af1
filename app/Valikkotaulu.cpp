// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Valikkotaulu.h"

#include "app/Istunto.h"
#include "app/frmMain.h"
#include "ui/Lomake.h"

namespace {

bool KohdeValmis(const frmMain& ikkuna) { return ikkuna.Kohteet().KohdeValmis(); }

/// A form that is open isn't opened a second time over the same model.
bool LampoAvattavissa(const frmMain& ikkuna) { return KohdeValmis(ikkuna) && !AvoinLomake("frmLampoYhteenveto"); }

constexpr Paavalikko kPaavalikot[] = {{"mnuFile", 1000}, {"mnuRakennus", 1084}};

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
    {"mnuFile", "mnuFileExit", 1012, "Ctrl+Q", nullptr, [](frmMain& i) { i.mnuFileExit_Click(); }},
    {"mnuRakennus", "mnuPerustiedot", 1082, "Ctrl+K", KohdeValmis, [](frmMain& i) { i.Kohteet().NaytaPerustiedot(); }},
    {"mnuRakennus", ""},
    {"mnuRakennus", "mnuLampo", 1093, "Ctrl+L", LampoAvattavissa,
     [](frmMain& i) { i.Kohteet().Rakennus()->NaytaLampoYhteenvetoDlg(); }},
};

}  // namespace

std::span<const Paavalikko> Paavalikot() { return kPaavalikot; }
std::span<const Valikkorivi> Valikkorivit() { return kRivit; }
