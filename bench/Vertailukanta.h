// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <cstdint>
#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace mittaus {

/// The rows of a project file as a plain program of SQLite's C interface would hold, write and read them: the yardstick
/// of saving and opening.
class Vertailukanta {
 public:
  /// Reads every table of the file.
  explicit Vertailukanta(const std::string& tiedosto);

  /// The same rows into new tables of a new file, in one plain transaction: rollback journal, everything flushed.
  void Kirjoita(const std::string& tiedosto) const;

  int Riveja() const;
  int Tauluja() const { return static_cast<int>(taulut_.size()); }
  /// What every row says, ids of rows aside; two files of one building have the same.
  std::uint64_t Tarkiste() const;

 private:
  using Arvo = std::variant<std::monostate, std::int64_t, double, std::string>;
  struct Taulu {
    std::string nimi, luontilause;
    std::vector<std::string> sarakkeet;
    std::vector<std::vector<Arvo>> rivit;
  };
  std::vector<Taulu> taulut_;
};

/// Plain scans: SELECT * of every table into structs with as many texts, real numbers and integers as the table has
/// columns of them. The tables of the building that bear nearly all rows have structs of their own.
class Selaus {
 public:
  explicit Selaus(const std::string& tiedosto);
  ~Selaus();
  Selaus(Selaus&&) noexcept;
  int Riveja() const;

  struct Taulu {
    virtual ~Taulu() = default;
    virtual int Riveja() const = 0;
  };

 private:
  std::vector<std::unique_ptr<Taulu>> taulut_;
};

}  // namespace mittaus
