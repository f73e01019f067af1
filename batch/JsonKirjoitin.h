// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <ostream>
#include <string_view>

/// Writes JSON (RFC 8259) to a stream as it comes: UTF-8, two blanks of indentation, an array of numbers on one line.
/// Doubles bear 17 significant digits; infinity and not-a-number are null; bytes that aren't UTF-8 become U+FFFD.
class JsonKirjoitin {
 public:
  /// `syvyys`: how deep in a document the values stand.
  explicit JsonKirjoitin(std::ostream& tulos, int syvyys = 0) : tulos_(tulos), syvyys_(syvyys) {}

  void AlaOlio() { Avaa('{'); }
  void LopetaOlio() { Sulje('}'); }
  void AlaTaulukko() { Avaa('['); }
  void LopetaTaulukko() { Sulje(']'); }
  /// Name of the next value of an object.
  void Avain(std::string_view nimi);
  void Arvo(double luku);
  void Arvo(int luku);
  void Arvo(std::string_view teksti);
  void Totuus(bool arvo);
  /// A value that couldn't be computed: null, and counted.
  void Tyhja();
  /// A value that there isn't: null.
  void EiArvoa();
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

  /// Values written as null, for want of a finite number.
  int Tyhjia() const { return tyhjia_; }
  /// Texts of which something was replaced.
  int KorjattujaTeksteja() const { return korjattuja_; }

 private:
  void Avaa(char merkki);
  void Sulje(char merkki);
  void Erotin();
  void Rivi();
  void KirjoitaTeksti(std::string_view teksti);
  void KirjoitaLuku(double luku);

  std::ostream& tulos_;
  int syvyys_;
  bool ensimmainen_ = true;  // of the open object or array
  bool avainKirjoitettu_ = false;
  int tyhjia_ = 0, korjattuja_ = 0;
};
