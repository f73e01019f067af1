// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "kernel/Tunniste.h"
#include "ui/Taulukko.h"

/// What a row or a cell means beside its text. An adapter shows it by a sign and a colour, never by a colour alone.
enum class Merkitys {
  Tavallinen,
  Huomio,      ///< something to look at
  Vanhentunut  ///< the figures aren't of the present model
};

/// Traits of a row beside its cells.
struct Rivipiirteet {
  static constexpr int kKokoRivi = -1;
  bool lihava = false;
  bool suljettu = false;        ///< its branch comes closed; once the row is there, the person's choice holds
  bool siirrettava = false;     ///< the person can drag it under another row, or to another place
  std::optional<bool> rasti{};  ///< the tick in the row's box; nothing: it has no box
  Merkitys merkitys = Merkitys::Tavallinen;
  int merkitty = kKokoRivi;        ///< column that the meaning concerns
  std::string selite{};            ///< what the meaning, or the row, is about; shown as a tip
  std::vector<int> muokattavat{};  ///< columns in which the person can write

  bool operator==(const Rivipiirteet&) const = default;
};

/// A row as it is given to a list. `ylempi` is the key of the row that it hangs under; an empty one, or one that no row
/// has, puts it on top. A row may come before the one that it hangs under.
struct Luettelorivi {
  /// The full value behind a cell and the pattern by which it is shown (kernel/Luvut.h).
  struct Luku {
    int sarake;
    double arvo;
    std::string kuvio;
  };

  std::vector<std::string> solut;
  Tunniste avain{};
  Tunniste ylempi{};
  Rivipiirteet piirteet{};
  std::vector<Luku> luvut{};

  /// Adds a cell that shows the number.
  void LisaaLuku(double arvo, const std::string& kuvio);
};

/// What a list shows: rows, and the sums below them (empty: none).
struct Luettelosisalto {
  std::vector<Luettelorivi> rivit;
  std::vector<std::string> summat{};
};

/// The column by which a list is sorted; -1: rows stand in the order given.
struct Lajittelu {
  int sarake = -1;
  bool laskeva = false;
};

/// The rows of a list or a tree. A row keeps its number, from 0 in the order given, wherever a sorted list shows it; -1
/// is no row. Filling takes time by the number of rows; all else by what it touches, however long the list.
class Luettelo {
 public:
  static constexpr int kEiRivia = -1;

  /// Takes rows in place of the former ones; those with a former key stay open or closed as they were. When all keys
  /// stand in their former places, gives the rows whose cells or traits are others.
  std::optional<std::vector<int>> Tayta(std::vector<Luettelorivi> rivit);
  /// Rows without keys.
  void Tayta(Taulukko rivit);
  /// Other cells for a row, which stays where it is. Raises std::out_of_range.
  void Rivi(int rivi, std::vector<std::string> solut);
  /// Other cells and traits; its keys stay.
  void Vaihda(int rivi, Luettelorivi uusi);
  void Summat(std::vector<std::string> summat) { summat_ = std::move(summat); }

  int Maara() const { return static_cast<int>(rivit_.size()); }
  const Taulukko& Solut() const { return solut_; }
  const std::vector<std::string>& Summat() const { return summat_; }
  const Rivipiirteet& Piirteet(int rivi) const { return Tieto(rivi).piirteet; }
  const std::vector<Luettelorivi::Luku>& Luvut(int rivi) const { return Tieto(rivi).luvut; }
  /// Key of the row; empty for no row.
  Tunniste Avain(int rivi) const { return rivi < 0 || rivi >= Maara() ? Tunniste() : Tieto(rivi).avain; }
  /// The row of that key, or kEiRivia.
  int Etsi(const Tunniste& avain) const;

  bool OnPuu() const { return ylimmat_.size() < rivit_.size(); }
  /// The row that this one hangs under, kEiRivia on top.
  int Ylempi(int rivi) const { return Tieto(rivi).ylempi; }
  /// The rows that hang under this one in the order of the screen; those on top for kEiRivia.
  const std::vector<int>& Alemmat(int rivi) const { return rivi < 0 ? ylimmat_ : Tieto(rivi).alemmat; }
  /// Place of the row among those beside it.
  int Paikka(int rivi) const { return Tieto(rivi).paikka; }
  bool Suljettu(int rivi) const { return Tieto(rivi).suljettu; }
  void Suljettu(int rivi, bool suljettu) { rivit_.at(static_cast<std::size_t>(rivi)).suljettu = suljettu; }
  /// False when the row lies in a closed branch.
  bool Nakyvissa(int rivi) const;
  /// All rows in the order of the screen, those of closed branches too, or the rows that are seen only.
  std::vector<int> Jarjestys() const { return Kulje(true); }
  std::vector<int> Nakyvat() const { return Kulje(false); }

  const Lajittelu& Lajiteltu() const { return lajittelu_; }
  /// Sorts by the column; once more the other way round, a third time back to the order given.
  void Lajittele(int sarake);
  /// The column has numbers only.
  bool OnLukusarake(int sarake) const;
  bool Muokattava(int rivi, int sarake) const;

  /// Headings and these rows in the order of the screen, for the clipboard; all rows and the sums when none is told.
  /// `sarakkeet`: those that are shown, each with its heading.
  std::string Tekstina(std::vector<std::string> otsikot, const std::vector<int>& sarakkeet,
                       const std::vector<int>& rivit) const;

 private:
  struct Rivitieto {
    Tunniste avain;
    Tunniste ylemmanAvain;
    int ylempi = kEiRivia;
    int paikka = 0;
    bool suljettu = false;
    std::vector<int> alemmat{};
    Rivipiirteet piirteet{};
    std::vector<Luettelorivi::Luku> luvut{};
  };

  const Rivitieto& Tieto(int rivi) const { return rivit_.at(static_cast<std::size_t>(rivi)); }
  bool SamatAvaimet(const std::vector<Luettelorivi>& rivit) const;
  std::optional<std::vector<int>> TaytaSolut(std::vector<Luettelorivi> rivit);
  void Ripusta();
  void KatkaiseKehat();
  /// Puts the rows of each branch in the order of the sorting. True when a row changed its place.
  bool Jarjesta();
  std::vector<int> Kulje(bool suljetutkin) const;

  Taulukko solut_;
  std::vector<Rivitieto> rivit_;
  std::vector<int> ylimmat_;
  std::unordered_map<Tunniste, int> paikat_;
  std::vector<std::string> summat_;
  Lajittelu lajittelu_;
  mutable std::vector<Sarakesisalto> sarakkeet_;  // counted when asked
};
