// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/JsonKirjoitin.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>

#include "kernel/Tekstitiedosto.h"

void JsonKirjoitin::Avain(std::string_view nimi) {
  Erotin();
  KirjoitaTeksti(nimi);
  tulos_ << ": ";
  avainKirjoitettu_ = true;
}

void JsonKirjoitin::Arvo(double luku) {
  Erotin();
  KirjoitaLuku(luku);
}

void JsonKirjoitin::Arvo(int luku) {
  Erotin();
  tulos_ << luku;
}

void JsonKirjoitin::Totuus(bool arvo) {
  Erotin();
  tulos_ << (arvo ? "true" : "false");
}

void JsonKirjoitin::Arvo(std::string_view teksti) {
  Erotin();
  KirjoitaTeksti(teksti);
}

void JsonKirjoitin::Tyhja() {
  EiArvoa();
  ++tyhjia_;
}

void JsonKirjoitin::EiArvoa() {
  Erotin();
  tulos_ << "null";
}

void JsonKirjoitin::Avaa(char merkki) {
  Erotin();
  tulos_ << merkki;
  ++syvyys_;
  ensimmainen_ = true;
}

void JsonKirjoitin::Sulje(char merkki) {
  --syvyys_;
  if (!ensimmainen_) Rivi();
  tulos_ << merkki;
  ensimmainen_ = false;
}

void JsonKirjoitin::Erotin() {
  if (avainKirjoitettu_) {
    avainKirjoitettu_ = false;
    return;
  }
  if (!ensimmainen_) tulos_ << ',';
  if (syvyys_ > 0) Rivi();
  ensimmainen_ = false;
}

void JsonKirjoitin::Rivi() {
  tulos_ << '\n';
  for (int i = 0; i < syvyys_; ++i) tulos_ << "  ";
}

void JsonKirjoitin::KirjoitaTeksti(std::string_view raaka) {
  const std::string teksti = KorvaaVirheelliset(raaka);
  korjattuja_ += teksti != raaka;
  tulos_ << '"';
  for (const char merkki : teksti) {
    if (merkki == '"' || merkki == '\\') {
      tulos_ << '\\' << merkki;
    } else if (static_cast<unsigned char>(merkki) < 0x20) {
      std::array<char, 8> koodi{};
      std::snprintf(koodi.data(), koodi.size(), "\\u%04x", static_cast<unsigned>(merkki));
      tulos_ << koodi.data();
    } else {
      tulos_ << merkki;
    }
  }
  tulos_ << '"';
}

void JsonKirjoitin::KirjoitaLuku(double luku) {
  if (!std::isfinite(luku)) {
    tulos_ << "null";
    ++tyhjia_;
    return;
  }
  std::array<char, 32> teksti{};
  const auto loppu = std::to_chars(teksti.data(), teksti.data() + teksti.size(), luku, std::chars_format::general, 17);
  tulos_.write(teksti.data(), loppu.ptr - teksti.data());
}
