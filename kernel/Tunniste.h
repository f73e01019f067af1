// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

/// A word of the program that is kept once for the whole run: a class name, a fixed key. `taitettu` is the word in
/// which all spellings that differ by letter case only meet.
struct Sana {
  std::string teksti;
  const Sana* taitettu = nullptr;
  std::size_t tiiviste = 0;
};

/// The kept word of `teksti`; the same text gives the same address, on every thread.
const Sana& Sanaksi(std::string_view teksti);

/// Key or identity of an object: either "class name" + blank + 32 hexadecimal digits, or any fixed text ("sKeyVesi").
/// Trivially copyable, so that the copy of a tree costs no allocation for its identities. Compares without regard to
/// case.
class Tunniste {
 public:
  static constexpr std::size_t kPisinTeksti = 96;  ///< room that `Kirjoita` needs at most

  constexpr Tunniste() = default;
  Tunniste(std::string_view teksti);  // NOLINT: a text is a key
  Tunniste(const char* teksti) : Tunniste(std::string_view(teksti)) {}
  Tunniste(const std::string& teksti) : Tunniste(std::string_view(teksti)) {}
  /// Reads a text whose words before the digits is probably `vihje`: no look-up is needed then.
  static Tunniste Lue(std::string_view teksti, const Sana& vihje);
  /// A fresh identity of the class: its name, a blank and the 32 digits of a new random GUID, upper case.
  static Tunniste Uusi(const Sana& luokka);

  bool Tyhja() const noexcept { return sana_ == nullptr; }
  bool OnGuid() const noexcept { return (a_ | b_) != 0; }
  std::string Teksti() const;
  /// The text without allocation: either the kept word itself or written into `puskuri` of `kPisinTeksti` bytes.
  std::string_view Nakyma(char* puskuri) const noexcept;
  std::size_t Tiiviste() const noexcept;

  friend bool operator==(const Tunniste& x, const Tunniste& y) noexcept {
    return x.a_ == y.a_ && x.b_ == y.b_ && (x.sana_ == y.sana_ || Sama(x.sana_, y.sana_));
  }

 private:
  static bool Sama(const Sana* x, const Sana* y) noexcept { return x && y && x->taitettu == y->taitettu; }

  const Sana* sana_ = nullptr;
  std::uint64_t a_ = 0;
  std::uint64_t b_ = 0;
};

template <>
struct std::hash<Tunniste> {
  std::size_t operator()(const Tunniste& t) const noexcept { return t.Tiiviste(); }
};

/// The next identity text for an object of this class; also the key of a database row.
std::string UusiInstanssiId(std::string_view luokka);
