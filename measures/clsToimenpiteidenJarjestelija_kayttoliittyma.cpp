// SPDX-License-Identifier: GPL-3.0-or-later
// The arranger's window.
#include "kernel/Virhe.h"
#include "measures/Jarjestelijamuokkaus.h"
#include "measures/clsToimenpiteidenJarjestelija.h"

void clsToimenpiteidenJarjestelija::NaytaKayttoliittyma() try {
  if (!kayttoLiittyma_.arvo) kayttoLiittyma_.arvo = std::make_shared<Jarjestelijamuokkaus>(koti_.Rakennus());
  kayttoLiittyma_.arvo->Avaa();
} catch (...) {
  NostaVirhe("clsToimenpiteidenJarjestelija:NaytaKayttoliittyma Method");
}
