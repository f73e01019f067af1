// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Tiedostotunnus.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <sstream>

#include "kernel/Projektitiedosto.h"

namespace {

/// SQLite's file format: the count of changes, four bytes from byte 24 on, big-endian.
std::uint32_t LueMuutosluku(const Kahva& tiedosto) {
  std::array<unsigned char, 4> tavut{};
  if (pread(tiedosto.Numero(), tavut.data(), tavut.size(), 24) != ssize_t{tavut.size()}) return 0;
  std::uint32_t luku = 0;
  for (const unsigned char tavu : tavut) luku = luku << 8 | tavu;
  return luku;
}

}  // namespace

Tiedostotunnus::Tiedostotunnus(const Kahva& tiedosto, std::string_view juurenAvain)
    : muutoksia_(LueMuutosluku(tiedosto)), juuri_(juurenAvain) {
  const struct stat tiedot = tiedosto.Tiedot();
  laite_ = tiedot.st_dev;
  solmu_ = tiedot.st_ino;
  aika_ = std::int64_t{tiedot.st_mtim.tv_sec} * 1'000'000'000 + tiedot.st_mtim.tv_nsec;
  koko_ = tiedot.st_size;
}

Tiedostotunnus Tiedostotunnus::Lue(const std::string& teksti) {
  Tiedostotunnus tunnus;
  std::istringstream virta(teksti);
  virta >> tunnus.laite_ >> tunnus.solmu_ >> tunnus.aika_ >> tunnus.koko_ >> tunnus.muutoksia_ >> std::ws;
  if (!virta || !std::getline(virta, tunnus.juuri_)) return {};
  return tunnus;
}

std::string Tiedostotunnus::Teksti() const {
  std::ostringstream virta;
  virta << laite_ << ' ' << solmu_ << ' ' << aika_ << ' ' << koko_ << ' ' << muutoksia_ << ' ' << juuri_;
  return virta.str();
}

bool Tiedostotunnus::OnYha(const std::string& tiedosto) const try {
  if (Tyhja()) return true;
  const Kahva kahva(tiedosto, O_RDONLY);
  if (SamaPaikka({kahva, juuri_})) return true;
  const std::string luokka = juuri_.substr(0, juuri_.find(' '));
  return SamaSisalto({kahva, HaeTiedostonTeksti(tiedosto, luokka, "ObjID")});
} catch (const std::system_error& virhe) {
  return virhe.code() == std::errc::no_such_file_or_directory;
}

bool Tiedostotunnus::SamaPaikka(const Tiedostotunnus& toinen) const noexcept {
  return laite_ == toinen.laite_ && solmu_ == toinen.solmu_ && aika_ == toinen.aika_ && koko_ == toinen.koko_;
}

bool Tiedostotunnus::SamaSisalto(const Tiedostotunnus& toinen) const noexcept {
  return koko_ == toinen.koko_ && muutoksia_ == toinen.muutoksia_ && juuri_ == toinen.juuri_;
}
