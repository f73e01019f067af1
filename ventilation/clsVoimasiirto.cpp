// SPDX-License-Identifier: GPL-3.0-or-later
#include "ventilation/clsVoimasiirto.h"

#include <cmath>

#include "tekstit/virheet.h"
#include "ui/Tekstivarasto.h"
#include "ventilation/Puhallinlaskenta.h"

namespace {

constexpr double kTaysi = 100;    // %
constexpr double kPieniTeho = 2;  // kW: belt drives of less have a curve of their own

bool Tunnettu(std::int32_t valitys) {
  return valitys >= clsVoimasiirto::Kiilahihna && valitys <= clsVoimasiirto::SuoraVeto;
}

}  // namespace

double clsVoimasiirto::Hyotysuhde() const {
  if (!Tunnettu(ValitysTapa)) return NaytaVirhe(virheet::kVoimansiirtoTuntematon), 0;
  if (P4 <= 0 || ValitysTapa == SuoraVeto) return kTaysi;
  if (ValitysTapa == Kiilahihna) return P4 <= kPieniTeho ? 3.6 * std::log(P4) + 90 : 0.8 * std::log(P4) + 93;
  return P4 <= kPieniTeho ? 2.4 * std::log(P4) + 95 : 0.3 * std::log(P4) + 97;
}

double clsVoimasiirto::Moottoriteho() const {
  const double hyotysuhde = Hyotysuhde();
  return Tunnettu(ValitysTapa) ? OttotehoHyotysuhteella(P4, hyotysuhde) : 0;
}
