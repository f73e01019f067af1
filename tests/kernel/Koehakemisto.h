// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>

/// A fresh directory for one test, with the letters and blanks that people's directories have; removed at the end.
class Koehakemisto {
 public:
  Koehakemisto() {
    std::string malli = (std::filesystem::temp_directory_path() / "lumivirta-koe-XXXXXX").string();
    if (mkdtemp(malli.data()) == nullptr) throw std::runtime_error("mkdtemp: " + malli);
    juuri_ = malli;
    polku_ = juuri_ / "Työpöytä" / "Kohde Åbo";
    std::filesystem::create_directories(polku_);
  }
  ~Koehakemisto() {
    std::error_code virhe;
    std::filesystem::remove_all(juuri_, virhe);
  }
  Koehakemisto(const Koehakemisto&) = delete;
  Koehakemisto& operator=(const Koehakemisto&) = delete;

  const std::filesystem::path& Polku() const { return polku_; }
  std::filesystem::path operator/(const std::string& nimi) const { return polku_ / nimi; }

 private:
  std::filesystem::path juuri_;
  std::filesystem::path polku_;
};

/// An environment variable for one scope; nothing = unset.
class Ymparistomuuttuja {
 public:
  Ymparistomuuttuja(std::string nimi, const std::optional<std::string>& arvo) : nimi_(std::move(nimi)) {
    if (const char* ennen = std::getenv(nimi_.c_str())) ennen_ = ennen;
    Aseta(arvo);
  }
  ~Ymparistomuuttuja() { Aseta(ennen_); }
  Ymparistomuuttuja(const Ymparistomuuttuja&) = delete;
  Ymparistomuuttuja& operator=(const Ymparistomuuttuja&) = delete;

 private:
  void Aseta(const std::optional<std::string>& arvo) {
    if (arvo) {
      setenv(nimi_.c_str(), arvo->c_str(), 1);
    } else {
      unsetenv(nimi_.c_str());
    }
  }

  std::string nimi_;
  std::optional<std::string> ennen_;
};
