// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <functional>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "kernel/Jasen.h"
#include "kernel/Kellonajat.h"
#include "ui/Lomake.h"

/// Field bindings: which control of a form shows which member of an object, and how. A form's fields are told in one
/// table,
///
///   const Sidontataulu kSidonnat{"frmTila",
///                                {Tekstikentta<&clsTila::TilanNimi>("txtTilanNimi"),
///                                 Lukukentta<&clsTila::Sisalampotila>("txtSisalampotila", "0.0#"),
///                                 Rastikentta<&clsTila::LammitettyTila>("chkLammitettyTila"),
///                                 Valintakentta<&clsTila::SaatotapaID, &clsTila::SaatotapaStr>("cmbSaatotapa")}};
///
/// and `Lue`, `Kirjoita` and `Muuttunut` of the table do the rest. What a row binds is a member of the object, one of
/// an object inside it (`Polku<&clsRakenne::SivuLippa, &clsLippaVarjostus::Varjostuskulma>`), or a property with code
/// (`Funktiot<Hae, Aseta>`, or a value of a class of its own with the types Olio and Arvo and static Hae and Aseta). A
/// '*' in the name of a control stands for a word that is given when the table is used, so that fields which a form has
/// three or six times are told once. Limits and units of number fields stand in the form itself (ui/Kenttatarkistus.h).

/// Path to a member of an object inside the object.
template <auto... Jasenet>
struct Jasenpolku {};
template <auto... Jasenet>
inline constexpr Jasenpolku<Jasenet...> Polku{};

namespace sidonta {

template <class>
struct Lukija;
template <class T, class C>
struct Lukija<T (*)(const C&)> {
  using Olio = C;
  using Arvo = std::remove_cvref_t<T>;
};

/// A property with code.
template <auto Lue, auto Kirjoita>
struct Ominaisuus : Lukija<decltype(Lue)> {
  using typename Lukija<decltype(Lue)>::Olio;
  using typename Lukija<decltype(Lue)>::Arvo;
  static decltype(auto) Hae(const Olio& olio) { return Lue(olio); }
  static void Aseta(Olio& olio, Arvo arvo) { Kirjoita(olio, std::move(arvo)); }
};

}  // namespace sidonta

/// Two functions: T (const C&) and void (C&, T).
template <auto Hae, auto Aseta>
inline constexpr sidonta::Ominaisuus<Hae, Aseta> Funktiot{};

namespace sidonta {

/// What a row of a table binds: the object's class, the value's type, reading and setting.
template <auto Jasen, class = std::remove_cv_t<decltype(Jasen)>>
struct Kohde;

template <auto Jasen, class C, class T>
struct Kohde<Jasen, T C::*> {
  using Olio = C;
  using Arvo = T;
  static const T& Hae(const C& olio) { return olio.*Jasen; }
  static void Aseta(C& olio, T arvo) { olio.*Jasen = std::move(arvo); }
};

template <auto Jasen, class T>
requires requires { typename T::Olio; }
struct Kohde<Jasen, T> : T {};

template <auto Polun, auto Jasen, auto... Loput>
struct Kohde<Polun, Jasenpolku<Jasen, Loput...>> {
  using Olio = typename Osat<decltype(Jasen)>::Luokka;
  using Loppu = Kohde<Polku<Loput...>>;
  using Arvo = typename Loppu::Arvo;
  static decltype(auto) Hae(const Olio& olio) { return Loppu::Hae(olio.*Jasen); }
  static void Aseta(Olio& olio, Arvo arvo) { Loppu::Aseta(olio.*Jasen, std::move(arvo)); }
};

template <auto Polun, auto Jasen>
struct Kohde<Polun, Jasenpolku<Jasen>> : Kohde<Jasen> {};

}  // namespace sidonta

/// One row of a table, whatever it binds.
struct Sidonta {
  std::string_view ohjain;   ///< name of the control
  std::string_view kuvio{};  ///< how a number is shown (kernel/Luvut.h)
  void (*lue)(const Sidonta&, Ohjain&, const void* olio) = nullptr;
  bool (*kirjoita)(const Sidonta&, const Ohjain&, void* olio) = nullptr;
};

/// A row that binds something of C.
template <class C>
struct OlionSidonta : Sidonta {};

namespace sidonta {

/// Shows the number times the factor; the field remembers the number itself.
void NaytaLuku(const Sidonta& rivi, Ohjain& kentta, double arvo, double kerroin);
/// Gives the field's number, as stored, to `arvo`. An unchanged field gives the very number that it was filled with. A
/// text that is no number leaves `arvo` as it is and gives false.
bool LueLukuna(const Ohjain& kentta, double kerroin, double& arvo);
/// False when the number doesn't fit the type.
bool Mahduta(double luku, double& arvo);
bool Mahduta(double luku, float& arvo);
bool Mahduta(double luku, std::int32_t& arvo);
bool Mahduta(double luku, std::int16_t& arvo);
std::string ValittuTeksti(const Ohjain& valinta);

template <class K>
auto& OlioOf(const void* olio) {
  return *static_cast<const typename K::Olio*>(olio);
}
template <class K>
auto& OlioOf(void* olio) {
  return *static_cast<typename K::Olio*>(olio);
}
template <auto Funktio, class C>
double Kerroin(const C& olio) {
  if constexpr (std::is_same_v<decltype(Funktio), std::nullptr_t>)
    return 1;
  else
    return std::invoke(Funktio, olio);
}

}  // namespace sidonta

