// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <cstdint>
#include <string>
#include <string_view>

#include "kernel/Tiedostot.h"

/// Which save of a project file one has read or made: place and time of the file, and what tells its content from that
/// of any other save: the key of the topmost row, which is fresh in every save, and SQLite's count of changes. A copy
/// of the file under its name (from a backup, by a cloud service) counts as the same, a change by any other hand
/// doesn't.
class Tiedostotunnus {
 public:
  /// Of no file.
  Tiedostotunnus() = default;
  /// Of an open project file whose topmost row has the key `juurenAvain`.
  Tiedostotunnus(const Kahva& tiedosto, std::string_view juurenAvain);
  /// From a text of Teksti(); of no file when it isn't one.
  static Tiedostotunnus Lue(const std::string& teksti);
  std::string Teksti() const;

  bool Tyhja() const noexcept { return juuri_.empty(); }
  /// Saving over the file loses nothing that one hasn't seen: it stands as it was, or isn't there. True for no file.
  bool OnYha(const std::string& tiedosto) const;

 private:
  bool SamaPaikka(const Tiedostotunnus& toinen) const noexcept;
  bool SamaSisalto(const Tiedostotunnus& toinen) const noexcept;

  std::uint64_t laite_ = 0, solmu_ = 0;
  std::int64_t aika_ = 0, koko_ = 0;  // when written, ns of the epoch; bytes
  std::uint32_t muutoksia_ = 0;
  std::string juuri_;
};
