// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Tunniste.h"

#include <sys/random.h>

#include <array>
#include <cstring>
#include <memory>
#include <mutex>
#include <shared_mutex>
#include <unordered_map>

#include "kernel/Kirjainkoko.h"

namespace {

constexpr std::size_t kNumeroita = 32;
constexpr std::size_t kPisinSana = Tunniste::kPisinTeksti - kNumeroita - 1;

/// The words of the run, for all threads.
class Sanavarasto {
 public:
  const Sana& Sanaksi(std::string_view teksti) {
    {
      const std::shared_lock lukko(lukko_);
      if (const auto it = sanat_.find(teksti); it != sanat_.end()) return *it->second;
    }
    const std::unique_lock lukko(lukko_);
    return EtsiTaiLisaa(teksti);
  }

 private:
  const Sana& EtsiTaiLisaa(std::string_view teksti) {
    if (const auto it = sanat_.find(teksti); it != sanat_.end()) return *it->second;
    auto uusi = std::make_unique<Sana>();
    uusi->teksti = teksti;
    Sana& sana = *uusi;
    sanat_.emplace(sana.teksti, std::move(uusi));
    const std::string taitettu = PieniksiKirjaimiksi(teksti);
    sana.taitettu = taitettu == sana.teksti ? &sana : &EtsiTaiLisaa(taitettu);
    sana.tiiviste = std::hash<std::string_view>{}(taitettu);
    return sana;
  }

  std::shared_mutex lukko_;
  std::unordered_map<std::string_view, std::unique_ptr<Sana>> sanat_;
};

/// Random bits from the system, fetched in pages: an identity costs no system call of its own.
class Satunnaislahde {
 public:
  bool Seuraava(std::uint64_t& a, std::uint64_t& b) {
    if (kohta_ + 2 > luvut_.size() && !Tayta()) return false;
    a = luvut_[kohta_++];
    b = luvut_[kohta_++];
    return true;
  }

 private:
  bool Tayta() {
    const auto tavuja = static_cast<ssize_t>(luvut_.size() * sizeof(luvut_[0]));
    if (getrandom(luvut_.data(), static_cast<std::size_t>(tavuja), 0) != tavuja) return false;
    kohta_ = 0;
    return true;
  }

  std::array<std::uint64_t, 512> luvut_{};
  std::size_t kohta_ = luvut_.size();
};

constexpr std::array<std::int8_t, 256> kHeksaArvot = [] {
  std::array<std::int8_t, 256> t{};
  t.fill(-1);
  for (int i = 0; i < 10; ++i) t['0' + i] = static_cast<std::int8_t>(i);
  for (int i = 0; i < 6; ++i) t['A' + i] = t['a' + i] = static_cast<std::int8_t>(10 + i);
  return t;
}();

bool LueHeksa(const char* p, std::uint64_t& arvo) {
  std::uint64_t tulos = 0;
  int virhe = 0;
  for (int i = 0; i < 16; ++i) {
    const int numero = kHeksaArvot[static_cast<unsigned char>(p[i])];
    virhe |= numero;
    tulos = tulos << 4 | static_cast<std::uint64_t>(numero & 15);
  }
  arvo = tulos;
  return virhe >= 0;
}

using Heksapari = std::array<char, 2>;

constexpr std::array<Heksapari, 256> kHeksaparit = [] {
  constexpr char kNumerot[] = "0123456789ABCDEF";
  std::array<Heksapari, 256> t{};
  for (std::size_t i = 0; i < t.size(); ++i) t[i] = {kNumerot[i >> 4], kNumerot[i & 15]};
  return t;
}();

void KirjoitaHeksa(std::uint64_t arvo, char* p) {
  for (int i = 14; i >= 0; i -= 2, arvo >>= 8) std::memcpy(p + i, kHeksaparit[arvo & 255].data(), 2);
}

/// Length of the word before the digits, or npos when the text isn't word, blank and 32 digits.
std::size_t SananPituus(std::string_view teksti) {
  if (teksti.size() < kNumeroita + 2 || teksti.size() > kPisinSana + kNumeroita + 1) return std::string_view::npos;
  const std::size_t pituus = teksti.size() - kNumeroita - 1;
  return teksti[pituus] == ' ' ? pituus : std::string_view::npos;
}

}  // namespace

const Sana& Sanaksi(std::string_view teksti) {
  static Sanavarasto sanat;
  return sanat.Sanaksi(teksti);
}

Tunniste::Tunniste(std::string_view teksti) {
  if (teksti.empty()) return;
  const std::size_t sana = SananPituus(teksti);
  if (sana != std::string_view::npos) {
    const char* numerot = teksti.data() + sana + 1;
    if (LueHeksa(numerot, a_) && LueHeksa(numerot + 16, b_) && OnGuid()) {
      sana_ = &Sanaksi(teksti.substr(0, sana));
      return;
    }
    a_ = b_ = 0;
  }
  sana_ = &Sanaksi(teksti);
}

Tunniste Tunniste::Lue(std::string_view teksti, const Sana& vihje) {
  const std::size_t n = vihje.teksti.size();
  Tunniste t;
  if (teksti.size() == n + kNumeroita + 1 && teksti[n] == ' ' &&
      std::memcmp(teksti.data(), vihje.teksti.data(), n) == 0 && LueHeksa(teksti.data() + n + 1, t.a_) &&
      LueHeksa(teksti.data() + n + 17, t.b_) && t.OnGuid()) {
    t.sana_ = &vihje;
    return t;
  }
  return Tunniste(teksti);
}

Tunniste Tunniste::Uusi(const Sana& luokka) {
  thread_local Satunnaislahde lahde;
  Tunniste t;
  if (luokka.teksti.size() > kPisinSana || !lahde.Seuraava(t.a_, t.b_) || !t.OnGuid())
    return Tunniste(luokka.teksti + " 00000000");
  t.sana_ = &luokka;
  return t;
}

std::string_view Tunniste::Nakyma(char* puskuri) const noexcept {
  if (Tyhja()) return {};
  const std::string& sana = sana_->teksti;
  if (!OnGuid()) return sana;
  std::memcpy(puskuri, sana.data(), sana.size());
  puskuri[sana.size()] = ' ';
  KirjoitaHeksa(a_, puskuri + sana.size() + 1);
  KirjoitaHeksa(b_, puskuri + sana.size() + 17);
  return {puskuri, sana.size() + 1 + kNumeroita};
}

std::string Tunniste::Teksti() const {
  char puskuri[kPisinTeksti];
  return std::string(Nakyma(puskuri));
}

std::size_t Tunniste::Tiiviste() const noexcept {
  return OnGuid() ? static_cast<std::size_t>(a_ ^ b_) : sana_ ? sana_->tiiviste : 0;
}

std::string UusiInstanssiId(std::string_view luokka) { return Tunniste::Uusi(Sanaksi(luokka)).Teksti(); }
