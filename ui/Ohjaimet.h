// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/Lomake.h"

/// Typed handles of a form's controls, bound by name: TextBox txtTilanNimi{*this, "txtTilanNimi"};
/// A name that the form doesn't have, or a control of another type, raises TuntematonOhjain. Handles are light and may
/// be copied; they are good as long as the form is.
class Ohjainkahva {
 public:
  Ohjainkahva(const Lomake& lomake, std::string_view nimi, Ohjaintyyppi tyyppi);

  const std::string& Nimi() const { return ohjain_->Nimi(); }
  bool Kaytossa() const { return ohjain_->Kaytossa(); }
  void Kaytossa(bool kaytossa) const { ohjain_->Kaytossa(kaytossa); }
  bool Nakyva() const { return ohjain_->Nakyva(); }
  void Nakyva(bool nakyva) const { ohjain_->Nakyva(nakyva); }
  void Vihje(std::string vihje) const { ohjain_->Vihje(std::move(vihje)); }
  void Kohdista() const { ohjain_->Kohdista(); }
  Ohjain& Kohde() const { return *ohjain_; }

 protected:
  Ohjain* ohjain_;
};

/// Adds the type of control to a handle.
template <Ohjaintyyppi T>
class TyypitettyKahva : public Ohjainkahva {
 public:
  TyypitettyKahva(const Lomake& lomake, std::string_view nimi) : Ohjainkahva(lomake, nimi, T) {}
};

class Label : public TyypitettyKahva<Ohjaintyyppi::Label> {
 public:
  using TyypitettyKahva::TyypitettyKahva;
  const std::string& Otsikko() const { return ohjain_->Teksti(); }
  void Otsikko(std::string teksti) const { ohjain_->Teksti(std::move(teksti)); }
};

class Frame : public TyypitettyKahva<Ohjaintyyppi::Frame> {
 public:
  using TyypitettyKahva::TyypitettyKahva;
  const std::string& Otsikko() const { return ohjain_->Teksti(); }
  void Otsikko(std::string teksti) const { ohjain_->Teksti(std::move(teksti)); }
};

/// One-line field. Filling is silent and remembered, see Muuttunut.
class TextBox : public TyypitettyKahva<Ohjaintyyppi::TextBox> {
 public:
  using TyypitettyKahva::TyypitettyKahva;
  const std::string& Teksti() const { return ohjain_->Teksti(); }
  void Teksti(std::string teksti) const { ohjain_->Teksti(std::move(teksti)); }
  /// Fills with a number by a pattern of Muotoile.
  void Luku(double arvo, std::string_view kuvio) const;
  /// The shown text as a number, 0 when it is empty or no number.
  double Luku() const;
  /// The person has changed the text after it was filled. An unchanged field isn't parsed: the stored value stays.
  bool Muuttunut() const { return ohjain_->Muuttunut(); }
  void ValitseTeksti() const { ohjain_->ValitseTeksti(); }
  /// The text in the colour that catches the eye.
  void Korostettu(bool korostettu) const { ohjain_->Korostettu(korostettu); }
  /// At each edit by the person.
  void KunMuuttuu(std::function<void()> f) const { ohjain_->Muuttui = std::move(f); }
  /// When the focus leaves the field.
  void KunPoistutaan(std::function<void()> f) const { ohjain_->Poistuttu = std::move(f); }
};

class ComboBox : public TyypitettyKahva<Ohjaintyyppi::ComboBox> {
 public:
  using TyypitettyKahva::TyypitettyKahva;
  /// Replaces the rows; nothing is chosen afterwards.
  void Rivit(const std::vector<std::string>& rivit) const;
  /// The same with search words: a row is a name and everyday words for it, divided by ";". The person finds a row by
  /// writing either.
  void HaettavatRivit(Taulukko rivit) const { ohjain_->Rivit(std::move(rivit)); }
  int Maara() const { return static_cast<int>(ohjain_->Rivit().size()); }
  /// Chosen row from 0, -1 none.
  int Indeksi() const { return ohjain_->Indeksi(); }
  void Indeksi(int indeksi) const { ohjain_->Indeksi(indeksi); }
  /// Text of the chosen row, "" when none.
  std::string Teksti() const;
  void KunMuuttuu(std::function<void()> f) const { ohjain_->Muuttui = std::move(f); }
};