/// A number, shown by the pattern. Whole numbers are rounded, a half to even. `Kerroin`: a member function of the
/// object that gives the shown amount for one stored; for money.
template <auto Jasen, auto Kerroin = nullptr>
constexpr auto Lukukentta(std::string_view ohjain, std::string_view kuvio) {
  using K = sidonta::Kohde<Jasen>;
  OlionSidonta<typename K::Olio> rivi{{ohjain, kuvio}};
  rivi.lue = [](const Sidonta& r, Ohjain& kentta, const void* olio) {
    const auto& kohde = sidonta::OlioOf<K>(olio);
    sidonta::NaytaLuku(r, kentta, static_cast<double>(K::Hae(kohde)), sidonta::Kerroin<Kerroin>(kohde));
  };
  rivi.kirjoita = [](const Sidonta&, const Ohjain& kentta, void* olio) {
    auto& kohde = sidonta::OlioOf<K>(olio);
    typename K::Arvo arvo = K::Hae(kohde);
    auto luku = static_cast<double>(arvo);
    if (!sidonta::LueLukuna(kentta, sidonta::Kerroin<Kerroin>(kohde), luku) || !sidonta::Mahduta(luku, arvo))
      return false;
    K::Aseta(kohde, arvo);
    return true;
  };
  return rivi;
}

template <auto Jasen>
constexpr auto Tekstikentta(std::string_view ohjain) {
  using K = sidonta::Kohde<Jasen>;
  OlionSidonta<typename K::Olio> rivi{{ohjain}};
  rivi.lue = [](const Sidonta&, Ohjain& kentta, const void* olio) {
    kentta.Teksti(std::string(K::Hae(sidonta::OlioOf<K>(olio))));
  };
  rivi.kirjoita = [](const Sidonta&, const Ohjain& kentta, void* olio) {
    K::Aseta(sidonta::OlioOf<K>(olio), kentta.Teksti());
    return true;
  };
  return rivi;
}

/// A time of day, hh:mm.
template <auto Jasen>
constexpr auto Aikakentta(std::string_view ohjain) {
  using K = sidonta::Kohde<Jasen>;
  OlionSidonta<typename K::Olio> rivi{{ohjain}};
  rivi.lue = [](const Sidonta&, Ohjain& kentta, const void* olio) {
    kentta.Teksti(KellonaikaTekstina(K::Hae(sidonta::OlioOf<K>(olio))));
  };
  rivi.kirjoita = [](const Sidonta&, const Ohjain& kentta, void* olio) {
    const auto aika = LueKellonaika(kentta.Teksti());
    if (aika) K::Aseta(sidonta::OlioOf<K>(olio), *aika);
    return aika.has_value();
  };
  return rivi;
}

namespace sidonta {

/// A box or a button: ticked when `Tila` says so of the value; `Aseta` sets the value by the tick.
template <class K, class Tila, class Aseta>
constexpr auto Nappi(std::string_view ohjain, Tila, Aseta) {
  OlionSidonta<typename K::Olio> rivi{{ohjain}};
  rivi.lue = [](const Sidonta&, Ohjain& nappi, const void* olio) {
    nappi.Valittu(Tila{}(K::Hae(sidonta::OlioOf<K>(olio))));
  };
  rivi.kirjoita = [](const Sidonta&, const Ohjain& nappi, void* olio) {
    Aseta{}(sidonta::OlioOf<K>(olio), nappi.Valittu());
    return true;
  };
  return rivi;
}

}  // namespace sidonta

/// A check box, or an option button that is a flag of its own.
template <auto Jasen>
constexpr auto Rastikentta(std::string_view ohjain) {
  using K = sidonta::Kohde<Jasen>;
  return sidonta::Nappi<K>(
      ohjain, [](bool arvo) { return arvo; }, [](typename K::Olio& olio, bool valittu) { K::Aseta(olio, valittu); });
}

/// An option button of a group: ticked when the member has the value.
template <auto Jasen, auto Arvo>
constexpr auto Nappikentta(std::string_view ohjain) {
  using K = sidonta::Kohde<Jasen>;
  return sidonta::Nappi<K>(
      ohjain, [](const typename K::Arvo& arvo) { return arvo == Arvo; },
      [](typename K::Olio& olio, bool valittu) {
        if (valittu) K::Aseta(olio, Arvo);
      });
}

