// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <filesystem>
#include <optional>
#include <string_view>

#include "kernel/Tiedostot.h"

/// A file under construction: made beside the one whose place it will take, under a name that nobody else has
/// ("<name>.uusi-" and six letters), and locked while it is being made. It is removed unless it took the place. What a
/// killed program left is recognised by the missing lock, and swept.
/// Two programs that make a file of one name at the same moment don't disturb each other: the later one stands.
/// Errors are std::system_error that name the file to be replaced.
class UusiTiedosto {
 public:
  static constexpr mode_t kYksityinen = 0600;

  /// `oikeudet`: permissions; nothing gives it those, and the group, of the file that it replaces.
  explicit UusiTiedosto(const std::filesystem::path& kohde, std::optional<mode_t> oikeudet = {});
  ~UusiTiedosto();
  UusiTiedosto(const UusiTiedosto&) = delete;
  UusiTiedosto& operator=(const UusiTiedosto&) = delete;

  const std::filesystem::path& Polku() const noexcept { return polku_; }
  Kahva& OmaKahva() noexcept { return kahva_; }
  /// Flushes the file, gives it the name and flushes the folder. False when the folder's flush failed: the new file
  /// stands under the name, but a power cut may bring back the old one. A folder that may not be read can't be flushed;
  /// that isn't told.
  bool Paikalleen();
  /// The open file with its lock, for one who goes on holding it.
  Kahva Luovuta() noexcept { return std::move(kahva_); }

  /// Removes the unfinished files that nobody makes any more and whose names begin with `alku`, with their journals.
  static void Siivoa(const std::filesystem::path& kansio, std::string_view alku) noexcept;

 private:
  std::filesystem::path kohde_;
  std::filesystem::path polku_;
  Kahva kahva_;
  bool paikallaan_ = false;
};