/// Check box and option button.
template <Ohjaintyyppi T>
class Valintanappi : public TyypitettyKahva<T> {
 public:
  using TyypitettyKahva<T>::TyypitettyKahva;
  bool Valittu() const { return this->ohjain_->Valittu(); }
  void Valittu(bool valittu) const { this->ohjain_->Valittu(valittu); }
  void Otsikko(std::string teksti) const { this->ohjain_->Teksti(std::move(teksti)); }
  void KunKlikataan(std::function<void()> f) const { this->ohjain_->Klikattu = std::move(f); }
};
using CheckBox = Valintanappi<Ohjaintyyppi::CheckBox>;
/// Option buttons of one container exclude each other.
using OptionButton = Valintanappi<Ohjaintyyppi::OptionButton>;

class CommandButton : public TyypitettyKahva<Ohjaintyyppi::CommandButton> {
 public:
  using TyypitettyKahva::TyypitettyKahva;
  void Otsikko(std::string teksti) const { ohjain_->Teksti(std::move(teksti)); }
  void KunKlikataan(std::function<void()> f) const { ohjain_->Klikattu = std::move(f); }
  /// Pressing raises the form's event; `tapahtuma` must live as long as the form.
  void Nostaa(const std::function<void()>& tapahtuma) const;
};

class TabStrip : public TyypitettyKahva<Ohjaintyyppi::TabStrip> {
 public:
  using TyypitettyKahva::TyypitettyKahva;
  int Indeksi() const { return ohjain_->Indeksi(); }
  void Indeksi(int indeksi) const { ohjain_->Indeksi(indeksi); }
  /// Whether the person can open the page of that place.
  void SivuKaytossa(int indeksi, bool kaytossa) const;
  void KunMuuttuu(std::function<void()> f) const { ohjain_->Muuttui = std::move(f); }
};

/// List with columns, or a tree of rows. The person sorts it by its headings and copies its rows (Ctrl+C).
class ListView : public TyypitettyKahva<Ohjaintyyppi::ListView> {
 public:
  using TyypitettyKahva::TyypitettyKahva;
  /// Rows without keys; nothing is chosen afterwards.
  void Rivit(Taulukko rivit) const { ohjain_->Rivit(std::move(rivit)); }
  const Taulukko& Rivit() const { return ohjain_->Rivit(); }
  /// Rows with keys, and the sums. The row chosen before stays chosen; when it is no more, the one that has come to its
  /// place.
  void Tayta(Luettelosisalto sisalto) const { ohjain_->Tayta(std::move(sisalto)); }
  /// Other cells for one row, at the cost of that row.
  void Rivi(int indeksi, std::vector<std::string> solut) const { ohjain_->Rivi(indeksi, std::move(solut)); }
  /// The same with other traits; its keys stay.
  void Vaihda(int indeksi, Luettelorivi rivi) const { ohjain_->Vaihda(indeksi, std::move(rivi)); }
  void Summarivi(std::vector<std::string> solut) const { ohjain_->Summarivi(std::move(solut)); }
  int Indeksi() const { return ohjain_->Indeksi(); }
  void Indeksi(int indeksi) const { ohjain_->Indeksi(indeksi); }
  /// Key of the chosen row, empty when none is.
  Tunniste Valittu() const { return ohjain_->Lista().Avain(Indeksi()); }
  /// Key of the row, empty when there is no such.
  Tunniste Avain(int rivi) const { return ohjain_->Lista().Avain(rivi); }
  /// Chooses the row of that key; the first one on the screen when there is no such row.
  void Valitse(const Tunniste& avain) const;
  void KunMuuttuu(std::function<void()> f) const { ohjain_->Muuttui = std::move(f); }
  /// Enter or a double click on a row.
  void KunKlikataan(std::function<void()> f) const { ohjain_->Klikattu = std::move(f); }
  /// Rows pasted from the clipboard (Ctrl+V).
  void KunLiitetaan(std::function<void(const Taulukko&)> f) const { ohjain_->Liitetty = std::move(f); }
  /// Insert, and Delete on a chosen row.
  void KunLisataan(std::function<void()> f) const { ohjain_->Lisattava = std::move(f); }
  void KunPoistetaan(std::function<void()> f) const { ohjain_->Poistettava = std::move(f); }
  /// The person has written in a cell of Rivipiirteet::muokattavat. What the cell shows then is up to `f`.
  void KunMuokataan(std::function<void(int rivi, int sarake, const std::string& teksti)> f) const {
    ohjain_->Muokattu = std::move(f);
  }
  /// Rows with Rivipiirteet::siirrettava can be dragged under another row (-1: to the top) where `saa` allows it.
  void KunSiirretaan(std::function<bool(int rivi, int ylempi)> saa, std::function<void(int rivi, int ylempi)> f) const {
    ohjain_->SaaSiirtaa = std::move(saa);
    ohjain_->Siirretty = std::move(f);
  }
  /// Rows with Rivipiirteet::siirrettava can be put right behind another row (-1: first) where `saa` allows it, by
  /// dragging and by Ctrl with an arrow key.
  void KunJarjestetaan(std::function<bool(int rivi, int edellinen)> saa,
                       std::function<void(int rivi, int edellinen)> f) const {
    ohjain_->SaaJarjestaa = std::move(saa);
    ohjain_->Jarjestetty = std::move(f);
  }
  /// The box of a row that has one (Rivipiirteet::rasti) is ticked or cleared.
  void KunRastitetaan(std::function<void(int rivi, bool rasti)> f) const { ohjain_->Rastitettu = std::move(f); }
  /// A heading is pressed; the list doesn't sort then.
  void KunOtsikkoaPainetaan(std::function<void(int sarake)> f) const { ohjain_->OtsikkoaPainettu = std::move(f); }
  /// The person has opened or closed a branch.
  void KunHaaraAvataan(std::function<void()> f) const { ohjain_->HaaraAvattu = std::move(f); }
  bool KopioiLeikepoydalle() const { return ohjain_->KopioiLeikepoydalle(); }
};

