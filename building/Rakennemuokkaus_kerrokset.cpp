// SPDX-License-Identifier: GPL-3.0-or-later
// The layers of the chosen structure: their list and what the person does to them.
#include <algorithm>

#include "building/Kerrosmuokkaus.h"
#include "building/LisaaKopio.h"
#include "building/Rakennemuokkaus.h"
#include "kernel/Luvut.h"
#include "library/Lampotilajakauma.h"
#include "tekstit/lomakkeet_tilat.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr const char* kEiArvoa = "---";

std::string KyllaTaiEi(bool kylla) { return Teksti(kylla ? tekstit::kKylla : tekstit::kEi); }

/// `vastus`: m²K/W.
std::vector<std::string> Kerrosrivi(const clsRakennekerros& kerros, std::size_t indeksi, double vastus) {
  const std::string numero = std::to_string(indeksi);
  return {kerros.Nimi.empty() ? numero : kerros.Nimi,
          kerros.Materiaali.Nimi,
          Muotoile(kerros.Paksuus, "### ##0.##"),
          KyllaTaiEi(kerros.UArvoon),
          numero,
          KyllaTaiEi(kerros.Yhtenainen),
          vastus > 0 ? Muotoile(vastus, "0.00#") : kEiArvoa};
}

}  // namespace

void Rakennemuokkaus::LiitaKerrostapahtumat() {
  KayttoLiittyma.RakKerLisaa = [this] { KayttoLiittyma_RakKerLisaa(); };
  KayttoLiittyma.RakKerMuokkaa = [this] { KayttoLiittyma_RakKerMuokkaa(); };
  KayttoLiittyma.RakKerKopioi = [this] { KayttoLiittyma_RakKerKopioi(); };
  KayttoLiittyma.RakKerPoista = [this] { KayttoLiittyma_RakKerPoista(); };
  KayttoLiittyma.RakKerSiirraSisaanPain = [this] { KayttoLiittyma_RakKerSiirraSisaanPain(); };
}

void Rakennemuokkaus::NaytaKerrokset(int valittava) {
  const clsRakenne* rakenne = Muokattava();
  Taulukko rivit;
  if (rakenne && rakenne->RakenneRatkaisu) {
    const auto vastukset = LaskeLampotilajakauma(*rakenne->RakenneRatkaisu, 0, 0).kerrosvastukset;
    for (const clsRakennekerros& kerros : rakenne->RakenneRatkaisu->Kerrokset)
      rivit.push_back(Kerrosrivi(kerros, rivit.size() + 1, vastukset[rivit.size()]));
  }
  KayttoLiittyma.lvwKerrokset.Rivit(std::move(rivit));
  KayttoLiittyma.lvwKerrokset.Indeksi(valittava);
}

/// The sums and the U-value follow the layers.
void Rakennemuokkaus::KerroksetMuuttuivat(int valittava) {
  Ratkaisu().PaivitaKerrossummat();
  LueRatkaisu(Ratkaisu());
  NaytaUarvo();
  NaytaKerrokset(valittava);
  PaivitaKentat();
}

/// A pick of the whole structure ends: it would replace the layer under the person's hands.
void Rakennemuokkaus::AvaaKerros(int rivi) {
  KirjoitaDataluokka();
  RakKirjasto_KantaDlgSuljettu();
  Kerrosmuokkaus muokkaus(RatkaisuTaiUusi(), rivi + 1);
  if (!muokkaus.Nayta()) return;
  Ratkaisu() = muokkaus.Ratkaisu();
  KerroksetMuuttuivat(rivi);
}

void Rakennemuokkaus::KayttoLiittyma_RakKerLisaa() {
  AvaaKerros(static_cast<int>(KayttoLiittyma.lvwKerrokset.Rivit().size()));
}

void Rakennemuokkaus::KayttoLiittyma_RakKerMuokkaa() { AvaaKerros(KayttoLiittyma.lvwKerrokset.Indeksi()); }

void Rakennemuokkaus::KayttoLiittyma_RakKerKopioi() {
  KirjoitaDataluokka();
  const int rivi = KayttoLiittyma.lvwKerrokset.Indeksi();
  LisaaKopio(Ratkaisu().Kerrokset, Ratkaisu().Kerrokset.Item(rivi + 1));
  KerroksetMuuttuivat(rivi + 1);
}

/// None is chosen any more when a pick has brought other layers during the question.
void Rakennemuokkaus::KayttoLiittyma_RakKerPoista() {
  int rivi = KayttoLiittyma.lvwKerrokset.Indeksi();
  if (!KysyPoisto(KerroksenNimi(Ratkaisu().Kerrokset.Item(rivi + 1)))) return;
  rivi = KayttoLiittyma.lvwKerrokset.Indeksi();
  if (rivi < 0) return;
  KirjoitaDataluokka();
  Ratkaisu().Kerrokset.Remove(rivi + 1);
  KerroksetMuuttuivat(std::min(rivi, Ratkaisu().Kerrokset.Count() - 1));
}

void Rakennemuokkaus::KayttoLiittyma_RakKerSiirraSisaanPain() {
  KirjoitaDataluokka();
  const int rivi = KayttoLiittyma.lvwKerrokset.Indeksi();
  Ratkaisu().Kerrokset.SiirraSisaanpain(rivi + 1);
  KerroksetMuuttuivat(rivi - 1);
}
