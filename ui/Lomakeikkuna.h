// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <functional>
#include <initializer_list>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "ui/Ohjain.h"

/// A control name that the form doesn't have, or that is of another type than asked.
class TuntematonOhjain : public std::logic_error {
 public:
  using std::logic_error::logic_error;
};

/// The window of one form, as an adapter makes it: a real one or one without a screen.
class Lomakeikkuna {
 public:
  virtual ~Lomakeikkuna();

  const std::vector<std::unique_ptr<Ohjain>>& Ohjaimet() const { return ohjaimet_; }
  /// The control of that name, without regard to case, or nothing.
  Ohjain* Loyda(std::string_view nimi) const;
  /// As Loyda; raises TuntematonOhjain.
  Ohjain& Etsi(std::string_view nimi) const;
  /// The person sees the control: its own flag and those of the frames around it are on, and its page is in front.
  bool Nakyvissa(const Ohjain& ohjain) const;
  /// Design-time Tag of the form: id of its caption.
  const std::string& Tag() const { return tag_; }

  virtual void Otsikko(const std::string& otsikko) = 0;
  /// Shows; a modal one returns when Sulje has been called.
  virtual void Nayta() = 0;
  virtual void NaytaModaalisena() = 0;
  virtual void Sulje() = 0;
  /// True when this is the window that has the person's attention.
  virtual bool Aktiivinen() const = 0;

  /// Enter: presses the form's approving button.
  void KayttajaHyvaksyy();
  /// Escape or the window's close button: presses the cancelling button, or closes a form that has none.
  void KayttajaPeruuttaa();
  /// Ctrl+P in a window of its own: presses the print button, or prints a form that has none.
  void KayttajaTulostaa();
  std::function<void()> Tulostettava;
  /// Closed by KayttajaPeruuttaa without a button.
  std::function<void()> Suljettu;

 protected:
  void Lisaa(std::unique_ptr<Ohjain> ohjain) { ohjaimet_.push_back(std::move(ohjain)); }
  void AsetaTag(std::string tag) { tag_ = std::move(tag); }

 private:
  Ohjain* Kaytettavissa(std::initializer_list<std::string_view> napit) const;

  std::vector<std::unique_ptr<Ohjain>> ohjaimet_;
  std::string tag_;
};

/// Makes the window of the named form; the program sets one for real windows, a test one without a screen.
using Lomakesovitin = std::function<std::unique_ptr<Lomakeikkuna>(const std::string& nimi)>;
void AsetaLomakesovitin(Lomakesovitin sovitin);
/// Raises std::logic_error when no adapter is set.
std::unique_ptr<Lomakeikkuna> TeeLomakeikkuna(const std::string& nimi);