/// Pie or column chart.
class MSChart : public TyypitettyKahva<Ohjaintyyppi::MSChart> {
 public:
  using TyypitettyKahva::TyypitettyKahva;
  const Kaaviotiedot& Kaavio() const { return ohjain_->Kaavio(); }
  void Kaavio(Kaaviotiedot kaavio) const { ohjain_->Kaavio(std::move(kaavio)); }
  bool KopioiLeikepoydalle() const { return ohjain_->KopioiLeikepoydalle(); }
  bool TallennaKuva(const std::string& tiedosto) const { return ohjain_->TallennaKuva(tiedosto); }
};

/// One of the program's own pictures.
class Image : public TyypitettyKahva<Ohjaintyyppi::Image> {
 public:
  using TyypitettyKahva::TyypitettyKahva;
  /// File name in ui/kuvat without its extension; "" none.
  const std::string& Kuva() const { return ohjain_->Kuva(); }
  void Kuva(std::string nimi) const { ohjain_->Kuva(std::move(nimi)); }
};

/// Three controls whose names end in 1, 2 and 3.
template <class Kahva>
std::array<Kahva, 3> Kolme(const Lomake& lomake, const std::string& nimi) {
  return {Kahva(lomake, nimi + "1"), Kahva(lomake, nimi + "2"), Kahva(lomake, nimi + "3")};
}

/// Six controls whose names end in 0 to 5.
template <class Kahva>
std::array<Kahva, 6> Kuusi(const Lomake& lomake, const std::string& nimi) {
  return {Kahva(lomake, nimi + "0"), Kahva(lomake, nimi + "1"), Kahva(lomake, nimi + "2"),
          Kahva(lomake, nimi + "3"), Kahva(lomake, nimi + "4"), Kahva(lomake, nimi + "5")};
}

/// Reads a field into `kohde`. An unchanged field gives the very number that it was filled with, whatever was read from
/// it meanwhile; a text that is no number leaves `kohde` as it is and gives false. An empty field is no number.
bool LueArvo(const TextBox& kentta, double& kohde);
bool LueArvo(const TextBox& kentta, float& kohde);
/// The same for a whole number, a half rounded to even; also false outside the range of 32 bits.
bool LueArvo(const TextBox& kentta, std::int32_t& kohde);
