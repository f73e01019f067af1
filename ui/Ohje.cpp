// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Ohje.h"

#include "ui/Lomake.h"
#include "ui/Tekstivarasto.h"

namespace {

Ohjenaytto* g_naytto = nullptr;

}  // namespace

void AsetaOhjenaytto(Ohjenaytto* naytto) { g_naytto = naytto; }

void AvaaOhje(int aihe) {
  if (g_naytto) g_naytto->Avaa(aihe);
}

void AvaaOhjeenHaku() {
  if (g_naytto) g_naytto->AvaaHaku();
}

void AvaaLomakkeenOhje() {
  const Lomake* lomake = AktiivinenLomake();
  const int aihe = lomake ? Ohjeaihe(lomake->Nimi(), 0) : 0;
  AvaaOhje(aihe > 0 ? aihe : kOhjeSisallys);
}
