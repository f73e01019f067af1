// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

#include "kernel/Olio.h"

enum Tekstinumero : int;

/// An object whose results are read, and the objects that it stands in, nearest first.
struct Tuloskohde {
  Olio& olio;
  const Tuloskohde* omistaja = nullptr;

  /// The nearest owner of class C. Raises std::logic_error when there is none.
  template <class C>
  C& Omistaja() const {
    for (const Tuloskohde* k = omistaja; k; k = k->omistaja)
      if (&k->olio.LuokanTiedot() == &C::kLuokka) return static_cast<C&>(k->olio);
    throw std::logic_error(std::string("kohteella ei ole omistajaa ") + std::string(C::kLuokka.Nimi()));
  }
};

/// What is called with each key and number of a map.
using Karttakasittelija = std::function<void(std::string_view avain, double arvo)>;

/// A number, a text, or nothing where the result has no value, as the payback of what doesn't pay back.
using Tulosarvo = std::variant<double, std::string, std::monostate>;

enum class Tuloslaji : std::uint8_t {
  Kuukausi,  ///< a number for each month
  Vuosi,     ///< a number of the year
  Luku,      ///< a number that belongs to no time
  Teksti,    ///< a name or a key
  Arvo,      ///< a number, a text or nothing, as the object has it
  Osa,       ///< the results of a part
  Upotettu,  ///< the results of a part, shown as if they were the object's own
  Osat,      ///< the results of the items of a collection
  Kartta,    ///< a number by key
  Totuus,    ///< yes or no
  Ryhma,     ///< rows of the same object under a name of their own
};

/// One row of a class's table of results, beside its table of members: what is computed of an object, under what name,
/// in what unit and with what accuracy it is shown. Whatever shows results reads these rows: lists and summaries, the
/// monthly balance, the batch calculator's JSON, reports and charts. The getters raise what the calculation raises.
struct Tulos {
  std::string_view nimi;
  Tuloslaji laji;
  std::string_view yksikko = {};
  Tekstinumero teksti{};             ///< of the Finnish name, without unit; 0: has none
  const char* kuvio = "### ##0.00";  ///< how the number is shown (kernel/Luvut.h)
  int rinnakkain = 1;                ///< values of one month side by side, such as the directions of radiation
  double (*luku)(const Tuloskohde&, int kuukausi, int sarake) = nullptr;
  std::string (*sana)(const Tuloskohde&) = nullptr;
  Tulosarvo (*arvo)(const Tuloskohde&) = nullptr;
  void (*osat)(const Tuloskohde&, const std::function<void(Olio&)>& kasittele) = nullptr;
  void (*kartta)(const Tuloskohde&, const Karttakasittelija& kasittele) = nullptr;
  bool (*totta)(const Tuloskohde&) = nullptr;
  std::span<const Tulos> ryhma{};

  bool OnLuku() const noexcept { return luku != nullptr; }
  /// The number of the year, or of one month 0 to 11.
  double Arvo(const Tuloskohde& kohde, int kuukausi = 0) const { return luku(kohde, kuukausi, 0); }
};

namespace tulos {

// The class of the object that a getter takes: a member, or a lambda of the object.
template <class T>
struct Haku : Haku<decltype(&T::operator())> {};
template <class T, class C>
struct Haku<T C::*> {
  using Luokka = C;
};
template <class R, class L, class C, class... A>
struct Haku<R (L::*)(C&, A...) const> {
  using Luokka = C;
};
template <auto F>
auto& Olioksi(const Tuloskohde& k) {
  return static_cast<typename Haku<std::remove_const_t<decltype(F)>>::Luokka&>(k.olio);
}

template <auto F, class... A>
decltype(auto) Kutsu(const Tuloskohde& k, A... arvot) {
  auto& olio = Olioksi<F>(k);
  if constexpr (std::is_invocable_v<decltype(F), decltype(olio), const Tuloskohde&, A...>)
    return std::invoke(F, olio, k, arvot...);
  else
    return std::invoke(F, olio, arvot...);
}

}  // namespace tulos

// Makers of rows. A getter is a member function or a lambda of the object (and, where it needs an owner, of the
// Tuloskohde), and for months of the month 0 to 11.

template <auto F>
constexpr Tulos Kuukausitulos(std::string_view nimi, Tekstinumero teksti, std::string_view yksikko = "kWh",
                              const char* kuvio = "### ##0") {
  Tulos t{.nimi = nimi, .laji = Tuloslaji::Kuukausi, .yksikko = yksikko, .teksti = teksti, .kuvio = kuvio};
  t.luku = [](const Tuloskohde& k, int m, int) -> double { return tulos::Kutsu<F>(k, m); };
  return t;
}

