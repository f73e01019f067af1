// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <functional>
#include <memory>
#include <string>
#include <tuple>

#include "ui/Muokkauslomake.h"

/// What is special about the editing of one object; each may be left out.
struct Muokkaustoimet {
  std::string nimi{};  ///< of the object: it begins the caption
  bool elava = true;   ///< the object is a part of the building, not of a saving measure
  /// From the object to the fields, at opening.
  std::function<void()> lue{};
  /// From the fields to the object, at OK.
  std::function<void()> kirjoita{};
  /// False, after telling why and taking the person to the field: the dialog stays open. What was written stays so.
  std::function<bool()> tarkista{};
  /// What else the object's new values change.
  std::function<void()> voimaan{};
  /// The object's own event for those who listen to it, also outside the living building.
  std::function<void()> tapahtuma{};
  /// After an error: the object is as it was at opening, and the dialog, still open, shows it anew. Left out, the
  /// fields keep what the person has written.
  std::function<void()> virheenJalkeen{};
  /// After Cancel has restored the object.
  std::function<void()> peruttu{};
};

/// One modal dialog over an object of the model, from its opening to OK or Cancel. The object itself is edited:
///
/// 1. A reserve copy is taken, the fields are filled, the caption begins with the object's name.
/// 2. OK, with good number fields: writes the fields, checks, takes the values into use, raises the object's event, and
///    commits once (clsRakennus::Muuttui) if the building differs from its last commit. Then the dialog closes.
/// 3. Cancel: the reserve is copied back, and the register with it.
/// 4. An error on the way: as Cancel, but the dialog stays open and the error goes on to be shown.
///
/// A session inside another commits nothing: its object is a part of what the outer one commits or takes back. An
/// object outside the building marks the project unsaved and raises its event; the building itself didn't change.
class Muokkausistunto {
 public:
  /// `olio` has Kopioi, as every model object. It and the form must outlive the session.
  template <class T>
  Muokkausistunto(T& olio, Muokkauslomake& lomake, Muokkaustoimet toimet)
      : Muokkausistunto(std::tie(olio), lomake, std::move(toimet)) {}
  /// The same for several objects, std::tie(a, b): Cancel takes all of them back.
  template <class... T>
  Muokkausistunto(std::tuple<T&...> oliot, Muokkauslomake& lomake, Muokkaustoimet toimet)
      : Muokkausistunto(
            lomake, std::move(toimet),
            [oliot, varalla = std::apply([](T&... o) { return std::tuple(std::shared_ptr<T>(o.Kopioi())...); },
                                         oliot)] { KopioiTakaisin(oliot, varalla); }) {}
  Muokkausistunto(const Muokkausistunto&) = delete;
  Muokkausistunto& operator=(const Muokkausistunto&) = delete;

  /// Shows the dialog. True after OK.
  bool Nayta();

  /// A session is open: what is done inside it is committed or taken back with its object.
  static bool Auki();

 private:
  template <class... T>
  static void KopioiTakaisin(const std::tuple<T&...>& oliot, const std::tuple<std::shared_ptr<T>...>& varalla) {
    (std::get<std::shared_ptr<T>>(varalla)->Kopioi(std::get<T&>(oliot)), ...);
  }
  Muokkausistunto(Muokkauslomake& lomake, Muokkaustoimet toimet, std::function<void()> kopioiTakaisin);
  void Hyvaksy();
  void Peruuta();
  void Palauta();
  void Kirjaa() const;

  Muokkauslomake& lomake_;
  Muokkaustoimet toimet_;
  std::function<void()> kopioiTakaisin_;
  std::string muutoksenNimi_;  // the form's own caption, as undo tells of it
  bool hyvaksytty_ = false;
};
