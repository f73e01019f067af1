// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Sormenjalki.h"

#include <bit>

#include "kernel/Kokoelma.h"

namespace {

/// FNV-1a, a word at a time for numbers.
class Summa {
 public:
  void Lisaa(std::uint64_t sana) noexcept { arvo_ = (arvo_ ^ sana) * kAlkuluku; }
  void Lisaa(std::string_view teksti) noexcept {
    for (const char merkki : teksti) Lisaa(std::uint64_t{static_cast<unsigned char>(merkki)});
    Lisaa(std::uint64_t{teksti.size()});
  }
  void Lisaa(const ArvoNakyma& arvo) noexcept {
    if (arvo.OmaMuoto() == ArvoNakyma::Muoto::Teksti) return Lisaa(arvo.Teksti());
    Lisaa(arvo.OmaMuoto() == ArvoNakyma::Muoto::Reaaliluku ? std::bit_cast<std::uint64_t>(arvo.Reaali())
                                                           : static_cast<std::uint64_t>(arvo.Kokonais()));
  }
  std::uint64_t Arvo() const noexcept { return arvo_; }

 private:
  static constexpr std::uint64_t kAlkuluku = 0x100000001b3;
  std::uint64_t arvo_ = 0xcbf29ce484222325;
};

void LisaaOlio(Summa& summa, Olio& olio, const clsTyyppiTiedot& tyypit);

void LisaaJasenet(Summa& summa, Olio& olio, const clsTyyppiTiedot& tyypit) {
  const clsTyyppiTieto* tieto = tyypit.Etsi(olio.LuokanTiedot());
  if (!tieto) return;
  for (const Jasen* jasen : tieto->Jasenet()) {
    if (jasen->kopio) continue;
    if (!jasen->OnOlio()) {
      ArvoNakyma arvo;
      jasen->nayta(olio, arvo);
      summa.Lisaa(arvo);
    } else if (Olio* lapsi = jasen->olio(olio)) {
      LisaaOlio(summa, *lapsi, tyypit);
    }
  }
}

void LisaaOlio(Summa& summa, Olio& olio, const clsTyyppiTiedot& tyypit) {
  summa.Lisaa(std::uint64_t{olio.LuokanTiedot().Numero()});
  if (KokoelmaPohja* kokoelma = olio.Kokoelmana())
    for (int i = 1; i <= kokoelma->Count(); ++i) LisaaOlio(summa, kokoelma->Pohja(i), tyypit);
  if (KokoelmaPohja* rivit = olio.ListaItemeina())
    for (int i = 1; i <= rivit->Count(); ++i)
      if (rivit->Pohja(i).OnSisaltoa()) LisaaOlio(summa, rivit->Pohja(i), tyypit);
  LisaaJasenet(summa, olio, tyypit);
}

}  // namespace

std::uint64_t Sormenjalki(Olio& olio, const clsTyyppiTiedot& tyypit) {
  Summa summa;
  LisaaOlio(summa, olio, tyypit);
  return summa.Arvo();
}

std::uint64_t SormenjalkiIlmanAlkioita(Olio& olio, const clsTyyppiTiedot& tyypit) {
  Summa summa;
  LisaaJasenet(summa, olio, tyypit);
  return summa.Arvo();
}