/// Months with several values side by side; the getter takes the month and the column from 0.
template <auto F>
constexpr Tulos Kuukausitaulukko(std::string_view nimi, int rinnakkain, Tekstinumero teksti, std::string_view yksikko,
                                 const char* kuvio) {
  Tulos t{.nimi = nimi, .laji = Tuloslaji::Kuukausi, .yksikko = yksikko, .teksti = teksti, .kuvio = kuvio};
  t.rinnakkain = rinnakkain;
  t.luku = [](const Tuloskohde& k, int m, int i) -> double { return tulos::Kutsu<F>(k, m, i); };
  return t;
}

template <auto F>
constexpr Tulos Vuositulos(std::string_view nimi, Tekstinumero teksti, std::string_view yksikko = "MWh/a",
                           const char* kuvio = "### ##0.00") {
  Tulos t{.nimi = nimi, .laji = Tuloslaji::Vuosi, .yksikko = yksikko, .teksti = teksti, .kuvio = kuvio};
  t.luku = [](const Tuloskohde& k, int, int) -> double { return tulos::Kutsu<F>(k); };
  return t;
}

template <auto F>
constexpr Tulos Lukutulos(std::string_view nimi, Tekstinumero teksti, std::string_view yksikko,
                          const char* kuvio = "### ##0.00") {
  Tulos t = Vuositulos<F>(nimi, teksti, yksikko, kuvio);
  t.laji = Tuloslaji::Luku;
  return t;
}

template <auto F>
constexpr Tulos Tekstitulos(std::string_view nimi, Tekstinumero teksti = {}) {
  Tulos t{.nimi = nimi, .laji = Tuloslaji::Teksti, .teksti = teksti};
  t.sana = [](const Tuloskohde& k) { return std::string(tulos::Kutsu<F>(k)); };
  return t;
}
template <auto F>
constexpr Tulos Totuustulos(std::string_view nimi) {
  Tulos t{.nimi = nimi, .laji = Tuloslaji::Totuus};
  t.totta = [](const Tuloskohde& k) -> bool { return tulos::Kutsu<F>(k); };
  return t;
}
/// The getter gives a Tulosarvo.
template <auto F>
constexpr Tulos Arvotulos(std::string_view nimi) {
  Tulos t{.nimi = nimi, .laji = Tuloslaji::Arvo};
  t.arvo = [](const Tuloskohde& k) -> Tulosarvo { return tulos::Kutsu<F>(k); };
  return t;
}
/// A number that there may not be: the getter gives a std::optional<double>.
template <auto F>
constexpr Tulos Ehkatulos(std::string_view nimi, Tekstinumero teksti, std::string_view yksikko,
                          const char* kuvio = "### ##0.00") {
  Tulos t{.nimi = nimi, .laji = Tuloslaji::Arvo, .yksikko = yksikko, .teksti = teksti, .kuvio = kuvio};
  t.arvo = [](const Tuloskohde& k) -> Tulosarvo {
    const std::optional<double> luku = tulos::Kutsu<F>(k);
    return luku ? Tulosarvo(*luku) : Tulosarvo(std::monostate());
  };
  return t;
}
/// The object's key.
constexpr Tulos Avaintulos() {
  return Tekstitulos<[](const Alkio& a) { return a.sKey.Teksti(); }>("sKey");
}

/// A part: the getter gives the object, or makes it for the reading.
template <auto F>
constexpr Tulos Osatulos(std::string_view nimi) {
  Tulos t{.nimi = nimi, .laji = Tuloslaji::Osa};
  t.osat = [](const Tuloskohde& k, const std::function<void(Olio&)>& kasittele) {
    auto&& osa = tulos::Kutsu<F>(k);
    kasittele(osa);
  };
  return t;
}
template <auto F>
constexpr Tulos Upotustulos() {
  Tulos t = Osatulos<F>("");
  t.laji = Tuloslaji::Upotettu;
  return t;
}
/// The items of a collection: the getter gives the collection. Of each item the given rows are shown, else those of its
/// class.
template <auto F>
constexpr Tulos Kokoelmatulos(std::string_view nimi, std::span<const Tulos> rivit = {}) {
  Tulos t{.nimi = nimi, .laji = Tuloslaji::Osat};
  t.ryhma = rivit;
  t.osat = [](const Tuloskohde& k, const std::function<void(Olio&)>& kasittele) {
    for (auto& alkio : tulos::Kutsu<F>(k)) kasittele(alkio);
  };
  return t;
}
/// Numbers by key: the getter takes the object and what is to be called with each key and number.
template <auto F>
constexpr Tulos Karttatulos(std::string_view nimi, Tekstinumero teksti, std::string_view yksikko) {
  Tulos t{.nimi = nimi, .laji = Tuloslaji::Kartta, .yksikko = yksikko, .teksti = teksti};
  t.kartta = [](const Tuloskohde& k, const Karttakasittelija& kasittele) { tulos::Kutsu<F>(k, kasittele); };
  return t;
}
/// Rows of the same object under a name; `rivit` lives for the whole run.
constexpr Tulos Ryhmatulos(std::string_view nimi, std::span<const Tulos> rivit) {
  Tulos t{.nimi = nimi, .laji = Tuloslaji::Ryhma};
  t.ryhma = rivit;
  return t;
}
