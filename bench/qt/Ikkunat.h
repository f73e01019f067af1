// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QMainWindow>
#include <memory>
#include <string_view>

#include "app/Istunto.h"
#include "app/frmMain.h"

namespace mittaus {

/// Shows the window and handles events until it has been painted.
void Nayta(QWidget& ikkuna);

/// The yardstick: a main window that can hold others, of the size of ours.
std::unique_ptr<QMainWindow> TeePaljasIkkuna();

/// The program from its data directory and texts to the main window.
struct Ohjelmaikkuna {
  Ohjelmaikkuna();
  ~Ohjelmaikkuna() { istunto.SuljeKohde(); }
  Istunto istunto;
  std::unique_ptr<frmMain> ikkuna;
};

/// What a process of its own does: shows the bare window, shows the program's, or also opens a sample audit; then
/// prints the memory that it has resident, MB.
inline constexpr const char *kPaljas = "--rooli-paljas", *kOhjelma = "--rooli-ohjelma", *kAvattu = "--rooli-avattu";
int AjaRooli(std::string_view rooli);

/// Runs this program anew in that role. Throws when it fails.
struct Rooliajo {
  explicit Rooliajo(const char* rooli);
  double kesto = 0;   ///< from the start of the process until it has printed, s
  double muisti = 0;  ///< MB
};

}  // namespace mittaus
