// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <sys/stat.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

/// Files as the program handles them: errors are std::system_error with the file's name, writing is whole or not at
/// all, and what isn't a regular file (a pipe, a device) is never waited for.

/// An open file, closed at the end of the object.
class Kahva {
 public:
  /// Opens with the flags of open(2); close-on-exec comes by itself, and opening a pipe doesn't wait.
  explicit Kahva(std::filesystem::path tiedosto, int tapa, mode_t oikeudet = 0);
  ~Kahva();
  Kahva(Kahva&& toinen) noexcept;
  Kahva& operator=(Kahva&& toinen) noexcept;

  int Numero() const noexcept { return numero_; }
  const std::filesystem::path& Tiedosto() const noexcept { return tiedosto_; }
  struct stat Tiedot() const;
  /// True when the file of that name is this one: it hasn't been replaced or removed.
  bool OnNimella(const std::filesystem::path& tiedosto) const noexcept;
  enum class Lukko { Saatu, Toisella, EiTunneta };  ///< the last: the file system knows no locks
  /// Tries to take the file's lock for the life of the object.
  Lukko Lukitse() const noexcept;
  /// Errors name `tiedosto` from now on.
  void Nimea(std::filesystem::path tiedosto) { tiedosto_ = std::move(tiedosto); }

  void Kirjoita(std::string_view sisalto);
  /// What is left from the present place on.
  std::string Lue();
  /// Appends a file, in the kernel where the file systems can (as a clone where they give one).
  void LiitaTiedosto(const std::filesystem::path& lahde);
  /// Owner, group and permissions of another file, as far as this user may give them and the file system has them. When
  /// the group can't be kept, the present one gets no more than others have. The owner may always write.
  void OtaOikeudet(const struct stat& malli) noexcept;
  void Levylle();

 private:
  std::filesystem::path tiedosto_;
  int numero_;
};

/// The whole content of a regular file.
std::string LueTiedosto(const std::filesystem::path& tiedosto);
/// Writes the file so that at every moment either the old or the new content stands under its name, also after a power
/// cut; a link is followed. Makes the missing directories. After an error the old file is whole.
void KirjoitaTiedosto(const std::filesystem::path& tiedosto, std::string_view sisalto);
/// The same with the content of the file `lahde`. The copy is no more open to others than `lahde` is.
void KopioiTiedosto(const std::filesystem::path& lahde, const std::filesystem::path& tiedosto);

/// What a link points to, also when that doesn't exist yet; other paths as they are.
std::filesystem::path LinkinKohde(const std::filesystem::path& tiedosto);

/// The system's reason in Finnish.
std::string Selitys(const std::error_code& virhe);
