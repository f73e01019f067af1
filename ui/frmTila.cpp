// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmTila.h"

#include <algorithm>

#include "ui/Lomakekaannos.h"

namespace {

constexpr int kKeskiraskas = 1;

struct Dynamiikka {
  const char* aikavakio;  // h
  const char* kuvaus;
};
constexpr Dynamiikka kDynamiikat[] = {
    {"24", "Puurakenteinen, kevyet väliseinät"},
    {"48", "Ulkoseinät kivirakenteiset, kevyet väliseinät."},
    {"96", "Ulkoseinät kivirakenteiset, väliseinät kiveä."},
};

/// The last row of these choices is "other".
bool OnMuu(const ComboBox& valinta) { return valinta.Indeksi() == valinta.Maara() - 1; }

}  // namespace

frmTila::frmTila() : Muokkauslomake("frmTila") {
  for (const ComboBox& valinta : {cmbTilanKayttoaika, cmbSaatotapa, cmbRakenteidenDynamiikka})
    TaytaValinta(*this, valinta);
  cmbRakenteidenDynamiikka.Indeksi(kKeskiraskas);
  NaytaDynamiikka();
  cmbTilanKayttoaika.KunMuuttuu([this] {
    Nosta(KayttoaikaValittu, cmbTilanKayttoaika.Indeksi());
    PaivitaKentat();
  });
  cmbSaatotapa.KunMuuttuu([this] {
    Nosta(SaatotapaValittu, cmbSaatotapa.Indeksi());
    PaivitaKentat();
  });
  cmbRakenteidenDynamiikka.KunMuuttuu([this] { NaytaDynamiikka(); });
  chkPainovoimainenIlmanvaihto.KunKlikataan([this] { PaivitaKentat(); });
  cmdRakenteet.Nostaa(RakenteetKlikattu);
}

void frmTila::PaivitaKentat() {
  txtTilanKayttoaikaHpA.Kaytossa(OnMuu(cmbTilanKayttoaika));
  txtSaatohyotysuhde.Kaytossa(OnMuu(cmbSaatotapa));
  txtPainovoimainenIVMaara.Kaytossa(chkPainovoimainenIlmanvaihto.Valittu());
  txtVuotoilmanvaihto.Kaytossa(!chkPainovoimainenIlmanvaihto.Valittu());
}

void frmTila::NaytaDynamiikka() {
  const auto rivi = static_cast<std::size_t>(std::max(0, cmbRakenteidenDynamiikka.Indeksi()));
  txtAikavakio.Teksti(kDynamiikat[rivi].aikavakio);
  lblDynamiikanKuvaus.Otsikko(kDynamiikat[rivi].kuvaus);
}