/// A choice list: the member holds the row, from 0, and another one, if told, its text. A row that the list doesn't
/// have (from a foreign file) stays until another one is chosen.
template <auto Rivi, auto Teksti = nullptr>
constexpr auto Valintakentta(std::string_view ohjain) {
  using K = sidonta::Kohde<Rivi>;
  OlionSidonta<typename K::Olio> rivi{{ohjain}};
  rivi.lue = [](const Sidonta&, Ohjain& valinta, const void* olio) {
    valinta.Indeksi(static_cast<int>(K::Hae(sidonta::OlioOf<K>(olio))));
  };
  rivi.kirjoita = [](const Sidonta&, const Ohjain& valinta, void* olio) {
    if (valinta.Indeksi() < 0) return true;
    auto& kohde = sidonta::OlioOf<K>(olio);
    K::Aseta(kohde, static_cast<typename K::Arvo>(valinta.Indeksi()));
    if constexpr (!std::is_same_v<decltype(Teksti), std::nullptr_t>)
      sidonta::Kohde<Teksti>::Aseta(kohde, sidonta::ValittuTeksti(valinta));
    return true;
  };
  return rivi;
}

/// The rows of a table, whatever their object. All tables of the program are entered in a list, so that a test can walk
/// every binding.
class Sidontalista {
 public:
  Sidontalista(const Sidontalista&) = delete;
  Sidontalista& operator=(const Sidontalista&) = delete;

  const std::string& Lomakkeenimi() const { return lomake_; }
  std::span<const Sidonta> Rivit() const { return rivit_; }
  /// The words with which the table is used; one empty word when it is used as it is.
  const std::vector<std::string>& Sanat() const { return sanat_; }
  /// Name of the row's control with the word in the place of '*'.
  static std::string OhjaimenNimi(const Sidonta& rivi, std::string_view sana);
  /// The person has changed one of the controls.
  bool Muuttunut(const Lomake& lomake, std::string_view sana = {}) const;

  static std::span<const Sidontalista* const> Kaikki();

 protected:
  Sidontalista(std::string_view lomake, std::vector<Sidonta> rivit, std::initializer_list<std::string_view> sanat);
  ~Sidontalista();

  void LueOlio(const Lomake& lomake, const void* olio, std::string_view sana) const;
  void PaivitaOlio(const Lomake& lomake, const void* olio, std::string_view sana) const;
  void SiistiOlio(const Lomake& lomake, void* olio, std::string_view sana) const;
  bool KirjoitaOhjain(const Ohjain& ohjain, void* olio, std::string_view sana) const;
  bool KirjoitaOlio(const Lomake& lomake, void* olio, std::string_view sana) const;

 private:
  std::string lomake_;
  std::vector<Sidonta> rivit_;
  std::vector<std::string> sanat_;
};

/// The bindings of a form to objects of C. It lives for the whole run.
template <class C>
class Sidontataulu : public Sidontalista {
 public:
  /// `sanat`: the words with which the table is used.
  Sidontataulu(std::string_view lomake, std::initializer_list<OlionSidonta<C>> rivit,
               std::initializer_list<std::string_view> sanat = {""})
      : Sidontalista(lomake, {rivit.begin(), rivit.end()}, sanat) {}
  /// Rows that several forms have.
  Sidontataulu(std::string_view lomake, std::span<const OlionSidonta<C>> rivit,
               std::initializer_list<std::string_view> sanat = {""})
      : Sidontalista(lomake, {rivit.begin(), rivit.end()}, sanat) {}

  /// Fills the controls from the object, silently.
  void Lue(const Lomake& lomake, const C& olio, std::string_view sana = {}) const { LueOlio(lomake, &olio, sana); }
  /// Writes the controls to the object. A number field that the person hasn't changed gives the very number that it was
  /// filled with, so that shown rounding never enters the object; one that holds no such value leaves the member as it
  /// is. False when there was one of those.
  bool Kirjoita(const Lomake& lomake, C& olio, std::string_view sana = {}) const {
    return KirjoitaOlio(lomake, &olio, sana);
  }
  /// Writes this control alone, if the table has it and it holds a good value (ui/Kenttatarkistus.h). True when it was
  /// written: for a dialog whose object follows the typing.
  bool KirjoitaKentta(const Ohjain& ohjain, C& olio, std::string_view sana = {}) const {
    return KirjoitaOhjain(ohjain, &olio, sana);
  }
  /// Fills the controls, but not those in which the person has written what isn't good: that stays to be mended.
  void Paivita(const Lomake& lomake, const C& olio, std::string_view sana = {}) const {
    PaivitaOlio(lomake, &olio, sana);
  }
  /// Writes, and shows what was written as it was understood; a text that wasn't stays for the person to mend.
  void Siisti(const Lomake& lomake, C& olio, std::string_view sana = {}) const { SiistiOlio(lomake, &olio, sana); }
};
