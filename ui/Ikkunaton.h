// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "ui/Lomakeikkuna.h"

class Ikkunattomat;

/// The window of a form without a screen: reads the form's .ui file, so that a dialog's logic runs and a misspelt
/// control name fails. The functions named Kayttaja... do what a person could do; a control that is disabled, hidden or
/// locked refuses with std::logic_error.
class Ikkunaton : public Lomakeikkuna {
 public:
  Ikkunaton(Ikkunattomat& omistaja, std::string nimi);
  ~Ikkunaton() override;

  const std::string& Nimi() const { return nimi_; }
  const std::string& Otsikko() const { return otsikko_; }
  bool Auki() const { return auki_; }
  const std::string& Teksti(std::string_view nimi) const { return Etsi(nimi).Teksti(); }
  /// Control that was given the focus last, and whether its text was selected.
  const std::string& Kohdistettu() const { return kohdistettu_; }
  bool TekstiValittu() const { return tekstiValittu_; }

  void KayttajaKirjoittaa(std::string_view nimi, std::string teksti);
  void KayttajaPoistuu(std::string_view nimi);
  /// `rivi`: first cell of a row, or caption of a page.
  void KayttajaValitsee(std::string_view nimi, std::string_view rivi);
  void KayttajaPainaa(std::string_view nimi);
  // Of a list, its rows by their first cells.
  void KayttajaAvaa(std::string_view nimi, std::string_view rivi, bool auki);
  void KayttajaMuokkaa(std::string_view nimi, std::string_view rivi, int sarake, const std::string& teksti);
  /// Drags a row under another one; to the top for "".
  void KayttajaSiirtaa(std::string_view nimi, std::string_view rivi, std::string_view ylempi);
  /// Puts a row right behind another one.
  void KayttajaJarjestaa(std::string_view nimi, std::string_view rivi, std::string_view edellinen);
  void KayttajaRastittaa(std::string_view nimi, std::string_view rivi);

  void Otsikko(const std::string& otsikko) override { otsikko_ = otsikko; }
  void Nayta() override { auki_ = true; }
  void NaytaModaalisena() override;
  void Sulje() override { auki_ = false; }
  bool Aktiivinen() const override { return auki_; }

 private:
  friend class IkkunatonOhjain;
  Ohjain& Kaytettava(std::string_view nimi) const;
  int Rivi(const Ohjain& lista, std::string_view rivi) const;

  Ikkunattomat& omistaja_;
  std::string nimi_;
  std::string otsikko_;
  bool auki_ = false;
  std::string kohdistettu_;
  bool tekstiValittu_ = false;
};

/// While it lives, forms open without a screen, and modal forms run the script given for them.
class Ikkunattomat {
 public:
  using Kasikirjoitus = std::function<void(Ikkunaton&)>;

  /// Who is told of the faults; without one the first fault ends the program.
  static void AsetaVirheenKertoja(void (*kertoja)(const std::string& virhe));

  /// `kansio`: folder of the .ui files.
  explicit Ikkunattomat(std::string kansio);
  /// Tells of a script that failed, or of a modal form that had no script or didn't close, unless Virheet has been
  /// read: such a fault lies in the test, and the program's own handlers would hide it.
  ~Ikkunattomat();
  Ikkunattomat(const Ikkunattomat&) = delete;
  Ikkunattomat& operator=(const Ikkunattomat&) = delete;

  const std::string& Kansio() const { return kansio_; }
  /// What the person does when the named form is shown as modal.
  void KunNaytetaan(const std::string& nimi, Kasikirjoitus kasikirjoitus);
  /// The window of that name that was made last and still lives; raises std::logic_error.
  Ikkunaton& Ikkuna(std::string_view nimi) const;
  /// Faults of the scripts so far; empties the list.
  std::vector<std::string> Virheet();

 private:
  friend class Ikkunaton;
  void Suorita(Ikkunaton& ikkuna);

  std::string kansio_;
  std::map<std::string, Kasikirjoitus> kasikirjoitukset_;
  std::vector<Ikkunaton*> ikkunat_;
  std::vector<std::string> virheet_;
};
