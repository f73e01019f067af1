// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <functional>
#include <memory>
#include <string>

class Rakenneratkaisu;
struct Materiaali;

/// What the library server tells of one opening of its dialog. Each runs as a command of its own.
struct Rakennekirjastotapahtumat {
  /// A structure was picked; the copy is the listener's to take.
  std::function<void(const Rakenneratkaisu&)> RakKirjasto_RakenneValittu{};
  /// A material was picked.
  std::function<void(const Materiaali&)> RakKirjasto_MateriaaliValittu{};
  /// The server doesn't answer. Message 1034 has been shown already; the dialog counts as closed.
  std::function<void()> RakKirjasto_TimeOut{};
  /// The library dialog was closed, with or without a pick: always the last one.
  std::function<void()> RakKirjasto_KantaDlgSuljettu{};
};

/// The library dialog as it is open for someone. Destroying it closes the dialog, and no event comes any more.
class Rakennekirjastopyynto {
 public:
  virtual ~Rakennekirjastopyynto() = default;
};

/// The program's link to the structure and material library, a process of its own. Nothing here waits: a dialog opens
/// when the server has got that far, and the program can be used meanwhile. At most one dialog is open; opening another
/// one ends the former, which gets its closing event.
class Rakennekirjastolinkki {
 public:
  virtual ~Rakennekirjastolinkki() = default;

  /// Opens the library for picking a structure. `rakennetyyppi`: the library's word of the kind to show first; empty
  /// for all.
  [[nodiscard]] virtual std::unique_ptr<Rakennekirjastopyynto> ValitseRakenne(const std::string& rakennetyyppi,
                                                                              Rakennekirjastotapahtumat tapahtumat) = 0;
  /// Opens it for picking a material. `nimi`: the material to begin at; empty for none.
  [[nodiscard]] virtual std::unique_ptr<Rakennekirjastopyynto> ValitseMateriaali(
      const std::string& nimi, Rakennekirjastotapahtumat tapahtumat) = 0;
  /// Opens the libraries for browsing and editing.
  virtual void NaytaRakennekirjasto() = 0;
  virtual void NaytaMateriaalikirjasto() = 0;
};

/// The present link; without one set, a link that always reports a time-out.
Rakennekirjastolinkki& RakennekirjastolinkkiNyt();
/// Sets the link, which must live until the next call; nullptr takes it away.
void AsetaRakennekirjastolinkki(Rakennekirjastolinkki* linkki);
