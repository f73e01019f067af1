// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <span>
#include <string>

class frmMain;

/// A menu entry of the main window, and its button in the tool bar if it has one.
struct Valikkorivi {
  const char* valikko;                         ///< control of the top menu
  const char* ohjain;                          ///< control of the entry; "" is a separator
  int teksti = 0;                              ///< id of the caption
  const char* nappaimet = "";                  ///< keys, as "Ctrl+S"
  bool (*kaytossa)(const frmMain&) = nullptr;  ///< null: always enabled
  void (*toiminto)(frmMain&) = nullptr;
  const char* tyokalu = "";  ///< key of the tool bar's button and name of its picture in ui/kuvat; "" none
  int tyokaluvihje = 0;      ///< id of the button's tool tip
  bool nakyva = true;
  bool (*rasti)(const frmMain&) = nullptr;            ///< an entry with a tick, and whether it is on
  std::string (*tarkenne)(const frmMain&) = nullptr;  ///< what follows the caption behind a colon, "" nothing
};

/// A top menu.
struct Paavalikko {
  const char* ohjain;
  int teksti;
};

/// The menus and their entries, in the order of the window.
std::span<const Paavalikko> Paavalikot();
std::span<const Valikkorivi> Valikkorivit();
