// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "kernel/Olio.h"
#include "kernel/Tiedostotunnus.h"

class Tietokanta;
class UusiTiedosto;

/// Project files: an object tree in one SQLite file, a table for each class, a row for each object. The layout is in
/// docs/file-format.md. What is stored is told by the tables of the template and the members of the classes alone.

/// Why a project file can't be read or written. what() is a Finnish sentence that names the file and the cause.
class Projektivirhe : public std::runtime_error {
 public:
  enum class Syy {
    MalliPuuttuu,  ///< the template isn't there
    Malli,         ///< the template is damaged, or lacks a class or a member of the program; names it
    Varmuuskopio,  ///< the file that is to be replaced can't be copied aside
    Kirjoitus,     ///< disk full, no right to write, disk error
    Arvo,          ///< a value can't be stored (infinity or not a number); names class and member
    EiProjekti,    ///< the file to be read isn't a project file
    Vaurioitunut,  ///< a project file that can't be read
    Uudempi,       ///< a project file of a newer program
    Vaihtunut,     ///< the file to be replaced isn't the one that was read: another hand has changed it
  };
  Projektivirhe(Syy syy, const std::string& kuvaus) : std::runtime_error(kuvaus), syy_(syy) {}
  Syy OmaSyy() const noexcept { return syy_; }

 private:
  Syy syy_;
};

/// Told of each object that is a member of another (not of items), before its rows are written or read.
using Eteneminen = std::function<void(const Luokka&)>;

struct Tallennustapa {
  bool sailytaEnnen = false;  ///< keep the replaced file as "<tiedosto>.ennen": it had values that could not be read
  /// The state of the file that may be replaced, as it was read or last saved. Null: whatever is there is replaced.
  const Tiedostotunnus* odotettu = nullptr;
  Eteneminen eteneminen;
};

struct Tallennusraportti {
  int riveja = 0;
  /// Class of each object that had no identity; it got the text "InstanssiId puuttuu!!".
  std::vector<std::string> ilmanTunnistetta;
  /// False: the new content stands under the name, but the disk didn't confirm it and a power cut may undo it. The
  /// backup of the old one stays.
  bool vahvistettu = true;
  std::string juurenAvain;  ///< key of the topmost row
  Tiedostotunnus tunnus;    ///< of the new file
};

/// Saves the tree under `juuri` as the project file `tiedosto`, replacing an old one. `malli` is the template, "" for
/// AppPath + "stemplate.tmp". Whatever happens, `tiedosto` holds either its old or the whole new content, and a failure
/// leaves the backup AppPath + "~backup1lvt.old" in place. Raises Projektivirhe.
Tallennusraportti TallennaProjekti(Olio& juuri, const std::string& tiedosto, const std::string& malli = {},
                                   const Tallennustapa& tapa = {});

/// The template as read for one save: a database whose tables say what is stored.
class Projektimalli {
 public:
  /// Reads the template of that path, "" for AppPath + "stemplate.tmp". Raises Projektivirhe.
  explicit Projektimalli(const std::string& polku = {});
  const std::string& Polku() const noexcept { return polku_; }
  const std::string& Sisalto() const noexcept { return sisalto_; }

 private:
  std::string polku_;
  std::string sisalto_;
};

/// Fills a file under construction with the tree, flushed; `lisaa` may add tables of its own in the same transaction.
/// What the two ways of saving share: over a project, and aside for recovery. Raises Projektivirhe.
Tallennusraportti RakennaProjekti(Olio& juuri, UusiTiedosto& uusi, const Projektimalli& malli,
                                  const Eteneminen& eteneminen = {},
                                  const std::function<void(Tietokanta&)>& lisaa = {});

struct Latausraportti {
  int vaurioita = 0;                       ///< values that kept their default, rows that were missing or doubled
  std::vector<std::string> esimerkit;      ///< the first of them, "clsTila.Kokonaistilavuus: abc"
  std::vector<std::string> tuntemattomat;  ///< columns that the program has no member for: the next save loses them
  Tiedostotunnus tunnus;                   ///< of the file
  Eteneminen eteneminen;
};

/// Loads a project file into the tree under `juuri`: owned objects are filled, those that may be nothing are made where
/// the file has them, and the items of the file replace those of the collections. The file isn't changed and nothing is
/// left beside it. Damaged values are counted and leave the default. Raises Projektivirhe when the file is no project
/// or can't be read at all; the tree may then be filled in part.
void HaeProjekti(Olio& juuri, const std::string& tiedosto, Latausraportti& raportti);

/// Version of the program that wrote a project file.
struct Tiedostoversio {
  int Major = 0;
  int Minor = 0;
  int Revision = 0;
};

/// Reads the version without loading. Raises Projektivirhe when the file is no project.
Tiedostoversio HaeTiedostonVersio(const std::string& tiedosto);
/// Reads one text of a project file without loading: the member of the first object of the class. "" when the file
/// can't be read, has no such object or member, or the text is empty.
std::string HaeTiedostonTeksti(const std::string& tiedosto, const std::string& luokka, const std::string& jasen);

/// A backup that a save left behind when it failed or was cut off, or "". The next save puts it aside with
/// SailytaAjalla.
std::string JaanytVarakopio();
/// Renames a file to "<alku> <date> <time>" with its extension; "" is its own name. This and the four latest others of
/// that beginning are kept. Its new name, "" when there is no such file. Raises std::system_error.
std::string SailytaAjalla(const std::string& tiedosto, std::string_view alku = {});
