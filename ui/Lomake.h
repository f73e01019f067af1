// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ui/Lomakeikkuna.h"

/// A dialog. A class frmX derives from it, binds its controls with typed handles (ui/Ohjaimet.h), holds the field logic
/// and raises events that a model class listens to. It knows no model data and no window system. Constructing one makes
/// and translates its window, unshown; destroying it closes the window.
class Lomake {
 public:
  virtual ~Lomake();
  Lomake(const Lomake&) = delete;
  Lomake& operator=(const Lomake&) = delete;

  /// Name of the form and its form file, e.g. "frmPerustiedot".
  const std::string& Nimi() const { return nimi_; }
  const std::string& Otsikko() const { return otsikko_; }
  void Otsikko(std::string otsikko);

  /// Returns when the form has been closed.
  void NaytaModaalisena();
  /// Shows inside the main window, or brings to front if it is open.
  void Nayta();
  void Sulje();
  bool Auki() const { return auki_; }
  bool Aktiivinen() const { return auki_ && ikkuna_->Aktiivinen(); }

  Lomakeikkuna& Ikkuna() const { return *ikkuna_; }
  const std::vector<std::unique_ptr<Ohjain>>& Ohjaimet() const { return ikkuna_->Ohjaimet(); }
  /// The control of that name; raises TuntematonOhjain.
  Ohjain& Etsi(std::string_view nimi) const { return ikkuna_->Etsi(nimi); }

  /// Closed by the window's own close button or Escape, when the form has no cancelling button.
  std::function<void()> Suljettu;
  /// The currency or the VAT of shown amounts has changed while the form is open, and its captions show the new unit:
  /// fill the amounts anew. A form without amounts leaves it unset.
  std::function<void()> RahatMuuttuivat;

 protected:
  explicit Lomake(std::string nimi);

 private:
  std::string nimi_;
  std::string otsikko_;
  bool auki_ = false;
  std::unique_ptr<Lomakeikkuna> ikkuna_;
};

/// The shown forms, in the order of showing.
const std::vector<Lomake*>& AvoimetLomakkeet();
/// The shown form of that name, or nothing.
Lomake* AvoinLomake(std::string_view nimi);
/// The shown form that has the person's attention, or nothing.
Lomake* AktiivinenLomake();
/// Closes every shown form.
void SuljeLomakkeet();

/// What printing a form means: its button cmdTulosta and Ctrl+P call this, unless the form has something of its own for
/// the button. The program sets it; without it nothing is printed.
void AsetaTulostus(std::function<void(const Lomake&)> tulosta);

/// Raises an event; one that nobody listens to does nothing.
template <class... A, class... B>
void Nosta(const std::function<void(A...)>& tapahtuma, B&&... arvot) {
  if (tapahtuma) tapahtuma(std::forward<B>(arvot)...);
}
