// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmTarkennettuVesiLaskenta.h"

#include "kernel/Luvut.h"
#include "tekstit/viestit.h"
#include "tekstit/virheet.h"
#include "ui/Kenttanimi.h"
#include "ui/Lomakekaannos.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"

namespace {

constexpr const char* kLomake = "frmTarkennettuVesiLaskenta";
constexpr double kTuntejaVuorokaudessa = 24;

void Kerro(Tekstinumero teksti, const std::string& kentta) { Ilmoita(Teksti(teksti), kentta, Vakavuus::Virhe); }

constexpr Lukuviestit kViestit{
    [](const std::string& kentta) { Kerro(tekstit::kRyhmanArvoPuuttuu, kentta); },
    [](const std::string& kentta) { Kerro(tekstit::kRyhmanArvoEiNumero, kentta); },
};

/// What a unit needs besides the number of units.
struct Kaytto {
  bool paivassa, vuodessa, tunteja;
};
constexpr Kaytto kKaytot[] = {
    {true, true, false},    // dm³ a time
    {false, false, false},  // dm³ a piece
    {false, true, false},   // dm³ a portion
    {false, true, false},   // dm³ a person and day
    {true, true, true},     // dm³/s
    {true, true, true},     // dm³/min
    {true, true, true},     // dm³/h
};
constexpr Kaytto kTuntematon{true, true, false};

const Kaytto& YksikonKaytto(const ComboBox& yksikko) {
  return yksikko.Indeksi() < 0 ? kTuntematon : kKaytot[yksikko.Indeksi()];
}

const std::string& Rivilta(const std::vector<std::string>& nimet, int rivi) {
  static const std::string kEiNimea;
  return rivi < 0 ? kEiNimea : nimet[static_cast<std::size_t>(rivi)];
}

}  // namespace

frmTarkennettuVesiLaskenta::frmTarkennettuVesiLaskenta()
    : Kulutuslomake(kLomake, kViestit, "lbl_hPer_d"),
      laskentayksikot_(Valintalista(kLomake, "cmbLaskentayksikko")),
      kayttoyksikot_(Valintalista(kLomake, "cmb_hPer_d")) {
  TaytaValinta(*this, cmbLaskentaOminaissuure);
  cmbLaskentaOminaissuure.KunMuuttuu([this] { PaivitaKentat(); });
  KuunteleLampoa(txtVedenKayttoLampotila, LampotilaMuuttui);
  KuunteleLampoa(txtLampimanVedenOsuus, OsuusMuuttui);
}

/// The share and the temperature: a number tells the other one, anything else leaves it alone.
void frmTarkennettuVesiLaskenta::KuunteleLampoa(const TextBox& kentta, const std::function<void(double)>& tapahtuma) {
  kentta.KunMuuttuu([this, kentta, &tapahtuma] {
    if (const auto luku = LueLuku(kentta.Teksti())) Nosta(tapahtuma, *luku);
    Nosta(LaskentaMuuttui);
  });
  kentta.KunPoistutaan([kentta] { TarkistaKentta(kentta.Kohde()); });
}

void frmTarkennettuVesiLaskenta::PaivitaKentat() {
  const int yksikko = cmbLaskentaOminaissuure.Indeksi();
  const Kaytto& kaytto = YksikonKaytto(cmbLaskentaOminaissuure);
  lblTxtLaskentayksikko.Otsikko(Rivilta(laskentayksikot_, yksikko));
  lbl_hPer_d.Otsikko(Rivilta(kayttoyksikot_, yksikko));
  NaytaKaytto(kaytto.paivassa, kaytto.vuodessa);
  Nosta(LaskentaMuuttui);
}

bool frmTarkennettuVesiLaskenta::TunnitKelpaavat() const {
  const TextBox& tunnit = txtKayttomaaraTunnitVrk_ssa;
  if (!YksikonKaytto(cmbLaskentaOminaissuure).tunteja || tunnit.Luku() <= kTuntejaVuorokaudessa) return true;
  NaytaVirhe(virheet::kRajojenUlkopuolella, KentanNimi(Ikkuna(), tunnit.Kohde()) + ", " + Teksti(tekstit::kEnintaan) +
                                                " " + Muotoile(kTuntejaVuorokaudessa, "0") + " " +
                                                lbl_hPer_d.Otsikko() + ".");
  tunnit.Kohdista();
  return false;
}
