// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <ostream>
#include <string_view>

/// Writes JSON (RFC 8259) to a stream as it comes: UTF-8, two blanks of indentation, an array of numbers on one line.
/// Doubles bear 17 significant digits; infinity and not-a-number are null.
class JsonKirjoitin {
 public:
  explicit JsonKirjoitin(std::ostream& tulos) : tulos_(tulos) {}

  void AlaOlio() { Avaa('{'); }
  void LopetaOlio() { Sulje('}'); }
  void AlaTaulukko() { Avaa('['); }
  void LopetaTaulukko() { Sulje(']'); }
  /// Name of the next value of an object.
  void Avain(std::string_view nimi);
  void Arvo(double luku);
  void Arvo(int luku);
  void Arvo(std::string_view teksti);
  void Tyhja();
  /// A range of numbers as an array.
  template <class Alue>
  void Luvut(Alue&& luvut) {
    Erotin();
    tulos_ << '[';
    const char* valissa = "";
    for (const double luku : luvut) {
      tulos_ << valissa;
      KirjoitaLuku(luku);
      valissa = ", ";
    }
    tulos_ << ']';
  }
  /// Rows of numbers as an array of arrays.
  template <class Alue>
  void Taulukko(const Alue& rivit) {
    AlaTaulukko();
    for (const auto& rivi : rivit) Luvut(rivi);
    LopetaTaulukko();
  }

 private:
  void Avaa(char merkki);
  void Sulje(char merkki);
  void Erotin();
  void Rivi();
  void KirjoitaTeksti(std::string_view teksti);
  void KirjoitaLuku(double luku);

  std::ostream& tulos_;
  int syvyys_ = 0;
  bool ensimmainen_ = true;  // of the open object or array
  bool avainKirjoitettu_ = false;
};
