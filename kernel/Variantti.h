// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "kernel/Tunniste.h"

class Olio;

/// Kind of a member's value: the type code under which a change of it is stored.
enum class Laji : std::uint8_t {
  Lyhyt = 2,            ///< 16-bit integer
  Pitka = 3,            ///< 32-bit integer
  Yksinkertainen = 4,   ///< single precision
  Kaksinkertainen = 5,  ///< double precision
  Valuutta = 6,         ///< amount with four decimals
  Paivays = 7,          ///< date or time, as days; a time of day is a fraction of one
  Teksti = 8,
  Olio = 9,
  Totuus = 11,  ///< True is -1, False 0
  Desimaali = 14,
};

/// Time of day in whole minutes, 0 to 1439; as a value the fraction of a day (06:15 is 0.260416...).
struct Kellonaika {
  std::int32_t minuutit = 0;
  double Vuorokausina() const noexcept { return minuutit / 1440.0; }
  friend bool operator==(Kellonaika, Kellonaika) = default;
};

struct Rahamaara {
  double maara = 0;
};
struct Desimaali {
  double maara = 0;
};

/// A value of any kind, for access by name.
using Variantti = std::variant<std::monostate, std::int16_t, std::int32_t, float, double, Rahamaara, Kellonaika,
                               std::string, bool, Desimaali, Olio*>;

/// A member's field as it is, to be put back exactly.
using Kentanarvo = std::variant<std::int16_t, std::int32_t, float, double, bool, Kellonaika, std::string, Tunniste>;

/// A member's value seen without copying it: how save, load and comparison look at members. A text lives as long as the
/// object and this view do.
class ArvoNakyma {
 public:
  ArvoNakyma() {}
  ArvoNakyma(const ArvoNakyma&) = delete;
  ArvoNakyma& operator=(const ArvoNakyma&) = delete;

  enum class Muoto : std::uint8_t { Tyhja, Kokonaisluku, Reaaliluku, Teksti };

  void AsetaTyhja() noexcept { muoto_ = Muoto::Tyhja; }
  void Aseta(std::int64_t arvo) noexcept { muoto_ = Muoto::Kokonaisluku, kokonais_ = arvo; }
  void Aseta(double arvo) noexcept { muoto_ = Muoto::Reaaliluku, reaali_ = arvo; }
  void Aseta(std::string_view teksti) noexcept { muoto_ = Muoto::Teksti, teksti_ = teksti; }
  void Aseta(const Tunniste& tunniste) noexcept { Aseta(tunniste.Nakyma(puskuri_.data())); }

  Muoto OmaMuoto() const noexcept { return muoto_; }
  std::int64_t Kokonais() const noexcept { return kokonais_; }
  double Reaali() const noexcept { return reaali_; }
  std::string_view Teksti() const noexcept { return teksti_; }
  /// Any number as a double; a text or nothing gives 0.
  double Lukuna() const noexcept {
    return muoto_ == Muoto::Reaaliluku ? reaali_ : muoto_ == Muoto::Kokonaisluku ? static_cast<double>(kokonais_) : 0.0;
  }

 private:
  Muoto muoto_ = Muoto::Tyhja;
  std::int64_t kokonais_ = 0;
  double reaali_ = 0;
  std::string_view teksti_;
  std::array<char, Tunniste::kPisinTeksti> puskuri_;
};

/// The one place where values are converted to a member's type. Each tells whether the value could be read; if not, the
/// target keeps what it had. Texts may hold a number in point or comma form, times "hh:mm", Booleans any non-zero
/// number, "True" or "Tosi".
bool Muunna(const ArvoNakyma& lahde, std::int16_t& kohde);
bool Muunna(const ArvoNakyma& lahde, std::int32_t& kohde);
bool Muunna(const ArvoNakyma& lahde, float& kohde);
bool Muunna(const ArvoNakyma& lahde, double& kohde);
bool Muunna(const ArvoNakyma& lahde, bool& kohde);
bool Muunna(const ArvoNakyma& lahde, Kellonaika& kohde);
bool Muunna(const ArvoNakyma& lahde, std::string& kohde);
bool Muunna(const ArvoNakyma& lahde, Tunniste& kohde);
