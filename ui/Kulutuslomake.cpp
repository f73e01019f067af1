// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Kulutuslomake.h"

#include <algorithm>
#include <utility>

#include "kernel/Luvut.h"
#include "tekstit/rakennus.h"
#include "ui/Tekstivarasto.h"

namespace {

bool OnKaytettavissa(const TextBox& kentta) { return kentta.Nakyva() && kentta.Kaytossa(); }

}  // namespace

Kulutuslomake::Kulutuslomake(std::string nimi, Lukuviestit viestit, std::string_view tunnitYks)
    : Muokkauslomake(std::move(nimi)),
      viestit_(std::move(viestit)),
      tunnit_{txtKayttomaaraTunnitVrk_ssa, Label(*this, "lblKayttomaaraTunnitVrk_ssa"), Label(*this, tunnitYks)},
      paivat_{txtKayttomaaraVrktVuodessa, Label(*this, "lblKayttomaaraVrktVuodessa"),
              Label(*this, "lblYksKayttomaaraVrktVuodessa")} {
  for (const TextBox& kentta : {txtOminaissuureidenMaara, txtLaskentaYksikoidenMaara, txtKayttomaaraTunnitVrk_ssa,
                                txtKayttomaaraVrktVuodessa, txtTasauskerroin})
    LisaaTekija(kentta);
  cmdOk.KunKlikataan([this] {
    if (TekijatKelpaavat()) NostaKunKelpaa(OkKlikattu);
  });
}

void Kulutuslomake::LisaaTekija(const TextBox& kentta) {
  tekijat_.push_back(kentta);
  kentta.KunMuuttuu([this] { Nosta(LaskentaMuuttui); });
  kentta.KunPoistutaan([this, kentta] {
    if (VaadiLuku(kentta.Kohde(), viestit_)) TarkistaKentta(kentta.Kohde());
  });
}

bool Kulutuslomake::TekijatKelpaavat() const {
  return std::ranges::all_of(tekijat_, [this](const TextBox& kentta) {
    return !OnKaytettavissa(kentta) || VaadiLuku(kentta.Kohde(), viestit_);
  });
}

bool Kulutuslomake::TekijatLuettavissa() const {
  return std::ranges::all_of(
      tekijat_, [](const TextBox& kentta) { return !OnKaytettavissa(kentta) || LueLuku(kentta.Teksti()); });
}

void Kulutuslomake::NaytaTulos(const TextBox& kentta, std::optional<double> arvo, const char* kuvio) {
  kentta.Teksti(arvo ? Muotoile(*arvo, kuvio) : Teksti(tekstit::kViiva));
}

void Kulutuslomake::NaytaKaytto(bool tunnit, bool paivat) {
  NaytaKentta(tunnit_, tunnit);
  NaytaKentta(paivat_, paivat);
}

void Kulutuslomake::NaytaKentta(Kayttokentta& kaytto, bool nakyva) {
  const TextBox& kentta = kaytto.kentta;
  if (kentta.Nakyva() == nakyva) return;
  kentta.Kohde().PaataMuokkaus();
  if (nakyva) {
    kentta.Kohde().Teksti(kaytto.teksti, kaytto.luku);
  } else {
    kaytto.teksti = kentta.Teksti();
    kaytto.luku = kentta.Muuttunut() ? LueLuku(kaytto.teksti) : kentta.Kohde().TaytettyLuku();
    kentta.Luku(1, "0");
  }
  kentta.Nakyva(nakyva);
  kaytto.nimi.Nakyva(nakyva);
  kaytto.yksikko.Nakyva(nakyva);
}
