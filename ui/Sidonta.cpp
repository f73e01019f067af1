// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Sidonta.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>

#include "kernel/Kirjainkoko.h"
#include "kernel/Luvut.h"
#include "ui/Kenttatarkistus.h"

namespace {

std::vector<const Sidontalista*>& Taulut() {
  static std::vector<const Sidontalista*> taulut;
  return taulut;
}

}  // namespace

void sidonta::NaytaLuku(const Sidonta& rivi, Ohjain& kentta, double arvo, double kerroin) {
  kentta.Teksti(Muotoile(arvo * kerroin, rivi.kuvio), arvo);
}

bool sidonta::LueLukuna(const Ohjain& kentta, double kerroin, double& arvo) {
  if (!kentta.Muuttunut()) {
    arvo = kentta.TaytettyLuku().value_or(arvo);
    return true;
  }
  const auto luku = LueLuku(kentta.Teksti());
  if (luku) arvo = *luku / kerroin;
  return luku.has_value();
}

bool sidonta::Mahduta(double luku, double& arvo) {
  arvo = luku;
  return true;
}

bool sidonta::Mahduta(double luku, float& arvo) {
  if (std::abs(luku) > std::numeric_limits<float>::max()) return false;
  arvo = static_cast<float>(luku);
  return true;
}

bool sidonta::Mahduta(double luku, std::int32_t& arvo) try {
  arvo = PyoristaKokonaisluvuksi(luku);
  return true;
} catch (const std::out_of_range&) {
  return false;
}

bool sidonta::Mahduta(double luku, std::int16_t& arvo) {
  std::int32_t pitka = 0;
  if (!Mahduta(luku, pitka) || !std::in_range<std::int16_t>(pitka)) return false;
  arvo = static_cast<std::int16_t>(pitka);
  return true;
}

std::string sidonta::ValittuTeksti(const Ohjain& valinta) {
  return valinta.Rivit()[static_cast<std::size_t>(valinta.Indeksi())].front();
}

Sidontalista::Sidontalista(std::string_view lomake, std::vector<Sidonta> rivit,
                           std::initializer_list<std::string_view> sanat)
    : lomake_(lomake), rivit_(std::move(rivit)), sanat_(sanat.begin(), sanat.end()) {
  Taulut().push_back(this);
}

Sidontalista::~Sidontalista() { std::erase(Taulut(), this); }

std::span<const Sidontalista* const> Sidontalista::Kaikki() { return Taulut(); }

std::string Sidontalista::OhjaimenNimi(const Sidonta& rivi, std::string_view sana) {
  std::string nimi(rivi.ohjain);
  if (const auto paikka = nimi.find('*'); paikka != std::string::npos) nimi.replace(paikka, 1, sana);
  return nimi;
}

void Sidontalista::LueOlio(const Lomake& lomake, const void* olio, std::string_view sana) const {
  for (const Sidonta& rivi : rivit_) rivi.lue(rivi, lomake.Etsi(OhjaimenNimi(rivi, sana)), olio);
}

void Sidontalista::PaivitaOlio(const Lomake& lomake, const void* olio, std::string_view sana) const {
  for (const Sidonta& rivi : rivit_)
    if (Ohjain& ohjain = lomake.Etsi(OhjaimenNimi(rivi, sana)); !ohjain.Muuttunut() || Kelpaa(ohjain))
      rivi.lue(rivi, ohjain, olio);
}

bool Sidontalista::KirjoitaOhjain(const Ohjain& ohjain, void* olio, std::string_view sana) const {
  const auto rivi =
      std::ranges::find_if(rivit_, [&](const Sidonta& r) { return SamaNimi(OhjaimenNimi(r, sana), ohjain.Nimi()); });
  return rivi != rivit_.end() && Kelpaa(ohjain) && rivi->kirjoita(*rivi, ohjain, olio);
}

void Sidontalista::SiistiOlio(const Lomake& lomake, void* olio, std::string_view sana) const {
  for (const Sidonta& rivi : rivit_)
    if (Ohjain& ohjain = lomake.Etsi(OhjaimenNimi(rivi, sana)); rivi.kirjoita(rivi, ohjain, olio))
      rivi.lue(rivi, ohjain, olio);
}

bool Sidontalista::KirjoitaOlio(const Lomake& lomake, void* olio, std::string_view sana) const {
  bool kelpaa = true;
  for (const Sidonta& rivi : rivit_) kelpaa &= rivi.kirjoita(rivi, lomake.Etsi(OhjaimenNimi(rivi, sana)), olio);
  return kelpaa;
}

bool Sidontalista::Muuttunut(const Lomake& lomake, std::string_view sana) const {
  return std::ranges::any_of(rivit_,
                             [&](const Sidonta& rivi) { return lomake.Etsi(OhjaimenNimi(rivi, sana)).Muuttunut(); });
}
